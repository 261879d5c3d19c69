// Moves of whole cache lines between two places, each with a policy such as Aligned or Unaligned: in the same
// order, or last element first.
#pragma once

#include "src/dct4/stages.h"

namespace xfm::dct4 {

template <class From, class To, class T>
XFM_INLINE inline void copy_line(const T* from, T* to) {
  using V = Widest<T>;
  for (int i = 0; i < line<T>; i += lanes_of<V>) To::store(to + i, From::template load<V>(from + i));
}

template <class From, class To, class T>
XFM_INLINE inline void copy_line_reversed(const T* from, T* to) {
  using V = Widest<T>;
  for (int i = 0; i < line<T>; i += lanes_of<V>)
    To::store(to + i, reversed(From::template load<V>(from + line<T> - lanes_of<V> - i)));
}

}  // namespace xfm::dct4
