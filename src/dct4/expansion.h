// The expansion of r complex values W into the 2 r reals
//
//   Y(l) = Re sum over t of W[t] exp(i pi l (2 t + 1) / (2 r)),   l = -r .. r - 1.
//
// U[t] = W[t] + conj(W[r-1-t]) gives the even outputs, D[t] = (W[t] - conj(W[r-1-t])) exp(i phi) the odd
// ones, with phi = pi (2 t + 1) / (2 r). The level below D is merged into it, so that two turns become one:
// the split radix of the fold, transposed.
#pragma once

#include "src/dct4/constants.h"

namespace xfm::dct4 {

/// U, and D without its turn.
template <int r, class A>
XFM_INLINE void part_evens(const Complex<A>* w, Complex<A>* u, Complex<A>* d) {
  unrolled<r / 2>([&](auto t) XFM_INLINE_LAMBDA {
    const Complex<A> a = w[t], b = w[r - 1 - t];
    u[t] = {a.re + b.re, a.im - b.im};
    d[t] = {a.re - b.re, a.im + b.im};
  });
}

/// From D without its turn: what the outputs 4 l + 1 are made of, and the outputs 4 l + 3. With phi' that of
/// r/2 - 1 - t, exp(-i phi') = -i exp(i phi).
template <int r, class A>
XFM_INLINE void part_odds(const Complex<A>* d, Complex<A>* first, Complex<A>* third) {
  unrolled<r / 4>([&](auto t) XFM_INLINE_LAMBDA {
    const Complex<A> a = d[t], b = d[r / 2 - 1 - t];  // i conj(b) is (b.im, b.re)
    first[t] = turned<2 * t + 1, 2 * r>(Complex<A>{a.re - b.im, a.im - b.re});
    third[t] = turned<3 * (2 * t + 1), 2 * r>(Complex<A>{a.re + b.im, a.im + b.re});
  });
}

/// Calls out.put<step l + offset>(Y(l)) once for every l.
template <class A, int r, int step = 1, int offset = 0, class Out>
XFM_INLINE void expand(const Complex<A>* w, const Out& out) {
  if constexpr (r == 1) {
    out.template put<offset>(w[0].re);
    out.template put<offset - step>(w[0].im);
  } else if constexpr (r == 2) {
    const auto s = A::all(cosine<typename A::Element, 1, 4>);
    const auto a = w[0].re - w[1].re, b = w[0].im + w[1].im;
    out.template put<offset>(w[0].re + w[1].re);
    out.template put<offset - 2 * step>(w[0].im - w[1].im);
    out.template put<offset + step>((a - b) * s);
    out.template put<offset - step>((a + b) * s);
  } else {
    Complex<A> u[r / 2], d[r / 2], first[r / 4], third[r / 4];
    part_evens<r>(w, u, d);
    expand<A, r / 2, 2 * step, offset>(u, out);
    part_odds<r>(d, first, third);
    expand<A, r / 4, 4 * step, offset + step>(first, out);
    expand<A, r / 4, 4 * step, offset + 3 * step>(third, out);
  }
}

}  // namespace xfm::dct4
