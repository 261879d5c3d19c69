// The base lengths: one straight-line kernel each, from src to dst, one element at a time. All input is read
// before the first output is written.
#pragma once

#include "src/dct4/expansion.h"
#include "src/dct4/fold.h"

namespace xfm::dct4 {

template <class T>
void transform_2(const T* src, T* dst) {
  constexpr T c = cosine<T, 1, 8>, s = sine<T, 1, 8>;
  const T x0 = src[0], x1 = src[1];
  dst[0] = c * x0 + s * x1;
  dst[1] = s * x0 - c * x1;
}

/// Two rotations by three shears each (lifting; Daubechies and Sweldens 1998), of x0, x3 by 7 pi / 16 and of
/// x1, x2 by 5 pi / 16.
template <class T>
void transform_4(const T* src, T* dst) {
  constexpr T p0 = tangent<T, 7, 32>, q0 = sine<T, 7, 16>, p1 = tangent<T, 5, 32>, q1 = sine<T, 5, 16>;
  constexpr T s = cosine<T, 1, 4>;
  const T x0 = src[0], x1 = src[1], x2 = src[2], x3 = src[3];
  const T a = x0 - p0 * x3;
  const T b = x3 + q0 * a;
  const T c = a - p0 * b;
  const T d = x1 - p1 * x2;
  const T e = x2 + q1 * d;
  const T f = d - p1 * e;
  dst[0] = b + e;
  dst[3] = c - f;
  dst[1] = (b - e) * s + (c + f) * s;
  dst[2] = (b - e) * s - (c + f) * s;
}

/// The samples of residue t: w(n) is at 2 r n + t, and at 2 r |n| - 1 - t for negative n.
template <class T, int r, int t>
struct Residue {
  const T* src;
  XFM_INLINE T operator()(int n) const { return src[n >= 0 ? 2 * r * n + t : -2 * r * n - 1 - t]; }
};

/// Takes the classes of one residue, twisted by pi (2 q + 1) (2 t + 1) / (4 N).
template <class T, int length, int r, int t>
struct Twist {
  Complex<T> (*classes)[r];
  template <int q>
  XFM_INLINE void put(Complex<T> z) const {
    classes[q][t] = rotated<(2 * q + 1) * (2 * t + 1), 4 * length>(z);
  }
};

/// Writes the outputs of one class q: Y(l) to m l + q, and to m |l| - q - 1 for negative l.
template <class T, int m, int q>
struct Scatter {
  T* dst;
  template <int l>
  XFM_INLINE void put(T y) const {
    dst[l >= 0 ? m * l + q : -m * l - q - 1] = y;
  }
};

/// N = r m for the lengths 8, 16 and 32.
template <class T, int length, int r>
void transform(const T* src, T* dst) {
  constexpr int m = length / r;
  Complex<T> w[m / 2][r];
  unrolled<r>([&](auto t) XFM_INLINE { fold<T, m>(Residue<T, r, t>{src}, Twist<T, length, r, t>{w}); });
  unrolled<m / 2>([&](auto q) XFM_INLINE { expand<T, r>(w[q], Scatter<T, m, q>{dst}); });
}

}  // namespace xfm::dct4
