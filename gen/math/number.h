// Elementary number theory and the index maps of the factorisations.
#pragma once

namespace xfm::gen {

/// a modulo n in 0..n-1, also for negative a.
int modulo(long long a, int n);

/// The inverse of a modulo n; a and n coprime.
int inverse_modulo(int a, int n);

/// base to the power exponent modulo n, exponent >= 0.
int power_modulo(int base, int exponent, int n);

bool is_prime(int n);

/// The smallest primitive root of the prime p.
int smallest_primitive_root(int p);

/// The index maps of a transform of length N = a*b done in two stages: b columns of length a, then a rows of
/// length b. Stage one, column c, reads x[input(m, c)]; stage two, row k1, writes X[output(k1, k2)].
struct TwoStages {
  int a, b;
  /// Good-Thomas (Good 1958), a and b coprime: x[(b*m + a*c) mod N], X[(b*B*k1 + a*A*k2) mod N] with B the
  /// inverse of b modulo a and A the inverse of a modulo b, no twiddles. Otherwise Cooley-Tukey: x[c + b*m],
  /// X[k1 + a*k2], and the column outputs are multiplied by W_N^(c*k1) in between.
  bool good_thomas;

  int input(int m, int c) const;
  int output(int k1, int k2) const;
  /// The exponent of W_N between the stages.
  int twiddle(int c, int k1) const { return good_thomas ? 0 : c * k1; }
};

}  // namespace xfm::gen
