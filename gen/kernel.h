// A kernel as recipes hand it to the writers: a network, and what the world must know of it.
#pragma once

#include <memory>
#include <string>

#include "gen/network/check.h"
#include "gen/network/program.h"
#include "gen/order/schedule.h"

namespace xfm::gen {

/// Which of the scale flags carry 1/N.
enum class Scaling { forward, inverse, symmetric };

struct ElementType {
  Precision precision;
  bool complex;

  std::string suffix() const { return scalar().substr(3) + (complex ? "c" : ""); }
  std::string name() const { return "xfm" + suffix(); }  ///< xfm32fc
  /// xfm32f
  std::string scalar() const { return precision == Precision::binary32 ? "xfm32f" : "xfm64f"; }
};

struct Kernel {
  std::string family;  ///< exported name between the prefix and the length
  ElementType type;
  Scaling scaling;
  int length;
  int read, written;  ///< real scalars
  std::string tree;   ///< breakdown, as the row has it
  int adds, mults;    ///< the row's bounds
  std::unique_ptr<Network> network;
  Order order = Order::windowed;
  Numbering numbering{};  ///< of its scalar program

  std::string name() const { return "xfm" + family + "_" + std::to_string(length) + "_" + type.suffix(); }
  bool packed() const { return network->width() > 1; }
};

/// What a recipe makes of a length: a kernel, and what it is checked against.
struct Design {
  Kernel kernel;
  Definition definition;
  bool by_row = true;  ///< rather than by a tree that is being tried, whose costs nothing bounds
  PerLane unread{};    ///< scalars of src that are never read
  std::unique_ptr<Network> other_form{};  ///< the same kernel with its operations packed in another way
};

/// The kernel after all checks: one read an input, one write an output, the transform against its definition,
/// the row's costs, and its forms against each other: one program, but for the products by 0 that lanes make
/// together. The first that fails throws, by name.
Kernel make_kernel(Design design);

}  // namespace xfm::gen
