// The vocabulary of baseline x86-64: 128-bit registers, SSE2. Every target offers these names, with register
// types of its own width. Addition, subtraction and multiplication are the compiler's operators on these
// types.
// Functions are static, so that the linker never merges the code of different targets.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>

#include "src/simd/straight_line.h"

namespace xfm {

inline constexpr int register_bytes = 16;

using f32x4 = float __attribute__((vector_size(register_bytes)));
using f64x2 = double __attribute__((vector_size(register_bytes)));

/// The widest register of T.
template <class T>
using Register = std::conditional_t<sizeof(T) == sizeof(float), f32x4, f64x2>;

/// What a value consists of: one scalar, or the lanes of a register.
template <class V>
struct ElementOf {
  using Type = V;
};
template <>
struct ElementOf<f32x4> {
  using Type = float;
};
template <>
struct ElementOf<f64x2> {
  using Type = double;
};
template <class V>
using Element = typename ElementOf<V>::Type;
template <class V>
inline constexpr int lanes_of = static_cast<int>(sizeof(V) / sizeof(Element<V>));

// ---- Memory.

/// Whether both pointers suit aligned accesses. A null pointer does: either body rejects it later.
static inline bool aligned(const void* src, const void* dst) {
  const auto bits = reinterpret_cast<std::uintptr_t>(src) | reinterpret_cast<std::uintptr_t>(dst);
  return bits % register_bytes == 0;
}

/// How a body reaches memory; its arithmetic is the same with each of these policies.
struct Aligned {
  static f32x4 load(const float* p) { return _mm_load_ps(p); }
  static f64x2 load(const double* p) { return _mm_load_pd(p); }
  static void store(float* p, f32x4 v) { _mm_store_ps(p, v); }
  static void store(double* p, f64x2 v) { _mm_store_pd(p, v); }
};
struct Unaligned {
  static f32x4 load(const float* p) { return _mm_loadu_ps(p); }
  static f64x2 load(const double* p) { return _mm_loadu_pd(p); }
  static void store(float* p, f32x4 v) { _mm_storeu_ps(p, v); }
  static void store(double* p, f64x2 v) { _mm_storeu_pd(p, v); }
};
/// Unaligned, but binary64 moves one element at a time, each aligned as an element is.
struct UnalignedByElements {
  static f32x4 load(const float* p) { return Unaligned::load(p); }
  static f64x2 load(const double* p) { return _mm_loadh_pd(_mm_load_sd(p), p + 1); }
  static void store(float* p, f32x4 v) { Unaligned::store(p, v); }
  static void store(double* p, f64x2 v) {
    _mm_storel_pd(p, v);
    _mm_storeh_pd(p + 1, v);
  }
};

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

/// Elements `step` apart.
static inline f32x4 gather(const float* p, std::ptrdiff_t step) {
  return f32x4{p[0], p[step], p[2 * step], p[3 * step]};
}
static inline f64x2 gather(const double* p, std::ptrdiff_t step) { return f64x2{p[0], p[step]}; }

// ---- Lanes.

static inline f32x4 broadcast(float x) { return f32x4{x, x, x, x}; }
static inline f64x2 broadcast(double x) { return f64x2{x, x}; }

/// Flips the signs of the lanes that are marked by 1.
template <int a, int b, int c, int d>
static inline f32x4 flip_signs(f32x4 v) {
  return _mm_xor_ps(v, f32x4{a ? -0.0F : 0.0F, b ? -0.0F : 0.0F, c ? -0.0F : 0.0F, d ? -0.0F : 0.0F});
}
template <int a, int b>
static inline f64x2 flip_signs(f64x2 v) {
  return _mm_xor_pd(v, f64x2{a ? -0.0 : 0.0, b ? -0.0 : 0.0});
}

/// Picks lanes in one instruction: the lanes of u count from 0, and those of v follow. Picks that would take
/// more than one instruction do not compile.
template <int a, int b, int c, int d>
static inline f32x4 permute(f32x4 u, f32x4 v) {
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
    static_assert(0 <= a && a < 4 && 0 <= b && b < 4 && 4 <= c && c < 8 && 4 <= d && d < 8,
                  "more than one instruction");
    return _mm_shuffle_ps(u, v, _MM_SHUFFLE(d - 4, c - 4, b, a));
  }
}
template <int a, int b>
static inline f64x2 permute(f64x2 u, f64x2 v) {
  static_assert(0 <= a && a < 2 && 2 <= b && b < 4, "more than one instruction");
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

// The same by instructions that more execution units accept, for code that is mostly shuffles and additions.
// Intel's cores can start two integer shuffles in a cycle, but only one in floating point, though both move
// the same bits; and a move of half a register goes to units that neither shuffles nor additions keep busy.
// This gains up to a tenth of a whole Walsh-Hadamard kernel. It is written in assembler because compilers
// convert the intrinsics back into the usual forms.

/// a0 b0 a1 b1
XFM_INLINE static inline f32x4 interleave_low(f32x4 a, f32x4 b) {
  asm("punpckldq %1, %0" : "+x"(a) : "x"(b));
  return a;
}
/// a2 b2 a3 b3
XFM_INLINE static inline f32x4 interleave_high(f32x4 a, f32x4 b) {
  asm("punpckhdq %1, %0" : "+x"(a) : "x"(b));
  return a;
}
/// The high half of a and the low half of b change places.
XFM_INLINE static inline void exchange_halves(f32x4& a, f32x4& b) {
  f32x4 inner = a;
  asm("shufpd $1, %1, %0" : "+x"(inner) : "x"(b));  // high half of a, low half of b
  asm("movsd %1, %0" : "+x"(b) : "x"(inner));
  asm("movsd %1, %0" : "+x"(inner) : "x"(a));
  a = inner;
}
/// The same for two lanes, where moves gain nothing.
XFM_INLINE static inline void exchange_halves(f64x2& a, f64x2& b) {
  f64x2 low = a;
  asm("punpcklqdq %1, %0" : "+x"(low) : "x"(b));
  asm("punpckhqdq %1, %0" : "+x"(a) : "x"(b));
  b = a;
  a = low;
}

XFM_INLINE static inline void transpose_by_integer_shuffles(f64x2* v) { exchange_halves(v[0], v[1]); }
XFM_INLINE static inline void transpose_by_integer_shuffles(f32x4* v) {
  f32x4 low01 = interleave_low(v[0], v[1]), high01 = interleave_high(v[0], v[1]);
  f32x4 low23 = interleave_low(v[2], v[3]), high23 = interleave_high(v[2], v[3]);
  exchange_halves(low01, low23);
  exchange_halves(high01, high23);
  v[0] = low01;
  v[1] = low23;
  v[2] = high01;
  v[3] = high23;
}

}  // namespace xfm
