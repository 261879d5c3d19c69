// Vectors of any width and their conversions, without the headers of all instructions: these take longer to
// read than most batch kernels to compile.
#pragma once

#include "src/simd/registers.h"

namespace xfm {

using f32x8 = Vector<float, 8>;
using f64x4 = Vector<double, 4>;
using f64x8 = Vector<double, 8>;

/// Lanes of two vectors, picked alike in every block of 128 bits: Pick()(l) is the lane for lane l of a
/// block; the lanes of a's block count from 0, and those of b's follow.
template <class Pick, class V>
XFM_INLINE static inline V in_blocks(V a, V b) {
  constexpr int lanes = lanes_of<V>, block = 16 / sizeof(Element<V>);
  constexpr Pick pick{};
  return [&]<int... l>(std::integer_sequence<int, l...>) XFM_INLINE {
    return __builtin_shufflevector(
        a, b, (l / block * block + pick(l % block) % block + pick(l % block) / block * lanes)...);
  }
  (std::make_integer_sequence<int, lanes>{});
}

struct Even {
  constexpr int operator()(int l) const { return 2 * l; }
};
struct Odd {
  constexpr int operator()(int l) const { return 2 * l + 1; }
};
/// From the two vectors in turn, from lane `first` of a block on.
template <int block, int first>
struct InTurn {
  constexpr int operator()(int l) const { return first + l / 2 + l % 2 * block; }
};

template <class V>
XFM_INLINE static inline V even_lanes(V a, V b) {
  return in_blocks<Even>(a, b);
}
template <class V>
XFM_INLINE static inline V odd_lanes(V a, V b) {
  return in_blocks<Odd>(a, b);
}
/// a0 b0 a1 b1 .. in every block, of its lower or its upper half.
template <class V>
XFM_INLINE static inline V interleaved_low(V a, V b) {
  return in_blocks<InTurn<16 / sizeof(Element<V>), 0>>(a, b);
}
template <class V>
XFM_INLINE static inline V interleaved_high(V a, V b) {
  constexpr int block = 16 / sizeof(Element<V>);
  return in_blocks<InTurn<block, block / 2>>(a, b);
}

/// Both vectors in one.
template <class V>
XFM_INLINE static inline auto concatenated(V low, V high) {
  return [&]<int... l>(std::integer_sequence<int, l...>) XFM_INLINE {
    return __builtin_shufflevector(low, high, l...);
  }
  (std::make_integer_sequence<int, 2 * lanes_of<V>>{});
}
/// As many lanes as W has, from the lane part * lanes_of<W> on.
template <class W, int part, class V>
XFM_INLINE static inline auto part_of(V v) {
  return [&]<int... l>(std::integer_sequence<int, l...>) XFM_INLINE {
    return __builtin_shufflevector(v, v, (part * lanes_of<W> + l)...);
  }
  (std::make_integer_sequence<int, lanes_of<W>>{});
}

// Between the precisions, each by one instruction under the name that the compiler has for it: g++ makes
// several of a general conversion.
#ifdef __clang__
XFM_INLINE static inline f64x2 to_binary64(f32x4 v, f64x2) {
  return __builtin_convertvector(__builtin_shufflevector(v, v, 0, 1), f64x2);
}
#else
XFM_INLINE static inline f64x2 to_binary64(f32x4 v, f64x2) { return __builtin_ia32_cvtps2pd(v); }
#endif
XFM_INLINE static inline f32x4 to_binary32(f64x2 v) { return __builtin_ia32_cvtpd2ps(v); }
#ifdef __AVX__
#ifdef __clang__
XFM_INLINE static inline f64x4 to_binary64(f32x4 v, f64x4) { return __builtin_convertvector(v, f64x4); }
#else
XFM_INLINE static inline f64x4 to_binary64(f32x4 v, f64x4) { return __builtin_ia32_cvtps2pd256(v); }
#endif
XFM_INLINE static inline f32x4 to_binary32(f64x4 v) { return __builtin_ia32_cvtpd2ps256(v); }
#endif
#ifdef __AVX512F__
#ifdef __clang__
XFM_INLINE static inline f64x8 to_binary64(f32x8 v, f64x8) { return __builtin_convertvector(v, f64x8); }
XFM_INLINE static inline f32x8 to_binary32(f64x8 v) { return __builtin_convertvector(v, f32x8); }
#else
inline constexpr unsigned char all_lanes = 0xff;
inline constexpr int current_rounding = 4;
XFM_INLINE static inline f64x8 to_binary64(f32x8 v, f64x8) {
  return __builtin_ia32_cvtps2pd512_mask(v, f64x8{}, static_cast<char>(all_lanes), current_rounding);
}
XFM_INLINE static inline f32x8 to_binary32(f64x8 v) {
  return __builtin_ia32_cvtpd2ps512_mask(v, f32x8{}, static_cast<char>(all_lanes), current_rounding);
}
#endif
#endif

/// Part `part` of v in binary64, where v has as many lanes as one or two registers W.
template <class W, int part, class V>
XFM_INLINE static inline W widened_part(V v) {
  constexpr int lanes = lanes_of<W>;
  if constexpr (lanes == lanes_of<V>) {
    return to_binary64(v, W{});
  } else if constexpr (lanes == 2) {
    return to_binary64(part == 0 ? v : __builtin_shufflevector(v, v, 2, 3, 6, 7), W{});
  } else {
    return to_binary64(part_of<W, part>(v), W{});
  }
}
/// One or two registers in binary32.
template <class V, class W>
XFM_INLINE static inline V narrowed_parts(W w) {
  return to_binary32(w);
}
template <class V, class W>
XFM_INLINE static inline V narrowed_parts(W low, W high) {
  if constexpr (lanes_of<W> == 2) {
    return __builtin_shufflevector(to_binary32(low), to_binary32(high), 0, 1, 4, 5);
  } else {
    return concatenated(to_binary32(low), to_binary32(high));
  }
}

}  // namespace xfm
