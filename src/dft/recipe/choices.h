// Choices inside a kernel that its breakdown leaves open: blocks, scalar kernels, forms of the length-5
// block, primitive roots, orders of operations.
#pragma once

#include "gen/algorithms/transform.h"
#include "gen/order/schedule.h"

namespace xfm::dft {

/// What the recipes of one kernel need besides its tree.
struct Choices {
  int length;
  gen::Precision precision;

  /// The tree with its numbers spelled out down to the blocks.
  gen::Tree spelled_out(const gen::Tree& tree) const;

  /// How sums of products round in a binary32 kernel of scalar code; nothing for a packed one.
  std::optional<gen::Rounding> scalar() const;

  gen::Root root(int prime) const;
  gen::Five five(bool real, int instance, bool transposed) const;
  gen::Choices open() const;  ///< both, for the transforms
  gen::Order order() const;
};

}  // namespace xfm::dft
