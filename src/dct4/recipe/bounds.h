// Certified bounds on the error of the DCT-IV.
#pragma once

#include "gen/bounds/bounds.h"

namespace xfm::dct4 {

struct TransformBound {
  /// |computed - exact|_2 <= relative u |exact|_2, underflow excepted.
  double relative = 0;
  /// Of every output.
  gen::Bound output{};
};

/// Of a power of two from 2 to 2^26. It is assumed that sines and cosines of the C library are right within a
/// unit in the last place.
TransformBound bound(int length, gen::Precision precision);

}  // namespace xfm::dct4
