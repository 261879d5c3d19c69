// What registers of every width have in common: their types, and how they reach memory. Addition, subtraction
// and multiplication are the compiler's operators on these types.
// Functions are static, so that the linker never merges the code of different targets.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "src/simd/straight_line.h"

namespace xfm {

/// A register of this many lanes; of one lane, the element itself. A class, because compilers forget the
/// attribute of a type that depends on template parameters when it becomes a template argument.
template <class T, int lanes>
struct VectorOf {
  using Type __attribute__((vector_size(lanes * sizeof(T)))) = T;
};
template <class T>
struct VectorOf<T, 1> {
  using Type = T;
};
template <class T, int lanes>
using Vector = typename VectorOf<T, lanes>::Type;

using f32x4 = Vector<float, 4>;
using f64x2 = Vector<double, 2>;

/// What a value consists of: one scalar, or the lanes of a register.
template <class V>
struct ElementOf {
  using Type = std::remove_reference_t<decltype(std::declval<V&>()[0])>;
};
template <class V>
requires std::is_arithmetic_v<V>
struct ElementOf<V> {
  using Type = V;
};
template <class V>
using Element = typename ElementOf<V>::Type;
template <class V>
inline constexpr int lanes_of = static_cast<int>(sizeof(V) / sizeof(Element<V>));

// How a body reaches memory; its arithmetic is the same with each of these policies. A load that names no
// register gives one of 16 bytes.

struct Unaligned {
  template <class V = f32x4>
  static V load(const float* p) {
    return copy<V>(p);
  }
  template <class V = f64x2>
  static V load(const double* p) {
    return copy<V>(p);
  }
  template <class V>
  static void store(Element<V>* p, V v) {
    __builtin_memcpy(p, &v, sizeof(V));
  }

 private:
  template <class V>
  static V copy(const void* p) {
    V v;
    __builtin_memcpy(&v, p, sizeof(V));
    return v;
  }
};

/// A register among elements.
template <class V>
using InMemory __attribute__((may_alias)) = V;

/// Every address is a multiple of the register's size.
struct Aligned {
  template <class V = f32x4>
  static V load(const float* p) {
    return *reinterpret_cast<const InMemory<V>*>(p);
  }
  template <class V = f64x2>
  static V load(const double* p) {
    return *reinterpret_cast<const InMemory<V>*>(p);
  }
  template <class V>
  static void store(Element<V>* p, V v) {
    *reinterpret_cast<InMemory<V>*>(p) = v;
  }
};

/// x in every lane.
template <class V>
XFM_INLINE static inline V broadcast(Element<V> x) {
  return [&]<int... lane>(std::integer_sequence<int, lane...>) XFM_INLINE {
    return V{(static_cast<void>(lane), x)...};
  }
  (std::make_integer_sequence<int, lanes_of<V>>{});
}

/// Elements `step` apart.
template <class V>
XFM_INLINE static inline V gather(const Element<V>* p, std::ptrdiff_t step) {
  return [&]<int... lane>(std::integer_sequence<int, lane...>) XFM_INLINE { return V{p[lane * step]...}; }
  (std::make_integer_sequence<int, lanes_of<V>>{});
}

}  // namespace xfm
