// The breakdown of every complex length, fixed in advance, and the choices that it leaves open.
#pragma once

#include "gen/algorithms/transform.h"

namespace xfm::dft {

struct Breakdown {
  const char* tree;
  int adds, mults;  ///< real operations without the factor: a kernel costs that much or less
};

/// Rules, the first argument nearest the input: CT Cooley-Tukey, PFA Good-Thomas, PFA* with its last
/// butterfly delayed, SR split radix, D direct symmetric, R Rader, RS Rader on real sequences, B Bluestein
/// with its forward and inverse trees. A number is a block of that length.
struct Row {
  int length;
  Breakdown binary32;  ///< _32fc
  Breakdown binary64;  ///< _64fc
};

/// The half of a length's row; throws std::out_of_range if there is none.
const Breakdown& breakdown(gen::Precision precision, int length);

/// What the recipes of one kernel need besides its tree.
struct Choices {
  int length;
  gen::Precision precision;

  /// The tree with its numbers spelled out down to the blocks.
  gen::Tree spelled_out(const gen::Tree& tree) const;

  /// How sums of products round in a binary32 kernel of scalar code; nothing for a packed one.
  std::optional<gen::Rounding> scalar() const;

  /// Whether a binary32 kernel has the baseline's lanes on every target.
  bool narrow() const;

  gen::Root root(int prime) const;
  gen::Five five(bool real, int instance, bool transposed) const;
  gen::Choices open() const;  ///< both, for the transforms
};

}  // namespace xfm::dft
