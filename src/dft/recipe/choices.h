// Choices inside a kernel that its breakdown leaves open: forms of the length-5 block, primitive roots,
// orders of operations. Data only.
#pragma once

#include "gen/kernel.h"
#include "gen/math/rader_spectrum.h"
#include "src/dft/recipe/blocks.h"

namespace xfm::dft {

/// What the recipes of one kernel have to know beside its tree.
class Choices {
 public:
  Choices(int length, gen::Precision precision) : length_(length), precision_(precision) {}

  gen::Precision precision() const { return precision_; }

  /// The breakdown of a composite length in this precision, for the inner transforms of Rader's algorithm.
  const char* tree(int length) const;

  /// The form of the kernel's next length-5 block, counted from 0 in the order of the recipe, on real or
  /// complex sequences; `transposed` blocks run from outputs to inputs.
  Five five(int index, bool real, bool transposed) const;

  gen::Root root(int prime) const;

  gen::Order order() const;

 private:
  int length_;
  gen::Precision precision_;
};

}  // namespace xfm::dft
