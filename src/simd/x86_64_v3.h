// The vocabulary of x86-64-v3 and v4: registers of 128 and of 256 bits.
#pragma once

#include <immintrin.h>

#include "src/simd/x86_64.h"

namespace xfm {

using f32x8 = float __attribute__((vector_size(32)));
using f64x4 = double __attribute__((vector_size(32)));

template <>
struct ElementOf<f32x8> {
  using Type = float;
};
template <>
struct ElementOf<f64x4> {
  using Type = double;
};

// ---- Memory, aligned as its elements are.

template <class V>
static inline V load(const Element<V>* p) {
  using AtElement = V __attribute__((aligned(alignof(Element<V>)), may_alias));
  return *reinterpret_cast<const AtElement*>(p);
}
template <class V>
static inline void store(Element<V>* p, V v) {
  using AtElement = V __attribute__((aligned(alignof(Element<V>)), may_alias));
  *reinterpret_cast<AtElement*>(p) = v;
}
static inline f64x4 load_complex(const double* p, const double* q) {
  return _mm256_insertf128_pd(_mm256_castpd128_pd256(load<f64x2>(p)), load<f64x2>(q), 1);
}
template <int j>
static inline void store_complex(double* p, f64x2 v) {
  store<f64x2>(p, v);
}
template <int j>
static inline void store_complex(double* p, f64x4 v) {
  store<f64x2>(p, _mm256_extractf128_pd(v, j));
}

// ---- Lanes.

template <class V, class T>
static inline V broadcast(T x) {
  if constexpr (std::is_arithmetic_v<V>) {
    return V{x};
  } else {
    return [&]<int... i>(std::integer_sequence<int, i...>) {
      return V{(static_cast<void>(i), static_cast<Element<V>>(x))...};
    }(std::make_integer_sequence<int, lanes_of<V>>{});
  }
}

/// Any lanes of two registers; -1 for idle ones.
template <int... picks, class V>
static inline auto permute(V u, V v) {
  return __builtin_shufflevector(u, v, picks...);
}

/// A value in the low lanes of a wider register.
template <class V>
static inline V in_low_lanes(Element<V> x) {
  return V{x};
}
template <class V>
static inline V in_low_lanes(f64x2 v) {
  return _mm256_castpd128_pd256(v);
}

/// a - b in even lanes, a + b in odd ones.
static inline f64x2 subtract_add(f64x2 a, f64x2 b) { return _mm_addsub_pd(a, b); }
static inline f64x4 subtract_add(f64x4 a, f64x4 b) { return _mm256_addsub_pd(a, b); }
static inline f32x4 subtract_add(f32x4 a, f32x4 b) { return _mm_addsub_ps(a, b); }
static inline f32x8 subtract_add(f32x8 a, f32x8 b) { return _mm256_addsub_ps(a, b); }

template <int a, int b, int c, int d>
static inline f64x4 flip_signs(f64x4 v) {
  return _mm256_xor_pd(v, f64x4{a ? -0.0 : 0.0, b ? -0.0 : 0.0, c ? -0.0 : 0.0, d ? -0.0 : 0.0});
}

// ---- Precisions.

template <class V>
static inline V widened(f32x4 v) {
  if constexpr (sizeof(V) == 16) {
    return _mm_cvtps_pd(v);
  } else {
    return _mm256_cvtps_pd(v);
  }
}
template <class V>
static inline V widened(float x) {
  return x;
}
template <class V>
static inline V narrowed(f64x2 v) {
  return _mm_cvtpd_ps(v);
}
template <class V>
static inline V narrowed(f64x4 v) {
  return _mm256_cvtpd_ps(v);
}
template <class V>
static inline V narrowed(double x) {
  return static_cast<float>(x);
}

}  // namespace xfm
