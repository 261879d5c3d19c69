// The registers of the Walsh-Hadamard kernels: how they reach memory, and how their lanes change places.
// Addition, subtraction and multiplication are the compiler's own operators on these types.
#pragma once

#include <emmintrin.h>

#include "src/frame/contract.h"

/// For the parts of a body, which is straight-line code. Nobody looks at that of an unoptimised build, and
/// forced inlining would make it take minutes.
#ifdef __OPTIMIZE__
#define XFM_INLINE __attribute__((always_inline))
#else
#define XFM_INLINE
#endif

namespace xfm::wht {

using Quad = float __attribute__((vector_size(16)));   ///< four elements of binary32
using Pair = double __attribute__((vector_size(16)));  ///< two elements of binary64

template <class V>
inline constexpr int lanes_of = 1;
template <>
inline constexpr int lanes_of<Quad> = 4;
template <>
inline constexpr int lanes_of<Pair> = 2;

/// One element a register: for lengths that fill no vector.
struct Single {
  template <class T>
  XFM_INLINE static T load(const T* p) {
    return *p;
  }
  template <class T>
  XFM_INLINE static void store(T* p, T v) {
    *p = v;
  }
};

struct Aligned {
  XFM_INLINE static Quad load(const float* p) { return _mm_load_ps(p); }
  XFM_INLINE static Pair load(const double* p) { return _mm_load_pd(p); }
  XFM_INLINE static void store(float* p, Quad v) { _mm_store_ps(p, v); }
  XFM_INLINE static void store(double* p, Pair v) { _mm_store_pd(p, v); }
};

/// Binary64 goes in halves, each of which is as aligned as an element is.
struct Unaligned {
  XFM_INLINE static Quad load(const float* p) { return _mm_loadu_ps(p); }
  XFM_INLINE static Pair load(const double* p) { return _mm_loadh_pd(_mm_load_sd(p), p + 1); }
  XFM_INLINE static void store(float* p, Quad v) { _mm_storeu_ps(p, v); }
  XFM_INLINE static void store(double* p, Pair v) {
    _mm_storel_pd(p, v);
    _mm_storeh_pd(p + 1, v);
  }
};

// Shuffles, each by the instruction that most units of recent cores can start: of the integer forms, which
// move the same bits, two start in a cycle where of those for floating point one does, and a move of a half
// goes to units that neither shuffles nor additions keep busy. That is up to a tenth of a whole kernel;
// compilers that are given intrinsics turn them back.

/// a0 b0 a1 b1
XFM_INLINE inline Quad interleave_low(Quad a, Quad b) {
  asm("punpckldq %1, %0" : "+x"(a) : "x"(b));
  return a;
}
/// a2 b2 a3 b3
XFM_INLINE inline Quad interleave_high(Quad a, Quad b) {
  asm("punpckhdq %1, %0" : "+x"(a) : "x"(b));
  return a;
}
/// The high half of a and the low half of b change places.
XFM_INLINE inline void exchange_halves(Quad& a, Quad& b) {
  Quad inner = a;
  asm("shufpd $1, %1, %0" : "+x"(inner) : "x"(b));  // high half of a, low half of b
  asm("movsd %1, %0" : "+x"(b) : "x"(inner));
  asm("movsd %1, %0" : "+x"(inner) : "x"(a));
  a = inner;
}
/// The same for two lanes, whose kernels gain nothing from moves.
XFM_INLINE inline void exchange_halves(Pair& a, Pair& b) {
  Pair low = a;
  asm("punpcklqdq %1, %0" : "+x"(low) : "x"(b));
  asm("punpckhqdq %1, %0" : "+x"(a) : "x"(b));
  b = a;
  a = low;
}

/// As many registers as they have lanes: what was lane j of register i becomes lane i of register j.
XFM_INLINE inline void transpose(Pair* v) { exchange_halves(v[0], v[1]); }
XFM_INLINE inline void transpose(Quad* v) {
  Quad low01 = interleave_low(v[0], v[1]), high01 = interleave_high(v[0], v[1]);
  Quad low23 = interleave_low(v[2], v[3]), high23 = interleave_high(v[2], v[3]);
  exchange_halves(low01, low23);
  exchange_halves(high01, high23);
  v[0] = low01;
  v[1] = low23;
  v[2] = high01;
  v[3] = high23;
}

}  // namespace xfm::wht
