// Discrete Fourier transforms of real sequences, as networks of statements.
//
// A real sequence has a Hermitian spectrum: only the bins 0..n/2 are formed. Complex sequences inside a
// transform are two real ones and a join. A plan is a tree whose lengths are spelled out down to the blocks:
//   2, 3, 5, 7, 11   a direct block; D(7, 1, 3, 2, 0) is one whose transpose sums the bins in that order
//   a x b            Good-Thomas, a nearest the input
//   a * b            Cooley-Tukey
//   F(M, S)          a stage of two: M for the even bins, the skew S for the odd ones
//   R(g, L, M, S)    Rader with root g: the transform there, and the two half-length ones back, which run
//                    transposed: M for the real parts, the skew S for the imaginary parts (M, if left out)
// A plan run from its bins to its samples, the transpose of its network, is the inverse transform.
#pragma once

#include <vector>

#include "gen/algorithms/tree.h"
#include "gen/network/complex.h"

namespace xfm::gen::real {

using Values = std::vector<Value>;

/// Inputs 0..length-1.
Values samples(Network& network, int length);

/// The number of samples of a plan.
int length_of(const Tree& plan);

/// The bins X[k] = sum over n of x[n] exp(-2 pi i n k/N), k = 0..N/2.
Points transform(const Tree& plan, const Values& x);

/// All N bins of a complex sequence.
Points complex_transform(const Tree& plan, const Points& z);

/// The bins halfway between, Z[f] = sum over n of y[n] exp(-2 pi i n (f + 1/2)/N), f = 0..(N-1)/2: the
/// transform of the sequence continued with its negative. The middle one of an odd length is real.
Points skew_transform(const Tree& plan, const Values& y);

/// z times exp(-2 pi i t): quarter turns are free, eighths take two products and a sum and a difference.
Complex rotated(const Complex& z, Turn t);

/// @name The schemes, one a file
/// @{
Points direct(const Tree& plan, const Values& x);
Points two_stages(const Tree& plan, const Values& x);
Points rader(const Tree& plan, const Values& x);
/// @}

/// The real or the imaginary halves of points.
Values halves(const Points& points, Value Complex::*half);

/// Bins of a real sequence, filled in from either side of the spectrum.
class Spectrum {
 public:
  explicit Spectrum(int length) : length_(length), bins_(static_cast<std::size_t>(length / 2 + 1)) {}

  /// Bin k of 0..N-1; above N/2 the conjugate goes to N-k.
  void put(int k, const Complex& z) {
    const bool above = 2 * k > length_;
    bins_[static_cast<std::size_t>(above ? length_ - k : k)] = above ? conjugate(z) : z;
  }
  const Points& bins() const { return bins_; }

 private:
  int length_;
  Points bins_;
};

}  // namespace xfm::gen::real
