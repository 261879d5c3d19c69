// The vocabulary of baseline x86-64: 128-bit registers, SSE2. Every target offers these names, with register
// types of its own width.
#pragma once

#include "src/simd/x86_128.h"

namespace xfm {

inline constexpr int register_bytes = 16;
/// Whether one body serves aligned and unaligned memory.
#define XFM_UNALIGNED_IS_FREE 0

/// The widest register of T.
template <class T>
using Register = Vector<T, register_bytes / sizeof(T)>;

/// Unaligned, but binary64 moves one element at a time, each aligned as an element is.
struct UnalignedByElements {
  template <class V = f32x4>
  static V load(const float* p) {
    return Unaligned::load<V>(p);
  }
  template <class V = f64x2>
  static V load(const double* p) {
    return _mm_loadh_pd(_mm_load_sd(p), p + 1);
  }
  static void store(float* p, f32x4 v) { Unaligned::store(p, v); }
  static void store(double* p, f64x2 v) {
    _mm_storel_pd(p, v);
    _mm_storeh_pd(p + 1, v);
  }
};

// Transposition by instructions that more execution units accept, for code that is mostly shuffles and
// additions. Intel's cores can start two integer shuffles in a cycle, but only one in floating point, though
// both move the same bits; and a move of half a register goes to units that neither shuffles nor additions
// keep busy. This gains up to a tenth of a whole Walsh-Hadamard kernel. It is written in assembler because
// compilers convert the intrinsics back into the usual forms.

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
