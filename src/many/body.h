// What batch kernels are written in: vectors that hold one number of each transform.
#pragma once

#include "src/many/row.h"
#include "src/simd/conversions.h"

namespace xfm::many {

template <class V>
XFM_INLINE static inline V load(const char* p) {
  V v;
  __builtin_memcpy(&v, p, sizeof v);
  return v;
}
template <class V>
XFM_INLINE static inline void store(char* p, V v) {
  __builtin_memcpy(p, &v, sizeof v);
}

// Complex numbers in two registers, side by side in memory. They are taken apart within blocks of 128 bits,
// which one instruction does, so real and imaginary parts are in another order than the numbers, but both in
// the same.

template <class V>
XFM_INLINE static inline V real_parts(V a, V b) {
  return even_lanes(a, b);
}
template <class V>
XFM_INLINE static inline V imaginary_parts(V a, V b) {
  return odd_lanes(a, b);
}
template <class V>
XFM_INLINE static inline void store_complex(char* p, V re, V im) {
  store(p, interleaved_low(re, im));
  store(p + sizeof(V), interleaved_high(re, im));
}

}  // namespace xfm::many
