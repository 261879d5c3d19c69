// What a fuzz target makes of its bytes. When they run out, every number is the least that it can be.
#pragma once

#include <fuzzer/FuzzedDataProvider.h>

#include <array>
#include <cstdint>
#include <limits>

#include "tests/support/bad_flags.h"

namespace xfm::fuzz {

class Input {
 public:
  Input(const std::uint8_t* data, std::size_t size) : bytes_(data, size) {}

  template <class T>
  T between(T least, T greatest) {
    return bytes_.ConsumeIntegralInRange<T>(least, greatest);
  }
  template <class T>
  T any() {
    return bytes_.ConsumeIntegral<T>();
  }
  bool one_in(int chances) { return between(0, chances - 1) == chances - 1; }
  template <class T, std::size_t n>
  T one_of(const std::array<T, n>& values) {
    return values[between<std::size_t>(0, n - 1)];
  }

  /// Mostly one of the four that there are.
  std::int32_t flag() { return one_in(8) ? any<std::int32_t>() : 1 << between(0, 3); }
  /// Mostly served, and often just not.
  std::int32_t length(int lowest, int highest) {
    return one_in(16) ? any<std::int32_t>()
                      : between(lowest - (one_in(16) ? 2 : 0), highest + (one_in(16) ? 2 : 0));
  }
  /// As many of the last bytes as there are.
  std::size_t fill(void* to, std::size_t size) { return bytes_.ConsumeData(to, size); }

 private:
  FuzzedDataProvider bytes_;
};

}  // namespace xfm::fuzz
