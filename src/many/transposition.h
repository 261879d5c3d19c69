// How transforms get into lanes and back: elements of several transforms, wherever they are, to and from an
// area in which the lanes of an element are side by side.
#pragma once

#include <cstdint>

#include "src/many/body.h"

namespace xfm::many {

/// Between transforms and lanes, of elements of type E.
template <class E, int lanes>
class Transposition {
  static constexpr int bytes = sizeof(E);

 public:
  /// From an element of the area to the next.
  static constexpr int pitch = bytes * lanes;

  /// Where the transforms of a group begin.
  struct Addresses {
    Address of[lanes];
  };

  /// `size` elements of each transform, `stride` bytes apart, from these addresses into the area.
  static void gather(const Addresses& transforms, Address stride, int size, char* area) {
    if (stride != bytes || size < tile) {
      for (int k = 0; k < size; ++k) {
        for (int t = 0; t < lanes; ++t)
          __builtin_memcpy(area + k * pitch + t * bytes, pointer(transforms.of[t] + place(k) * stride),
                           bytes);
      }
      return;
    }
    each_tile(size, [&](int k) XFM_INLINE {
      each_register([&](int set) XFM_INLINE {
        V v[tile];
        unrolled<tile>([&](auto i)
                           XFM_INLINE { v[i] = load_blocks<i>(transforms.of + set, place(k) * bytes); });
        transpose(v);
        unrolled<tile>([&](auto j) XFM_INLINE { store(area + (k + j) * pitch + set * bytes, v[j]); });
      });
    });
  }

  /// The other way, for the first `count` transforms; the others' addresses are not used.
  static void scatter(const char* area, const Addresses& transforms, Address stride, int size, int count) {
    if (stride != bytes || size < tile || count < lanes) {
      for (int k = 0; k < size; ++k) {
        for (int t = 0; t < count; ++t)
          __builtin_memcpy(pointer(transforms.of[t] + place(k) * stride), area + k * pitch + t * bytes,
                           bytes);
      }
      return;
    }
    each_tile(size, [&](int k) XFM_INLINE {
      each_register([&](int set) XFM_INLINE {
        V v[tile];
        unrolled<tile>([&](auto j) XFM_INLINE { v[j] = load<V>(area + (k + j) * pitch + set * bytes); });
        transpose(v);
        unrolled<tile>([&](auto i)
                           XFM_INLINE { store_blocks<i>(v[i], transforms.of + set, place(k) * bytes); });
      });
    });
  }

 private:
  static constexpr int block_bytes = 16;
  using Lane = std::conditional_t<bytes == sizeof(float), float, double>;
  static constexpr int register_bytes = lanes * static_cast<int>(sizeof(Scalar<E>));
  using Block = Vector<Lane, block_bytes / sizeof(Lane)>;
  using V = Vector<Lane, register_bytes / sizeof(Lane)>;

  static constexpr int blocks = register_bytes / block_bytes;
  static constexpr int tile = block_bytes / bytes;            ///< elements of a transform in a block
  static constexpr int in_register = register_bytes / bytes;  ///< transforms

  static Address place(int k) { return static_cast<Address>(k); }
  static char* pointer(Address at) { return reinterpret_cast<char*>(at); }

  // The last tile may overlap the one before.
  template <class Step>
  XFM_INLINE static void each_tile(int size, Step step) {
    for (int k = 0; k < size; k += tile) step(k <= size - tile ? k : size - tile);
  }
  template <class Step>
  XFM_INLINE static void each_register(Step step) {
    unrolled<lanes / in_register>([&](auto set) XFM_INLINE { step(set * in_register); });
  }

  // Block q of register i has a tile of transform q * tile + i.
  template <int i, int first = 0, int count = blocks>
  XFM_INLINE static auto load_blocks(const Address* transforms, Address offset) {
    if constexpr (count == 1) {
      return load<Block>(pointer(transforms[first * tile + i] + offset));
    } else {
      return concatenated(load_blocks<i, first, count / 2>(transforms, offset),
                          load_blocks<i, first + count / 2, count / 2>(transforms, offset));
    }
  }
  template <int i>
  XFM_INLINE static void store_blocks(V v, const Address* transforms, Address offset) {
    unrolled<blocks>(
        [&](auto q) XFM_INLINE { store(pointer(transforms[q * tile + i] + offset), part_of<Block, q>(v)); });
  }

  // Within blocks; its own inverse.
  XFM_INLINE static void transpose(V* v) {
    if constexpr (tile == 2) {
      const V low = interleaved_low(v[0], v[1]), high = interleaved_high(v[0], v[1]);
      v[0] = low;
      v[1] = high;
    } else if constexpr (tile == 4) {
      using Pairs = Vector<double, register_bytes / sizeof(double)>;
      const auto pairs = [](V a) XFM_INLINE { return reinterpret_cast<Pairs>(a); };
      const Pairs low01 = pairs(interleaved_low(v[0], v[1])), high01 = pairs(interleaved_high(v[0], v[1]));
      const Pairs low23 = pairs(interleaved_low(v[2], v[3])), high23 = pairs(interleaved_high(v[2], v[3]));
      v[0] = reinterpret_cast<V>(interleaved_low(low01, low23));
      v[1] = reinterpret_cast<V>(interleaved_high(low01, low23));
      v[2] = reinterpret_cast<V>(interleaved_low(high01, high23));
      v[3] = reinterpret_cast<V>(interleaved_high(high01, high23));
    }
  }
};

}  // namespace xfm::many
