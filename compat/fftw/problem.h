// What a plan is asked for, in one form for all of FFTW's interfaces.
#pragma once

#include <cstddef>
#include <vector>

#include "precision.h"

/// A dimension of a transform, or of a loop over transforms. Strides count reals.
struct Dim {
  std::ptrdiff_t n, is, os;
};

enum class Kind { c2c, r2c, c2r, r2r };

struct Problem {
  Kind kind;
  int sign;                            ///< of c2c
  std::vector<Dim> dims;               ///< the last one is halved by r2c and c2r
  std::vector<Dim> loops;              ///< over transforms
  std::vector<X(r2r_kind)> r2r_kinds;  ///< one a dimension
  Real *in, *out;
  unsigned flags;
};

/// Reals in an element of the input and of the output.
inline std::ptrdiff_t in_unit(Kind kind) { return kind == Kind::c2c || kind == Kind::c2r ? 2 : 1; }
inline std::ptrdiff_t out_unit(Kind kind) { return kind == Kind::c2c || kind == Kind::r2c ? 2 : 1; }
