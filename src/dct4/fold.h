// The odd DFT of real samples, the heart of the fold: the classes q = 0 .. m/2 - 1 of
//
//   Z(q) = sum over n = -m/2 .. m/2 - 1 of w(n) exp(i n (2 q + 1) pi / m).
//
// The other classes are conjugates of these. The lengths 2 and 4 are written out, and 8 is made of two of
// length 4. A longer one splits into its even samples, of half the length, and its samples 4 l + 1 and 4 l +
// 3, of a quarter each: the split radix (Duhamel and Hollmann 1984), for odd frequencies. Sub-sequences are
// read in place, as w(offset + step l).
#pragma once

#include "src/dct4/constants.h"

namespace xfm::dct4 {

/// Puts classes into an array.
template <class V>
struct ToArray {
  Complex<V>* classes;
  template <int q>
  XFM_INLINE void put(Complex<V> z) const {
    classes[q] = z;
  }
};

/// From the classes of the even samples and of the odd ones: with T = O(i) exp(i (2 i + 1) pi / m),
/// Z(i) = E(i) + T and Z(m/2 - 1 - i) = conj(E(i) - T).
template <int m, class V, class Out>
XFM_INLINE inline void join_halves(const Complex<V>* even, const Complex<V>* odd, const Out& out) {
  unrolled<m / 4>([&](auto i) XFM_INLINE {
    const Complex<V> e = even[i], t = rotated<2 * i + 1, m>(odd[i]);
    out.template put<i>(e + t);
    out.template put<m / 2 - 1 - i>({e.re - t.re, t.im - e.im});
  });
}

/// From the classes of the even samples and of the quarters 4 l + 1 and 4 l + 3. With S and D the sum and
/// difference of the rotated quarters and E' = E(m/4 - 1 - i): Z(i) = E(i) + S, Z(m/2 - 1 - i) = conj(E(i) -
/// S), Z(m/4 - 1 - i) = E' + i conj(D), Z(m/4 + i) = conj(E') + i D.
template <int m, class V, class Out>
XFM_INLINE inline void join_quarters(const Complex<V>* even, const Complex<V>* first, const Complex<V>* third,
                                     const Out& out) {
  unrolled<m / 8>([&](auto i) XFM_INLINE {
    const Complex<V> t1 = rotated<2 * i + 1, m>(first[i]), t3 = rotated<3 * (2 * i + 1), m>(third[i]);
    const Complex<V> s = t1 + t3, d = t1 - t3, e = even[i], mirrored = even[m / 4 - 1 - i];
    out.template put<i>(e + s);
    out.template put<m / 2 - 1 - i>({e.re - s.re, s.im - e.im});
    out.template put<m / 4 - 1 - i>({mirrored.re + d.im, mirrored.im + d.re});
    out.template put<m / 4 + i>({mirrored.re - d.im, d.re - mirrored.im});
  });
}

/// Calls out.put<q>(Z(q)) once for every class.
template <class V, int m, int step = 1, int offset = 0, class Samples, class Out>
XFM_INLINE inline void fold(const Samples& w, const Out& out) {
  if constexpr (m == 2) {
    out.template put<0>({w(offset), -w(offset - step)});
  } else if constexpr (m == 4) {
    const auto next = w(offset + step), before = w(offset - step), far = w(offset - 2 * step),
               middle = w(offset);
    const auto s = all<V>(cosine<Element<V>, 1, 4>);
    const auto a = (next + before) * s, b = (next - before) * s;
    out.template put<0>({middle + a, b - far});
    out.template put<1>({middle - a, b + far});
  } else if constexpr (m == 8) {
    Complex<V> even[2], odd[2];
    fold<V, 4, 2 * step, offset>(w, ToArray<V>{even});
    fold<V, 4, 2 * step, offset + step>(w, ToArray<V>{odd});
    join_halves<m>(even, odd, out);
  } else {
    Complex<V> even[m / 4], first[m / 8], third[m / 8];
    fold<V, m / 2, 2 * step, offset>(w, ToArray<V>{even});
    fold<V, m / 4, 4 * step, offset + step>(w, ToArray<V>{first});
    fold<V, m / 4, 4 * step, offset + 3 * step>(w, ToArray<V>{third});
    join_quarters<m>(even, first, third, out);
  }
}

}  // namespace xfm::dct4
