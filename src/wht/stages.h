// Butterfly stages as straight-line code. The order in which an element is added up is part of the family's
// contract, since it fixes the rounding: ascending distance, the element at the lower index first. The order
// among elements is not: one half of the registers is finished before the other is loaded, and a result is
// passed on as soon as it is complete, so that few values are live at once.
#pragma once

#include "src/simd/simd.h"

namespace xfm::wht {

template <class V>
XFM_INLINE inline void butterfly(V& a, V& b) {
  const V sum = a + b;
  b = a - b;
  a = sum;
}

/// All stages of `count` registers: make(v, at) fills `leaf` of them, from number `at` on, and does the
/// stages within these.
template <int count, int leaf, class V, class Make>
XFM_INLINE inline void stages(V* v, Make make, int at = 0) {
  if constexpr (count == leaf) {
    make(v, at);
  } else {
    constexpr int half = count / 2;
    stages<half, leaf>(v, make, at);
    stages<half, leaf>(v + half, make, at + half);
    unrolled<half>([&](auto i) XFM_INLINE { butterfly(v[i], v[i + half]); });
  }
}

/// For registers that are filled already.
inline constexpr auto filled = [](auto*, int) XFM_INLINE {};

/// All stages of `count` registers, then take(i, register i) for every result.
template <int count, int leaf, class V, class Make, class Take>
XFM_INLINE inline void transform(Make make, Take take) {
  V v[count];
  if constexpr (count == leaf) {
    make(v, 0);
    unrolled<count>([&](auto i) XFM_INLINE { take(i, v[i]); });
  } else {
    constexpr int half = count / 2;
    stages<half, leaf>(v, make);
    stages<half, leaf>(v + half, make, half);
    unrolled<half>([&](auto i) XFM_INLINE {
      butterfly(v[i], v[i + half]);
      take(i, v[i]);
      take(i + half, v[i + half]);
    });
  }
}

/// The stage of this distance within a register. With the lanes of each pair exchanged and the sign of the
/// upper one flipped, one addition gives the sum below and the difference above: a - b is a + (-b), signed
/// zeros included; only the sign of a NaN may differ.
template <int distance, class V>
XFM_INLINE inline V stage_within(V v) {
  return [&]<int... lane>(std::integer_sequence<int, lane...>) XFM_INLINE {
    return __builtin_shufflevector(v, v, (lane ^ distance)...) + flip_signs<((lane & distance) != 0)...>(v);
  }
  (std::make_integer_sequence<int, lanes_of<V>>{});
}

/// All stages within a register.
template <class V, int distance = 1>
XFM_INLINE inline V stages_within(V v) {
  if constexpr (distance < lanes_of<V>)
    return stages_within<V, 2 * distance>(stage_within<distance>(v));
  else
    return v;
}

/// All stages of a group of `count` registers of adjacent elements. The low stages combine lanes of one
/// register, so a transposition makes registers of these lanes first, and another one restores them.
template <int count, class V>
XFM_INLINE inline void transposed_stages(V* v) {
  constexpr int width = lanes_of<V>, sets = count / width;
  V t[count];  // register i holds the elements i, i + count, i + 2 count, ...
  unrolled<sets>([&](auto set) XFM_INLINE {
    unrolled<width>([&](auto i) XFM_INLINE { t[set * width + i] = v[set + i * sets]; });
    transpose_by_integer_shuffles(t + set * width);
  });
  stages<count, 1>(t, filled);
  unrolled<sets>([&](auto set) XFM_INLINE {
    transpose_by_integer_shuffles(t + set * width);
    unrolled<width>([&](auto i) XFM_INLINE { v[set + i * sets] = t[set * width + i]; });
  });
  stages<count, sets>(v, filled);
}

}  // namespace xfm::wht
