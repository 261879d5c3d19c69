// The lane-real arithmetic: a tree run on whole complex numbers with real coefficients only.
//
// Every value is a pair (P, Q) for P + i*Q, where P and Q are nodes that carry complex numbers in their
// lanes. Inputs are real in this sense, so spectra are conjugate symmetric, X[N-k] = (P, -Q), and only half
// of each stage is ever computed. A factor i is the Q half, i*i is a sign, and the pairs join once, at the
// outputs: X[k] = P + i*Q.
#pragma once

#include "gen/algorithms/tree.h"
#include "gen/network/complex.h"
#include "src/dft/recipe/choices.h"

namespace xfm::dft {

class LaneReal {
 public:
  explicit LaneReal(const Choices& choices, bool transposed = false)
      : choices_(choices), transposed_(transposed) {}

  Points transform(const gen::Tree& tree, const Points& x) const;

  /// A block of a base length, or of a prime by the scheme that costs least.
  Points block(int length, const Points& x) const;

 private:
  Points two_stages(const gen::Tree& tree, const Points& x) const;
  Points rader(const gen::Tree& inner, const Points& x) const;
  Points by_halves(const gen::Tree& tree, const Points& x) const;

  Choices choices_;
  bool transposed_;
  mutable int fives_ = 0;
};

/// Split radix for 4, 8 and 16 points.
Points split_radix(const Points& x);

/// Split radix whose last stage of two is left open for outputs 0 and N/2: their operands stand in their
/// places.
Points open_split_radix(const Points& x);

}  // namespace xfm::dft
