// The transform as the simplest program computes it, which fixes the bits of every kernel.
#pragma once

#include "tests/support/array.h"

namespace xfm::test {

/// The factor of XFM_SCALE_BY_SQRT_N, from its recorded bits.
double root_factor(Precision precision, int order);

/// Strides 1, 2, 4, ... in the arithmetic of the precision, then every element times the factor.
Array loop_nest(const Array& src, double factor);

}  // namespace xfm::test
