// Moves of whole cache lines, between any address and one that is aligned: in the same order, or last element
// first.
#pragma once

#include "src/dct4/arithmetic.h"
#include "src/dct4/stages.h"

namespace xfm::dct4 {

template <class T>
XFM_INLINE void load_line(const T* from, T* to) {
  using P = Packed<T>;
  for (int i = 0; i < line<T>; i += P::lanes) P::store(to + i, P::load_any(from + i));
}

template <class T>
XFM_INLINE void load_line_reversed(const T* from, T* to) {
  using P = Packed<T>;
  for (int i = 0; i < line<T>; i += P::lanes)
    P::store(to + i, P::reversed(P::load_any(from + line<T> - P::lanes - i)));
}

template <class T>
XFM_INLINE void store_line(const T* from, T* to) {
  using P = Packed<T>;
  for (int i = 0; i < line<T>; i += P::lanes) P::store_any(to + i, P::load(from + i));
}

template <class T>
XFM_INLINE void store_line_reversed(const T* from, T* to) {
  using P = Packed<T>;
  for (int i = 0; i < line<T>; i += P::lanes)
    P::store_any(to + i, P::reversed(P::load(from + line<T> - P::lanes - i)));
}

}  // namespace xfm::dct4
