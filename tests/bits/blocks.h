// The short transforms, operation by operation as their equations have them.
#pragma once

#include <array>

#include "tests/bits/nearest.h"
#include "tests/bits/number.h"

namespace xfm::test {

template <class T>
Points<T> length2(const Points<T>& x) {
  return {x[0] + x[1], x[0] - x[1]};
}

template <class T>
Points<T> length3(const Points<T>& x) {
  const T half = T(0.5), c = sine<T>(1, 3);
  const auto a = x[1] + x[2], d = x[1] - x[2];
  const auto t = x[0] - half * a, u = c * d;
  return {x[0] + a, t - times_i(u), t + times_i(u)};
}

template <class T>
Points<T> length4(const Points<T>& x) {
  const auto a = x[0] + x[2], b = x[0] - x[2], c = x[1] + x[3], d = x[1] - x[3];
  return {a + c, b - times_i(d), a - c, b + times_i(d)};
}

/// How the first output of the length-5 block is associated.
enum class Centre { first, last };  ///< (x0 + a1) + a2, or (a1 + a2) + x0

template <class T>
Points<T> length5(const Points<T>& x, Centre centre) {
  const T c1 = cosine<T>(1, 5), c2 = -cosine<T>(2, 5), s1 = sine<T>(1, 5), s2 = sine<T>(2, 5);
  const auto a1 = x[1] + x[4], a2 = x[2] + x[3], b1 = x[1] - x[4], b2 = x[2] - x[3];
  const auto x0 = centre == Centre::first ? (x[0] + a1) + a2 : (a1 + a2) + x[0];
  const auto t1 = (x[0] + c1 * a1) - c2 * a2, t2 = (x[0] - c2 * a1) + c1 * a2;
  const auto u1 = s1 * b1 + s2 * b2, u2 = s2 * b1 - s1 * b2;
  return {x0, t1 - times_i(u1), t2 - times_i(u2), t2 + times_i(u2), t1 + times_i(u1)};
}

/// In binary32, where expressions with products are evaluated in binary64 and rounded once.
inline Points<float> mixed3(const Points<float>& x) {
  const auto c = sine<double>(1, 3);
  const auto a = x[1] + x[2], d = x[1] - x[2];
  const auto centre = [](float x0, float sum) { return static_cast<float>(double{x0} - 0.5 * double{sum}); };
  const auto scaled = [&](float v) { return static_cast<float>(c * double{v}); };
  const Number<float> t{centre(x[0].re, a.re), centre(x[0].im, a.im)}, u{scaled(d.re), scaled(d.im)};
  return {x[0] + a, t - times_i(u), t + times_i(u)};
}

inline Points<float> mixed5(const Points<float>& x) {
  const auto c1 = cosine<double>(1, 5), c2 = -cosine<double>(2, 5);
  const auto s1 = sine<double>(1, 5), s2 = sine<double>(2, 5);
  const auto a1 = x[1] + x[4], a2 = x[2] + x[3], b1 = x[1] - x[4], b2 = x[2] - x[3];
  const auto part = [&](float Number<float>::*of) {
    const double x0 = x[0].*of, p1 = a1.*of, p2 = a2.*of, q1 = b1.*of, q2 = b2.*of;
    return std::array{static_cast<float>((x0 + c1 * p1) - c2 * p2),
                      static_cast<float>((x0 - c2 * p1) + c1 * p2), static_cast<float>(s1 * q1 + s2 * q2),
                      static_cast<float>(s2 * q1 - s1 * q2)};
  };
  const auto re = part(&Number<float>::re), im = part(&Number<float>::im);
  const Number<float> t1{re[0], im[0]}, t2{re[1], im[1]}, u1{re[2], im[2]}, u2{re[3], im[3]};
  return {(x[0] + a1) + a2, t1 - times_i(u1), t2 - times_i(u2), t2 + times_i(u2), t1 + times_i(u1)};
}

/// Two transforms of length 4 and full products with the eighth roots, trivial ones included.
inline Points<float> radix4by2(const Points<float>& x) {
  const auto r = cosine<float>(1, 8);
  const Number<float> w[] = {{1, 0}, {r, -r}, {0, -1}, {-r, -r}};
  const auto even = length4<float>({x[0], x[2], x[4], x[6]}), odd = length4<float>({x[1], x[3], x[5], x[7]});
  Points<float> out(8);
  for (std::size_t k = 0; k < 4; ++k) {
    const auto t = w[k] * odd[k];
    out[k] = even[k] + t;
    out[k + 4] = even[k] - t;
  }
  return out;
}

}  // namespace xfm::test
