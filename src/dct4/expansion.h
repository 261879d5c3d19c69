// The expansion of r complex values W into the 2 r reals
//
//   Y(l) = Re sum over t of W[t] exp(i pi l (2 t + 1) / (2 r)),   l = -r .. r - 1.
//
// U[t] = W[t] + conj(W[r-1-t]) gives the even outputs, and D[t] = (W[t] - conj(W[r-1-t])) exp(i phi) the odd
// ones, with phi = pi (2 t + 1) / (2 r). The level below D is merged into it, so that two rotations become
// one: the split radix of the fold, transposed. Two levels are taken at once, on sets of four values that
// depend on no others.
#pragma once

#include "src/dct4/constants.h"

namespace xfm::dct4 {

/// Adjacent values and their three mirror images: front[j] is W[t + j], back[j] is W[r - 1 - t - j],
/// low[j] is W[r/2 - 1 - t - j], and high[j] is W[r/2 + t + j].
template <class V, int width>
struct Quads {
  Complex<V> front[width], back[width], low[width], high[width];
};

/// Values of an array, one at a time.
template <class V, int r>
struct Listed {
  static constexpr int width = 1;
  const Complex<V>* w;

  template <int t>
  XFM_INLINE void get(Quads<V, 1>& quads) const {
    quads = {{w[t]}, {w[r - 1 - t]}, {w[r / 2 - 1 - t]}, {w[r / 2 + t]}};
  }
};

/// a + conj(b) and a - conj(b).
template <class V>
XFM_INLINE inline Complex<V> mirror_sum(Complex<V> a, Complex<V> b) {
  return {a.re + b.re, a.im - b.im};
}
template <class V>
XFM_INLINE inline Complex<V> mirror_difference(Complex<V> a, Complex<V> b) {
  return {a.re - b.re, a.im + b.im};
}

/// From a = D[t] and b = D[r/2 - 1 - t] without their rotations: entry t of the values that give the outputs
/// 4 l + 1, and of those that give the outputs 4 l + 3. The rotation of b, conjugated, is -i times that of a;
/// and i conj(b) is (b.im, b.re).
template <int r, int t, class V>
XFM_INLINE inline void part_odds(Complex<V> a, Complex<V> b, Complex<V>& first, Complex<V>& third) {
  first = rotated<2 * t + 1, 2 * r>(Complex<V>{a.re - b.im, a.im - b.re});
  third = rotated<3 * (2 * t + 1), 2 * r>(Complex<V>{a.re + b.im, a.im + b.re});
}

/// Calls out.put<step l + offset>(Y(l)) once for every l.
template <class V, int r, int step = 1, int offset = 0, class Out>
XFM_INLINE inline void expand(const Complex<V>* w, const Out& out);

/// The odd outputs of r values, from D without its rotation.
template <class V, int r, int step, int offset, class Out>
XFM_INLINE inline void expand_odds(const Complex<V>* d, const Out& out) {
  if constexpr (r == 2) {
    const auto s = all<V>(cosine<Element<V>, 1, 4>);
    out.template put<offset + step>((d[0].re - d[0].im) * s);
    out.template put<offset - step>((d[0].re + d[0].im) * s);
  } else {
    Complex<V> first[r / 4], third[r / 4];
    unrolled<r / 4>([&](auto t) XFM_INLINE { part_odds<r, t>(d[t], d[r / 2 - 1 - t], first[t], third[t]); });
    expand<V, r / 4, 4 * step, offset + step>(first, out);
    expand<V, r / 4, 4 * step, offset + 3 * step>(third, out);
  }
}

/// At least four values, from any source.
template <class V, int r, int step = 1, int offset = 0, class Source, class Out>
XFM_INLINE inline void expand_quads(const Source& source, const Out& out) {
  constexpr int width = Source::width;
  Complex<V> even[r / 4], odd[r / 4], first[r / 4], third[r / 4];
  unrolled<r / 4 / width>([&](auto block) XFM_INLINE {
    Quads<V, width> w;
    source.template get<block * width>(w);
    unrolled<width>([&](auto j) XFM_INLINE {
      constexpr int t = block * width + j;
      const Complex<V> u = mirror_sum(w.front[j], w.back[j]), v = mirror_sum(w.low[j], w.high[j]);
      even[t] = mirror_sum(u, v);
      odd[t] = mirror_difference(u, v);
      const Complex<V> a = mirror_difference(w.front[j], w.back[j]),
                       b = mirror_difference(w.low[j], w.high[j]);
      part_odds<r, t>(a, b, first[t], third[t]);
    });
  });
  expand<V, r / 4, 4 * step, offset>(even, out);
  expand_odds<V, r / 2, 2 * step, offset>(odd, out);
  expand<V, r / 4, 4 * step, offset + step>(first, out);
  expand<V, r / 4, 4 * step, offset + 3 * step>(third, out);
}

template <class V, int r, int step, int offset, class Out>
XFM_INLINE inline void expand(const Complex<V>* w, const Out& out) {
  if constexpr (r == 1) {
    out.template put<offset>(w[0].re);
    out.template put<offset - step>(w[0].im);
  } else if constexpr (r == 2) {
    const Complex<V> u = mirror_sum(w[0], w[1]), d = mirror_difference(w[0], w[1]);
    expand<V, 1, 2 * step, offset>(&u, out);
    expand_odds<V, 2, step, offset>(&d, out);
  } else {
    expand_quads<V, r, step, offset>(Listed<V, r>{w}, out);
  }
}

}  // namespace xfm::dct4
