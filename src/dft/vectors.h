// The vocabulary of the packed kernels: 128-bit registers of baseline x86-64. Addition, subtraction and
// multiplication are the compiler's own operators on these types.
#pragma once

#include <emmintrin.h>

/// A constant register in read-only memory, one for all kernels of the library.
#define XFM_CONSTANT __attribute__((visibility("hidden"))) const

namespace xfm {

using Pair = __m128d;  ///< one complex number of binary64 parts
using Quad = __m128;   ///< four lanes of binary32

/// How a body touches src and dst; the arithmetic is the same for both.
struct Aligned {
  static Pair load(const double* p) { return _mm_load_pd(p); }
  static Quad load(const float* p) { return _mm_load_ps(p); }
  static void store(double* p, Pair v) { _mm_store_pd(p, v); }
  static void store(float* p, Quad v) { _mm_store_ps(p, v); }
};
struct Unaligned {
  static Pair load(const double* p) { return _mm_loadu_pd(p); }
  static Quad load(const float* p) { return _mm_loadu_ps(p); }
  static void store(double* p, Pair v) { _mm_storeu_pd(p, v); }
  static void store(float* p, Quad v) { _mm_storeu_ps(p, v); }
};

/// The lanes change places.
inline Pair exchange(Pair v) { return _mm_shuffle_pd(v, v, 1); }

/// The sign of the low lane turns: after an exchange this multiplies by i.
inline Pair flip(Pair v) { return _mm_xor_pd(v, _mm_set_pd(0.0, -0.0)); }

/// The signs of the marked lanes turn.
template <int a, int b, int c, int d>
Quad flip(Quad v) {
  return _mm_xor_ps(v, _mm_setr_ps(a ? -0.0F : 0.0F, b ? -0.0F : 0.0F, c ? -0.0F : 0.0F, d ? -0.0F : 0.0F));
}

/// One complex number of binary32 parts, moved as eight bytes; aligned as its parts are.
using Half = double __attribute__((aligned(4), may_alias));

/// A complex number in the low half; the high half is zero.
inline Quad load_low(const float* p) {
  return reinterpret_cast<Quad>(Pair{*reinterpret_cast<const Half*>(p), 0});
}

/// Two complex numbers from two places.
inline Quad load_halves(const float* low, const float* high) {
  return reinterpret_cast<Quad>(
      Pair{*reinterpret_cast<const Half*>(low), *reinterpret_cast<const Half*>(high)});
}

inline void store_low(float* p, Quad v) { *reinterpret_cast<Half*>(p) = reinterpret_cast<Pair>(v)[0]; }
inline void store_high(float* p, Quad v) { *reinterpret_cast<Half*>(p) = reinterpret_cast<Pair>(v)[1]; }

/// Lanes a, b of u in the low half, lanes c, d of v in the high half.
template <int a, int b, int c, int d>
Quad shuffle(Quad u, Quad v) {
  return _mm_shuffle_ps(u, v, _MM_SHUFFLE(d, c, b, a));
}
inline Quad low_halves(Quad u, Quad v) { return _mm_movelh_ps(u, v); }     ///< u0 u1 v0 v1
inline Quad high_halves(Quad u, Quad v) { return _mm_movehl_ps(v, u); }    ///< u2 u3 v2 v3
inline Quad unpack_low(Quad u, Quad v) { return _mm_unpacklo_ps(u, v); }   ///< u0 v0 u1 v1
inline Quad unpack_high(Quad u, Quad v) { return _mm_unpackhi_ps(u, v); }  ///< u2 v2 u3 v3

}  // namespace xfm
