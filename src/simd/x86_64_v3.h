// The vocabulary of x86-64-v3: 256-bit registers beside those of 128 bits, AVX2. Unaligned accesses cost
// nothing here, unless they cross a cache line.
#pragma once

#include <immintrin.h>

#include "src/simd/x86_128.h"

namespace xfm {

inline constexpr int register_bytes = 32;
/// Whether one body serves aligned and unaligned memory.
#define XFM_UNALIGNED_IS_FREE 1

using f32x8 = Vector<float, 8>;
using f64x4 = Vector<double, 4>;

/// The widest register of T.
template <class T>
using Register = Vector<T, register_bytes / sizeof(T)>;

// ---- Halves.

static inline f32x4 low_half(f32x8 v) { return _mm256_castps256_ps128(v); }
static inline f64x2 low_half(f64x4 v) { return _mm256_castpd256_pd128(v); }
static inline f32x4 high_half(f32x8 v) { return _mm256_extractf128_ps(v, 1); }
static inline f64x2 high_half(f64x4 v) { return _mm256_extractf128_pd(v, 1); }
static inline f32x8 joined(f32x4 low, f32x4 high) { return _mm256_set_m128(high, low); }
static inline f64x4 joined(f64x2 low, f64x2 high) { return _mm256_set_m128d(high, low); }

// ---- Complex numbers of binary32 parts.

/// From three or four places; the rest of the register is zero.
static inline f32x8 load_complex(const float* p, const float* q, const float* r) {
  return joined(load_complex(p, q), load_complex(r));
}
static inline f32x8 load_complex(const float* p, const float* q, const float* r, const float* s) {
  return joined(load_complex(p, q), load_complex(r, s));
}

/// Complex number j of the register.
template <int j>
static inline void store_complex(float* p, f32x8 v) {
  store_complex<j % 2>(p, j < 2 ? low_half(v) : high_half(v));
}

// ---- Lanes.

/// Flips the signs of the lanes that are marked by 1.
template <int a, int b, int c, int d, int e, int f, int g, int h>
static inline f32x8 flip_signs(f32x8 v) {
  constexpr float zeros[] = {0.0F, -0.0F};
  return _mm256_xor_ps(v,
                       f32x8{zeros[a], zeros[b], zeros[c], zeros[d], zeros[e], zeros[f], zeros[g], zeros[h]});
}
template <int a, int b, int c, int d>
static inline f64x4 flip_signs(f64x4 v) {
  constexpr double zeros[] = {0.0, -0.0};
  return _mm256_xor_pd(v, f64x4{zeros[a], zeros[b], zeros[c], zeros[d]});
}

/// Picks lanes: those of u count from 0, and those of v follow. Compilers find the instruction for every pick
/// that takes only one.
template <int a, int b, int c, int d>
static inline f64x4 permute(f64x4 u, f64x4 v) {
  return __builtin_shufflevector(u, v, a, b, c, d);
}
template <int a, int b, int c, int d, int e, int f, int g, int h>
static inline f32x8 permute(f32x8 u, f32x8 v) {
  return __builtin_shufflevector(u, v, a, b, c, d, e, f, g, h);
}

// ---- Between the precisions.

static inline f64x4 widen(f32x4 v) { return _mm256_cvtps_pd(v); }
static inline f64x2 widen_low(f32x4 v) { return _mm_cvtps_pd(v); }
static inline f32x4 narrow(f64x4 v) { return _mm256_cvtpd_ps(v); }
/// The upper lanes are zero.
static inline f32x4 narrow(f64x2 v) { return _mm_cvtpd_ps(v); }

}  // namespace xfm
