// The arithmetics that a body is written in: one element, or a 128-bit register of them. Addition,
// subtraction and multiplication are the compiler's own operators.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <utility>

namespace xfm::dct4 {

/// Bodies are one straight line: whatever they are made of becomes part of them.
#define XFM_INLINE __attribute__((always_inline)) inline
#define XFM_INLINE_LAMBDA __attribute__((always_inline))

template <int... i, class Body>
XFM_INLINE void unrolled(std::integer_sequence<int, i...>, const Body& body) {
  (body(std::integral_constant<int, i>()), ...);
}
/// body(0), body(1), .. body(count - 1), each with its number as a constant.
template <int count, class Body>
XFM_INLINE void unrolled(const Body& body) {
  unrolled(std::make_integer_sequence<int, count>(), body);
}

/// One element at a time.
template <class T>
struct Scalar {
  using Element = T;
  using Value = T;
  static XFM_INLINE Value all(T x) { return x; }
};

/// As many elements at a time as a register holds.
template <class T>
struct Packed;

template <>
struct Packed<float> {
  using Element = float;
  using Value = __m128;
  static constexpr int lanes = 4;

  static XFM_INLINE Value all(float x) { return _mm_set1_ps(x); }
  static XFM_INLINE Value load(const float* p) { return _mm_load_ps(p); }
  static XFM_INLINE void store(float* p, Value v) { _mm_store_ps(p, v); }
  static XFM_INLINE Value load_any(const float* p) { return _mm_loadu_ps(p); }
  static XFM_INLINE void store_any(float* p, Value v) { _mm_storeu_ps(p, v); }
  static XFM_INLINE Value reversed(Value v) { return _mm_shuffle_ps(v, v, _MM_SHUFFLE(0, 1, 2, 3)); }
  static XFM_INLINE Value gather(const float* p, std::ptrdiff_t step) {
    return _mm_setr_ps(p[0], p[step], p[2 * step], p[3 * step]);
  }
  static XFM_INLINE void transpose(Value* v) { _MM_TRANSPOSE4_PS(v[0], v[1], v[2], v[3]); }
};

template <>
struct Packed<double> {
  using Element = double;
  using Value = __m128d;
  static constexpr int lanes = 2;

  static XFM_INLINE Value all(double x) { return _mm_set1_pd(x); }
  static XFM_INLINE Value load(const double* p) { return _mm_load_pd(p); }
  static XFM_INLINE void store(double* p, Value v) { _mm_store_pd(p, v); }
  static XFM_INLINE Value load_any(const double* p) { return _mm_loadu_pd(p); }
  static XFM_INLINE void store_any(double* p, Value v) { _mm_storeu_pd(p, v); }
  static XFM_INLINE Value reversed(Value v) { return _mm_shuffle_pd(v, v, 1); }
  static XFM_INLINE Value gather(const double* p, std::ptrdiff_t step) { return _mm_setr_pd(p[0], p[step]); }
  static XFM_INLINE void transpose(Value* v) {
    const Value low = _mm_unpacklo_pd(v[0], v[1]), high = _mm_unpackhi_pd(v[0], v[1]);
    v[0] = low;
    v[1] = high;
  }
};

/// A complex number, or as many as there are lanes.
template <class A>
struct Complex {
  typename A::Value re, im;
};

template <class A>
XFM_INLINE Complex<A> operator+(Complex<A> a, Complex<A> b) {
  return {a.re + b.re, a.im + b.im};
}
template <class A>
XFM_INLINE Complex<A> operator-(Complex<A> a, Complex<A> b) {
  return {a.re - b.re, a.im - b.im};
}
template <class A>
XFM_INLINE Complex<A> operator*(Complex<A> a, Complex<A> b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

}  // namespace xfm::dct4
