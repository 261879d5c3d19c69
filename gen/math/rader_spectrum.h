// The pointwise factors of Rader's algorithm (Rader 1968).
#pragma once

#include "gen/math/constant.h"

namespace xfm::gen {

/// The root g of a Rader convolution, and how far its outputs are shifted along the powers of 1/g. Any choice
/// gives the same transform at the same cost; only rounding differs.
struct Root {
  int g;
  int shift;
};

/// The spectrum of the roots of unity in the order of the convolution, of length M = N-1,
///   B[r] = (1/M) sum_q exp(-2 pi i g^-q/N) exp(-2 pi i q r/M).
/// B[0] is -1/M, and B[M/2] is real or imaginary: those parts that vanish are exact zeros. `times` is 2 where
/// one factor stands for a conjugate pair.
ComplexConstant rader_spectrum(int n, Root root, int r, int times = 1);

}  // namespace xfm::gen
