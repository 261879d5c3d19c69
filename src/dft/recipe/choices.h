// Choices inside a kernel that its breakdown leaves open: blocks, scalar kernels, forms of the length-5
// block, primitive roots, orders of operations.
#pragma once

#include "gen/algorithms/transform.h"
#include "gen/order/schedule.h"

namespace xfm::dft {

/// What the recipes of one kernel have to know beside its tree.
class Choices {
 public:
  Choices(int length, gen::Precision precision) : length_(length), precision_(precision) {}

  /// The tree with its numbers spelled out down to the blocks.
  gen::Tree spelled_out(const gen::Tree& tree) const;

  /// How sums of products round in a binary32 kernel that is scalar code; nothing in a packed one.
  std::optional<gen::Rounding> scalar() const;

  /// Roots and length-5 blocks.
  gen::Choices open() const;

  gen::Order order() const;

 private:
  gen::Root root(int prime) const;
  gen::Five five(bool real, int instance, bool transposed) const;

  int length_;
  gen::Precision precision_;
};

}  // namespace xfm::dft
