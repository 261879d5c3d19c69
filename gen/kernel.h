// A kernel as the workshop hands it to the writers: a network, and what the world must know of it.
#pragma once

#include <memory>
#include <string>

#include "gen/network/network.h"

namespace xfm::gen {

enum class Precision { binary32, binary64 };

/// Which of the scale flags carry 1/N.
enum class Scaling { forward, inverse, symmetric };

/// The order in which a kernel's operations are written down.
enum class Order {
  windowed,        ///< the recipe's stages, smoothed by when an operation can start
  earliest_start,  ///< by when an operation can start
  bisection,       ///< few values in flight (bisection.h)
};

struct ElementType {
  Precision precision;
  bool complex;

  std::string suffix() const {
    return std::string(precision == Precision::binary32 ? "32f" : "64f") + (complex ? "c" : "");
  }
  std::string name() const { return "xfm" + suffix(); }                                          ///< xfm32fc
  std::string scalar() const { return precision == Precision::binary32 ? "xfm32f" : "xfm64f"; }  ///< xfm32f
};

struct Kernel {
  std::string name;    ///< exported name
  std::string family;  ///< its part between the prefix and the length
  ElementType type;
  Scaling scaling;
  int length;
  int read, written;  ///< real scalars
  std::string tree;   ///< breakdown, as the row has it
  int adds, mults;    ///< the row's bounds
  std::unique_ptr<Network> network;
  Order order = Order::windowed;

  bool packed() const { return network->width() > 1; }
};

/// What the catalogue (tools/catalogue.h, which explains the fields) tells of a kernel.
struct Row {
  std::string name, family;
  ElementType type;
  Scaling scaling;
  int length, points, read, written, exchanges;
  bool packed, packed_math, straight;
  std::string tree;
  int adds, mults, add_instructions, mult_instructions;
  bool takes_buffer = false;
  int buffer_bytes = 0;
};

}  // namespace xfm::gen
