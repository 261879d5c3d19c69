// Complex arithmetic on values V: single elements, or registers of them. Addition, subtraction and
// multiplication of either are the compiler's own operators.
#pragma once

#include "src/simd/simd.h"

namespace xfm::dct4 {

/// The constant x, in every lane if there are several.
template <class V>
XFM_INLINE inline V all(Element<V> x) {
  if constexpr (lanes_of<V> == 1)
    return x;
  else
    return broadcast<V>(x);
}

/// A complex number, or as many as there are lanes.
template <class V>
struct Complex {
  V re, im;
};

template <class V>
XFM_INLINE inline Complex<V> operator+(Complex<V> a, Complex<V> b) {
  return {a.re + b.re, a.im + b.im};
}
template <class V>
XFM_INLINE inline Complex<V> operator-(Complex<V> a, Complex<V> b) {
  return {a.re - b.re, a.im - b.im};
}
template <class V>
XFM_INLINE inline Complex<V> operator*(Complex<V> a, Complex<V> b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

}  // namespace xfm::dct4
