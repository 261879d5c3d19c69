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

/// Contiguous transforms of binary32 complex numbers, one for each lane of V: element k of all of them in two
/// registers, as above, and back.
template <class V>
class Contiguous {
 public:
  Contiguous(Address first, Address distance)
      : first_(first), once_(distance), thrice_(3 * distance), five_(5 * distance), seven_(7 * distance) {}

  /// The next transforms.
  void advance() { first_ += lanes_of<V> * once_; }

  /// Of two registers the first or the second. From single numbers at once: of blocks g++ copies each.
  template <int i>
  XFM_INLINE V load(int k) const {
    return [&]<int... n>(std::integer_sequence<int, n...>) XFM_INLINE {
      return reinterpret_cast<V>(Numbers{many::load<double>(at<transform(n / 2, i) + n % 2>(k))...});
    }
    (std::make_integer_sequence<int, lanes_of<Numbers>>{});
  }
  XFM_INLINE void store(int k, V re, V im) const {
    store<0>(k, interleaved_low(re, im));
    store<1>(k, interleaved_high(re, im));
  }

 private:
  static constexpr int bytes = 8;
  using Numbers = Vector<double, sizeof(V) / bytes>;  // each in the bits of one binary64

  // Block q of register i has this transform's number and the next one's.
  static constexpr int transform(int q, int i) { return (2 * q + i) * 2; }

  // Processors add a register to an address once, twice or four times, which leaves three more.
  template <int t>
  XFM_INLINE char* at(int k) const {
    const Address distance = t == 3 || t == 6 ? t / 3 * thrice_
                             : t == 5         ? five_
                             : t == 7         ? seven_
                                              : t * once_;
    return reinterpret_cast<char*>(first_ + distance) + k * bytes;
  }

  template <int i>
  XFM_INLINE void store(int k, V v) const {
    unrolled<lanes_of<Numbers> / 2>([&](auto q) XFM_INLINE {
      const auto block = part_of<f64x2, q>(reinterpret_cast<Numbers>(v));
      many::store(at<transform(q, i)>(k), block[0]);
      many::store(at<transform(q, i) + 1>(k), block[1]);
    });
  }

  Address first_, once_, thrice_, five_, seven_;
};

}  // namespace xfm::many
