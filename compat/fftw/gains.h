// Where FFTW is faster than xfm behind its interface, so that it is left to FFTW: measured by xfmbench
// --fftw-interface. Lengths from which on xfm gains. Data only.
#pragma once

#include "problem.h"

/// Spectra that are stored elsewhere than in xfm's layouts: half-complex order, or strides between their
/// elements.
constexpr std::ptrdiff_t kLeastMoved = 16;

/// Complex transforms in batches of one after the other.
constexpr std::ptrdiff_t kLeastContiguousBatch = sizeof(Real) == 4 ? 16 : 17;

/// Several dimensions; every one is at least so long.
constexpr std::ptrdiff_t least_of_rank(Kind kind) {
  switch (kind) {
    case Kind::c2c:
      return sizeof(Real) == 4 ? 16 : 32;
    case Kind::r2c:
      return 16;
    case Kind::c2r:
      return 16;
    case Kind::r2r:
      return 2;
  }
  return 2;
}
