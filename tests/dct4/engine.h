// One set of names for the DCT-IV functions of both precisions, and memory for their states.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <random>
#include <vector>

#include "xfm.h"

namespace xfm::test {

template <class T>
struct Engine;

template <>
struct Engine<float> {
  using State = xfmDCT4State_32f;
  static constexpr auto get_size = xfmDCT4GetSize_32f;
  static constexpr auto init = xfmDCT4Init_32f;
  static constexpr auto init_alloc = xfmDCT4InitAlloc_32f;
  static constexpr auto run = xfmDCT4_32f;
  static constexpr auto free = xfmDCT4Free_32f;
  static constexpr int longest = 26;          ///< exponent of the longest length that is a DCT-IV
  static constexpr double bound_4096 = 6e-5;  ///< greatest error at N = 4096 of inputs in -1 .. 1
};

template <>
struct Engine<double> {
  using State = xfmDCT4State_64f;
  static constexpr auto get_size = xfmDCT4GetSize_64f;
  static constexpr auto init = xfmDCT4Init_64f;
  static constexpr auto init_alloc = xfmDCT4InitAlloc_64f;
  static constexpr auto run = xfmDCT4_64f;
  static constexpr auto free = xfmDCT4Free_64f;
  static constexpr int longest = 25;
  static constexpr double bound_4096 = 3e-13;
};

using Precisions = testing::Types<float, double>;

struct PrecisionName {
  template <class T>
  static std::string GetName(int) {
    return sizeof(T) == 4 ? "32f" : "64f";
  }
};

#define XFM_FOR_BOTH_PRECISIONS(suite)   \
  template <class T>                     \
  class suite : public testing::Test {}; \
  TYPED_TEST_SUITE(suite, Precisions, PrecisionName)

/// Bytes of a state; 0 for a length that is refused.
template <class T>
std::size_t size_of(std::int32_t length) {
  std::int32_t size = 0;
  return Engine<T>::get_size(length, &size) == xfmStsOk ? static_cast<std::size_t>(size) : 0;
}

/// A state that frees itself.
template <class T>
struct Owned {
  struct Free {
    void operator()(typename Engine<T>::State* one) const { Engine<T>::free(one); }
  };
  std::unique_ptr<typename Engine<T>::State, Free> state;

  explicit Owned(std::int32_t length) {
    typename Engine<T>::State* made = nullptr;
    EXPECT_EQ(Engine<T>::init_alloc(&made, length), xfmStsOk) << "length " << length;
    state.reset(made);
  }
  xfmStatus run(const T* src, T* dst) const { return Engine<T>::run(src, dst, state.get()); }
};

/// Uniform in -1 .. 1, the same at every call.
template <class T>
std::vector<T> noise(std::size_t count, unsigned seed = 1) {
  std::mt19937_64 bits(seed);
  std::vector<T> values(count);
  for (T& value : values) value = static_cast<T>(std::ldexp(static_cast<double>(bits() >> 11), -52) - 1);
  return values;
}

}  // namespace xfm::test
