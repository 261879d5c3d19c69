// Moves of whole cache lines between two places, each with a policy such as Aligned or Unaligned: in the same
// order, or last element first.
#pragma once

#include "src/dct4/stages.h"
#include "src/simd/simd.h"

namespace xfm::dct4 {

template <class From, class To, class T>
XFM_INLINE inline void copy_line(const T* from, T* to) {
  constexpr int lanes = group_size<T>;
  for (int i = 0; i < line<T>; i += lanes) To::store(to + i, From::load(from + i));
}

template <class From, class To, class T>
XFM_INLINE inline void copy_line_reversed(const T* from, T* to) {
  constexpr int lanes = group_size<T>;
  for (int i = 0; i < line<T>; i += lanes)
    To::store(to + i, reversed(From::load(from + line<T> - lanes - i)));
}

}  // namespace xfm::dct4
