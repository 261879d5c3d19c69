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

// ---- What clang must not see through.

/// v, as a value of unknown origin. Where a part of a register goes on by itself, clang computes that part
/// once more rather than extract it, if the operands come in parts too; and where halves are added, it adds
/// whole registers. Naming the register takes no instruction, at most a copy.
template <class V>
XFM_INLINE static inline V opaque(V v) {
#ifdef __clang__
  asm("" : "+v"(v));
#endif
  return v;
}

// ---- Halves.

static inline f32x4 low_half(f32x8 v) { return _mm256_castps256_ps128(v); }
static inline f64x2 low_half(f64x4 v) { return _mm256_castpd256_pd128(v); }
static inline f32x4 high_half(f32x8 v) { return _mm256_extractf128_ps(v, 1); }
static inline f64x2 high_half(f64x4 v) { return _mm256_extractf128_pd(v, 1); }
static inline f32x8 joined(f32x4 low, f32x4 high) { return opaque(_mm256_set_m128(high, low)); }
static inline f64x4 joined(f64x2 low, f64x2 high) { return opaque(_mm256_set_m128d(high, low)); }

// ---- Numbers from anywhere in memory.

/// The rest of the register is zero. Of f32x4{*p, *q, 0, 0} g++ clears the upper half once more.
static inline f32x4 load_scalars(const float* p, const float* q) {
  f32x4 v = _mm_load_ss(p);
  v[1] = *q;
  return v;
}
static inline f32x4 load_scalars(const float* p, const float* q, const float* r, const float* s) {
  return _mm_movelh_ps(load_scalars(p, q), load_scalars(r, s));
}
static inline f64x2 load_scalars(const double* p, const double* q) { return _mm_loadh_pd(_mm_load_sd(p), q); }

/// Each in two lanes; one alone in all.
static inline f32x4 load_doubled(const float* p) { return _mm_broadcast_ss(p); }
static inline f32x4 load_doubled(const float* p, const float* q) {
  return _mm_blend_ps(_mm_broadcast_ss(p), _mm_broadcast_ss(q), 0b1100);
}
static inline f64x2 load_doubled(const double* p) { return _mm_loaddup_pd(p); }

// ---- Complex numbers of binary32 parts.

/// Complex number j of the register.
template <int j>
static inline void store_complex(float* p, f32x8 v) {
  store_complex<j % 2>(p, j < 2 ? low_half(v) : high_half(v));
}

// ---- Complex numbers of binary64 parts.

template <int j>
static inline void store_complex(double* p, f64x4 v) {
  Unaligned::store(p, j == 0 ? low_half(v) : high_half(v));
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

/// Whether each lane stays where it is, in one register or the other.
template <int... picks>
constexpr bool blends() {
  int l = -1;
  return ((++l, picks < 0 || picks % static_cast<int>(sizeof...(picks)) == l) && ...);
}
/// Whether the low or the high lanes are half a register as it is.
template <int... picks>
constexpr bool joins() {
  constexpr int half = sizeof...(picks) / 2, all[] = {picks...};
  const auto moves_together = [&](const int* lanes) {
    bool together = half > 1 && lanes[0] >= 0 && lanes[0] % half == 0;
    for (int l = 1; l < half; ++l) together = together && (lanes[l] < 0 || lanes[l] == lanes[0] + l);
    return together;
  };
  return moves_together(all) || moves_together(all + half);
}

/// Picks any lanes of two registers: those of u count from 0, and those of v follow; -1 for lanes that may
/// hold anything. Compilers find the instruction for every pick that takes only one. But a choice between a
/// product and its operand is one product with other constants to clang.
template <int... picks, class V>
static inline auto permute(V u, V v) {
  if constexpr (blends<picks...>() && sizeof...(picks) == lanes_of<V> && sizeof(V) > 16) {
    return __builtin_shufflevector(opaque(u), v, picks...);
  } else if constexpr (sizeof...(picks) < lanes_of<V> || joins<picks...>()) {
    return opaque(__builtin_shufflevector(u, v, picks...));
  } else {
    return __builtin_shufflevector(u, v, picks...);
  }
}

/// Lane l by itself. Of operations on lanes alone clang would make one on the registers.
template <int l, class V>
static inline Element<V> lane(V v) {
  return opaque(opaque(v)[l]);
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
template <class V>
static inline V in_low_lanes(f32x4 v) {
  return _mm256_castps128_ps256(v);
}

/// a - b in even lanes, a + b in odd ones.
static inline f64x2 subtract_add(f64x2 a, f64x2 b) { return _mm_addsub_pd(a, b); }
static inline f64x4 subtract_add(f64x4 a, f64x4 b) { return _mm256_addsub_pd(a, b); }
static inline f32x4 subtract_add(f32x4 a, f32x4 b) { return _mm_addsub_ps(a, b); }
static inline f32x8 subtract_add(f32x8 a, f32x8 b) { return _mm256_addsub_ps(a, b); }

// ---- Between the precisions.

/// The low lanes as V.
template <class V>
static inline V widened(f32x4 v) {
  if constexpr (lanes_of<V> == 2) {
    return _mm_cvtps_pd(v);
  } else {
    return _mm256_cvtps_pd(v);
  }
}
template <class V>
static inline V widened(float x) {
  return x;
}

/// The upper lanes are zero where there are fewer than four.
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
