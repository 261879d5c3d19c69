// The widest registers of a target, for loops that fill any. Straight-line kernels use those of the
// vocabulary, which may be narrower: they seldom have enough equal operations, and wider shuffles cost more.
// What crosses lanes stays within each 128 bits, except in reversed.
#pragma once

#include "src/simd/simd.h"

namespace xfm {

#if defined(__AVX512F__)
inline constexpr int widest_register_bytes = 64;
#elif defined(__AVX2__)
inline constexpr int widest_register_bytes = 32;
#else
inline constexpr int widest_register_bytes = 16;
#endif

/// Stores past the caches, at multiples of the register's size. Later stores may overtake them, up to an
/// sfence.
struct Streaming {
  template <class V>
  XFM_INLINE static void store(Element<V>* p, V v) {
    if constexpr (sizeof(V) == 16)
      _mm_stream_si128(reinterpret_cast<__m128i*>(p), reinterpret_cast<__m128i>(v));
#ifdef __AVX2__
    if constexpr (sizeof(V) == 32)
      _mm256_stream_si256(reinterpret_cast<__m256i*>(p), reinterpret_cast<__m256i>(v));
#endif
#ifdef __AVX512F__
    if constexpr (sizeof(V) == 64)
      _mm512_stream_si512(reinterpret_cast<__m512i*>(p), reinterpret_cast<__m512i>(v));
#endif
  }
};

/// One register of the lanes of two.
template <class V>
XFM_INLINE static inline auto joined(V low, V high) {
  return [&]<int... lane>(std::integer_sequence<int, lane...>) XFM_INLINE {
    return __builtin_shufflevector(low, high, lane...);
  }
  (std::make_integer_sequence<int, 2 * lanes_of<V>>{});
}

/// The lanes in reverse order.
template <class V>
requires(sizeof(V) > 16) XFM_INLINE static inline V reversed(V v) {
  return [&]<int... lane>(std::integer_sequence<int, lane...>) XFM_INLINE {
    return __builtin_shufflevector(v, v, (lanes_of<V> - 1 - lane)...);
  }
  (std::make_integer_sequence<int, lanes_of<V>>{});
}

/// The same pick in each 128 bits: of these, the lanes of u count from 0, and those of v follow.
template <int... picks, class V>
XFM_INLINE static inline V permute_in_each(V u, V v) {
  constexpr int count = sizeof...(picks), of[] = {picks...};
  return [&]<int... lane>(std::integer_sequence<int, lane...>) XFM_INLINE {
    return __builtin_shufflevector(
        u, v, (lane / count * count + of[lane % count] % count + of[lane % count] / count * lanes_of<V>)...);
  }
  (std::make_integer_sequence<int, lanes_of<V>>{});
}

/// The transposition of registers of 128 bits, in each 128 bits.
template <class V>
requires(sizeof(V) > 16) XFM_INLINE static inline void transpose(V* v) {
  if constexpr (sizeof(Element<V>) == 8) {
    const V low = permute_in_each<0, 2>(v[0], v[1]), high = permute_in_each<1, 3>(v[0], v[1]);
    v[0] = low;
    v[1] = high;
  } else {
    const V low01 = permute_in_each<0, 4, 1, 5>(v[0], v[1]), high01 = permute_in_each<2, 6, 3, 7>(v[0], v[1]);
    const V low23 = permute_in_each<0, 4, 1, 5>(v[2], v[3]), high23 = permute_in_each<2, 6, 3, 7>(v[2], v[3]);
    v[0] = permute_in_each<0, 1, 4, 5>(low01, low23);
    v[1] = permute_in_each<2, 3, 6, 7>(low01, low23);
    v[2] = permute_in_each<0, 1, 4, 5>(high01, high23);
    v[3] = permute_in_each<2, 3, 6, 7>(high01, high23);
  }
}

}  // namespace xfm
