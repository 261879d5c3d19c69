// Constants of the straight-line bodies: cosines and sines of fractions of pi, computed by the compiler.
#pragma once

#include "src/dct4/arithmetic.h"

namespace xfm::dct4 {

/// The power series of the cosine (first = 0) or the sine (first = 1) at pi a / b, an angle of at most pi
/// / 4.
constexpr long double series(int first, long a, long b) {
  constexpr int count = 14;
  const long double x =
      3.14159265358979323846264338327950288L * static_cast<long double>(a) / static_cast<long double>(b);
  long double terms[count] = {first == 0 ? 1 : x};
  for (int k = 1; k < count; ++k)
    terms[k] = -terms[k - 1] * x * x / static_cast<long double>((2 * k + first - 1) * (2 * k + first));
  long double sum = 0;
  for (int k = count - 1; k >= 0; --k) sum += terms[k];  // the small terms first
  return sum;
}

/// cos(pi a / b) in extended precision, by the first octant: exact where it is 0, 1 or -1.
constexpr long double wide_cosine(long a, long b) {
  a %= 2 * b;
  if (a < 0) a = -a;
  if (a > b) a = 2 * b - a;
  if (2 * a > b) return -wide_cosine(b - a, b);
  return 4 * a > b ? series(1, b - 2 * a, 2 * b) : series(0, a, b);
}
constexpr long double wide_sine(long a, long b) { return wide_cosine(b - 2 * a, 2 * b); }

template <class T, long a, long b>
constexpr T cosine = static_cast<T>(wide_cosine(a, b));
template <class T, long a, long b>
constexpr T sine = static_cast<T>(wide_sine(a, b));
template <class T, long a, long b>
constexpr T tangent = static_cast<T>(wide_sine(a, b) / wide_cosine(a, b));

/// z exp(i pi a / b).
template <long a, long b, class V>
XFM_INLINE inline Complex<V> rotated(Complex<V> z) {
  using T = Element<V>;
  return z * Complex<V>{all<V>(cosine<T, a, b>), all<V>(sine<T, a, b>)};
}

}  // namespace xfm::dct4
