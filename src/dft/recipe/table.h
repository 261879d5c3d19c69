// The breakdown of every complex length, fixed in advance: data only.
#pragma once

#include "gen/math/constant.h"

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

}  // namespace xfm::dft
