// Discrete Fourier transforms of sequences of values, as networks.
//
// Points are p + i*q; a sequence whose q are all absent is real, its spectrum is Hermitian, and only half of
// each stage is computed: the other bins are conjugates, which cost nothing. The rule decides whether a
// complex sequence goes through its stages as it is, or as two real ones that are added at the end. In the
// interleaved form, where a value is a complex number in two lanes and all coefficients are real, complex
// sequences are "real" in this sense too.
//
// From bins to samples, a transform runs as its network transposed (transposition.h).
#pragma once

#include <functional>

#include "gen/algorithms/blocks.h"
#include "gen/algorithms/tree.h"

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

/// The bins of a transform, or those halfway between.
enum class Bins { plain, skew };

/// What a tree leaves open.
struct Choices {
  std::function<Root(int prime)> root;
  /// The form of a length-5 block, on real or complex sequences, in the given column of its stage;
  /// `transposed` blocks run from outputs to inputs.
  std::function<Five(bool real, int instance, bool transposed)> five;
};

class Transform {
 public:
  /// Sums of products are linear combinations, rounded once, or each operation rounds.
  explicit Transform(Rounding rounding, const Choices& choices = {}, bool transposed = false)
      : rounding_(rounding), choices_(choices), transposed_(transposed) {}

  /// The bins X[k] = sum over n of x[n] exp(-2 pi i n k/N), k = 0..N-1; `instance` is the number of the
  /// sequence within its stage.
  Points run(const Tree& tree, const Points& x, int instance = 0) const;

  /// The bins halfway between, Z[f] = sum over n of y[n] exp(-2 pi i n (f + 1/2)/N), f = 0..N-1, of a real
  /// sequence: half the odd bins of the sequence continued with its negative.
  Points skew(const Tree& tree, const Points& y) const;

  /// The transpose: from weights on the real and on the imaginary parts of the first bins to the samples.
  Points from_bins(const Tree& tree, const Points& re, const Points& im, Bins kind = Bins::plain) const;

  /// @name The rules (rules.h)
  /// @{
  Points block(const Tree& tree, const Points& x, int instance) const;
  Points two_stages(const Tree& tree, const Points& x, int instance) const;
  Points fork(const Tree& tree, const Points& x, int instance) const;
  Points rader_by_halves(const Tree& tree, const Points& x, int instance) const;
  Points rader_transposed(const Tree& tree, const Points& x, int instance) const;
  Points skew_good_thomas(const Tree& tree, const Points& y) const;
  Points skew_cooley_tukey(const Tree& tree, const Points& y) const;
  /// @}

 private:
  Points by_halves(const Tree& tree, const Points& x) const;
  Points skew_of_even_length(const Tree& rest, const Points& y) const;
  Complex rotated(const Complex& z, Turn t) const;
  bool combines() const { return rounding_ == Rounding::combination; }

  Rounding rounding_;
  Choices choices_;
  bool transposed_;
};

/// The inputs 0..length-1 as a real sequence.
Points samples(Network& network, int length);

bool is_real(const Points& x);

/// The p or the q of each point, as a real sequence.
Points halves(const Points& x, Value Complex::*half);

/// The bins of a real sequence. put() sets a bin, and its mirror image to the conjugate; a bin that is set
/// stays as it is. Bin k mirrors bin -k of a plain spectrum, -k - 1 of a skew one.
class Spectrum {
 public:
  explicit Spectrum(int length, Bins kind = Bins::plain) : kind_(kind), bins_(length), known_(length) {}

  void put(int k, const Complex& z);
  const Points& bins() const { return bins_; }

 private:
  Bins kind_;
  Points bins_;
  Sequence<bool> known_;
};

}  // namespace xfm::gen
