// The lane-real arithmetic: a tree run on whole complex numbers, two lanes each, with real coefficients only.
//
// Every value is a pair (P, Q) for P + i*Q, where P and Q are nodes that carry a complex number in their
// lanes. Inputs are real in this sense, so spectra are conjugate symmetric, X[N-k] = (P, -Q), and only half
// of each stage is ever computed. A factor i is the Q half, i*i is a sign, and the pairs join once, at the
// outputs: X[k] = P + i*Q.
#pragma once

#include "gen/complex.h"
#include "gen/tree.h"
#include "src/dft/recipe/blocks.h"

namespace xfm::dft {

class LaneReal {
 public:
  /// `length` is the kernel's, which decides the form of its length-5 blocks.
  explicit LaneReal(int length);

  Points transform(const gen::Tree& tree, const Points& x) const;

 private:
  Points block(int length, const Points& x) const;
  Points two_stages(const gen::Tree& tree, const Points& x) const;

  Five five_;
};

/// Split radix for 4, 8 and 16 points.
Points split_radix(const Points& x);

}  // namespace xfm::dft
