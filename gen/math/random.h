// Random numbers for searches: the same on every compiler and library, integers only.
#pragma once

#include <bit>
#include <cstdint>

namespace xfm::gen {

/// S. Vigna's splitmix64.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t bits() {
    std::uint64_t z = state_ += 0x9e3779b97f4a7c15U;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
    return z ^ (z >> 31);
  }

  /// 0..n-1
  int below(int n) { return static_cast<int>((bits() >> 32) * static_cast<std::uint64_t>(n) >> 32); }

  /// -log2 of a number between 0 and 1, in units of 2^-16. Between powers of two it runs straight.
  std::int64_t minus_log2() {
    const std::uint64_t r = bits() | 1;
    const int zeros = std::countl_zero(r);
    const std::uint64_t fraction = r << zeros << 1 >> 48;
    return (std::int64_t{zeros + 1} << 16) - static_cast<std::int64_t>(fraction);
  }

 private:
  std::uint64_t state_;
};

}  // namespace xfm::gen
