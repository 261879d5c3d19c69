// What suites of the DCT-IV share: both precisions, and memory for their states.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <random>
#include <vector>

#include "tests/dct4/functions.h"

namespace xfm::test {

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
