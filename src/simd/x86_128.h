// Registers of 128 bits by instructions that every x86-64 processor has.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>

#include "src/simd/registers.h"

namespace xfm {

/// Whether both pointers suit aligned accesses. A null pointer does: either body rejects it later.
static inline bool aligned(const void* src, const void* dst) {
  const auto bits = reinterpret_cast<std::uintptr_t>(src) | reinterpret_cast<std::uintptr_t>(dst);
  return bits % sizeof(f32x4) == 0;
}

/// A complex number of binary32 parts, moved as eight bytes; aligned as its parts are.
using ComplexBytes = double __attribute__((aligned(4), may_alias));

/// Complex numbers from one or two places; the rest of the register is zero.
static inline f32x4 load_complex(const float* p) {
  return reinterpret_cast<f32x4>(f64x2{*reinterpret_cast<const ComplexBytes*>(p), 0});
}
static inline f32x4 load_complex(const float* p, const float* q) {
  return reinterpret_cast<f32x4>(
      f64x2{*reinterpret_cast<const ComplexBytes*>(p), *reinterpret_cast<const ComplexBytes*>(q)});
}

/// Complex number j of the register.
template <int j>
static inline void store_complex(float* p, f32x4 v) {
  *reinterpret_cast<ComplexBytes*>(p) = reinterpret_cast<f64x2>(v)[j];
}

/// Flips the signs of the lanes that are marked by 1.
template <int a, int b, int c, int d>
static inline f32x4 flip_signs(f32x4 v) {
  return _mm_xor_ps(v, f32x4{a ? -0.0F : 0.0F, b ? -0.0F : 0.0F, c ? -0.0F : 0.0F, d ? -0.0F : 0.0F});
}
template <int a, int b>
static inline f64x2 flip_signs(f64x2 v) {
  return _mm_xor_pd(v, f64x2{a ? -0.0 : 0.0, b ? -0.0 : 0.0});
}

/// Picks lanes in one instruction: the lanes of u count from 0, and those of v follow. Other picks are left
/// to wider vocabularies.
template <int a, int b, int c, int d>
requires((a == 0 && b == 4 && c == 1 && d == 5) || (a == 2 && b == 6 && c == 3 && d == 7) ||
         (0 <= a && a < 4 && 0 <= b && b < 4 && 4 <= c && c < 8 && 4 <= d && d < 8)) static inline f32x4
    permute(f32x4 u, f32x4 v) {
  constexpr auto picks = [](int e, int f, int g, int h) { return a == e && b == f && c == g && d == h; };
  if constexpr (picks(0, 1, 4, 5)) {
    return _mm_movelh_ps(u, v);
  } else if constexpr (picks(2, 3, 6, 7)) {
    return _mm_movehl_ps(v, u);
  } else if constexpr (picks(0, 4, 1, 5)) {
    return _mm_unpacklo_ps(u, v);
  } else if constexpr (picks(2, 6, 3, 7)) {
    return _mm_unpackhi_ps(u, v);
  } else {
    return _mm_shuffle_ps(u, v, _MM_SHUFFLE(d - 4, c - 4, b, a));
  }
}
template <int a, int b>
requires(0 <= a && a < 2 && 2 <= b && b < 4) static inline f64x2 permute(f64x2 u, f64x2 v) {
  return _mm_shuffle_pd(u, v, _MM_SHUFFLE2(b - 2, a));
}

/// The lanes in reverse order.
static inline f32x4 reversed(f32x4 v) { return permute<3, 2, 5, 4>(v, v); }
static inline f64x2 reversed(f64x2 v) { return permute<1, 2>(v, v); }

/// As many registers as they have lanes: what was lane j of register i becomes lane i of register j.
static inline void transpose(f64x2* v) {
  const f64x2 low = permute<0, 2>(v[0], v[1]), high = permute<1, 3>(v[0], v[1]);
  v[0] = low;
  v[1] = high;
}
static inline void transpose(f32x4* v) {
  const f32x4 low01 = permute<0, 4, 1, 5>(v[0], v[1]), high01 = permute<2, 6, 3, 7>(v[0], v[1]);
  const f32x4 low23 = permute<0, 4, 1, 5>(v[2], v[3]), high23 = permute<2, 6, 3, 7>(v[2], v[3]);
  v[0] = permute<0, 1, 4, 5>(low01, low23);
  v[1] = permute<2, 3, 6, 7>(low01, low23);
  v[2] = permute<0, 1, 4, 5>(high01, high23);
  v[3] = permute<2, 3, 6, 7>(high01, high23);
}

}  // namespace xfm
