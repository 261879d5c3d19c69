// A kernel as recipes hand it to the writers: its network, its name and type, and what its row allows.
#pragma once

#include <memory>
#include <string>

#include "gen/network/check.h"
#include "gen/network/program.h"
#include "gen/order/schedule.h"
#include "gen/packing/paired.h"
#include "gen/targets/target.h"

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
  int read, written;  ///< counts of real scalars
  std::string tree;   ///< breakdown, as the row writes it
  int adds, mults;    ///< the row's bounds
  std::unique_ptr<Network> network;
  Order order = Order::windowed;
  Numbering numbering{};  ///< of its scalar program

  std::string short_name() const { return family + "_" + std::to_string(length) + "_" + type.suffix(); }
  std::string name() const { return "xfm" + short_name(); }
  bool packed() const { return network->width() > 1; }
};

/// What a recipe makes for a length: a kernel, and what to check it against.
struct Design {
  Kernel kernel;
  Definition definition;
  bool by_row = true;  ///< false for a tree that is only tried out: costs and forms are not checked
  PerLane unread{};    ///< scalars of src that are never read
  std::unique_ptr<Network> other_form{};  ///< the same kernel with its operations packed another way
};

/// Checks a design and returns its kernel. Each input must be read once and each output written once; the
/// network must compute the transform's definition. By a row, it must also cost no more than the row allows,
/// and both forms must be one scalar program, except for products by 0 that lanes compute together. Throws
/// at the first check that fails, naming the kernel.
Kernel make_kernel(Design design);

/// The kernel with its operations in pairs, again and again until its widest values have so many lanes. It
/// computes the same scalar program; throws if it does not.
Kernel paired(Kernel kernel, int lanes, Pairing& pairing);

}  // namespace xfm::gen
