// What a batch knows of a family and length: its kernel, its factors, and where a kernel's elements are.
#pragma once

#include <cstddef>
#include <cstdint>

#include "src/frame/contract.h"

namespace xfm::many {

/// The arrays of a batch kernel on one side, by addresses: element 0, element 2 and, of a packed spectrum,
/// the real element of bin N/2. Any other element k is k - 2 steps behind element 2, or, of inputs and real
/// outputs in natural order, k steps behind element 0. The lanes of an element are side by side.
template <class Byte>
struct Side {
  Byte *first, *third, *last;
  std::ptrdiff_t step;   ///< bytes from an element to the next
  std::ptrdiff_t group;  ///< bytes from the first transform of a group of lanes to that of the next
};
using Input = Side<const char>;
using Output = Side<char>;

/// An address as a number: strides may lead anywhere, and what is not accessed need not exist.
using Address = std::uintptr_t;

/// Computes groups of transforms, as many in a group as there are lanes. Loads all of a group before it
/// stores any.
template <class T>
using Body = void(const Input& in, const Output& out, std::ptrdiff_t groups, T factor);

/// The same of contiguous transforms. Distances are in bytes.
template <class T>
using ContiguousBody = void(Address src, Address src_distance, Address dst, Address dst_distance,
                            std::ptrdiff_t groups, T factor);

/// Computes contiguous transforms one after the other. Distances are in bytes.
using OneByOne = void(Address src, Address src_distance, Address dst, Address dst_distance,
                      std::int64_t count, std::int32_t flag);

/// By single calls.
template <class E, xfmStatus (*single)(const E*, E*, std::int32_t)>
void single_calls(Address src, Address src_distance, Address dst, Address dst_distance, std::int64_t count,
                  std::int32_t flag) {
  for (; count > 0; --count, src += src_distance, dst += dst_distance)
    single(reinterpret_cast<const E*>(src), reinterpret_cast<E*>(dst), flag);
}

/// The elements of one transform in memory. Spectra are numbered as in the CCS layout, whatever the layout
/// is.
struct Places {
  int size;      ///< how many there are
  int third;     ///< the place of element 2
  int last;      ///< that of element N, where there is one
  int step;      ///< 1, or -1 where a kernel serves the other direction: element k of that is element N - k
  int zeros[2];  ///< of the stored zeros, or -1
};

template <class E>
struct ScalarOf {
  using Type = E;
};
template <>
struct ScalarOf<xfm32fc> {
  using Type = xfm32f;
};
template <>
struct ScalarOf<xfm64fc> {
  using Type = xfm64f;
};
template <class E>
using Scalar = typename ScalarOf<E>::Type;

/// A family at a length, for elements of type E.
template <class E>
struct Row {
  Body<Scalar<E>>* body;
  ContiguousBody<Scalar<E>>* contiguous;  ///< or null
  const Factors<Scalar<E>, 1>& factors;
  OneByOne* one_by_one;
  Places in, out;
};

}  // namespace xfm::many
