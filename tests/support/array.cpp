#include "tests/support/array.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>

namespace xfm::test {
namespace {

constexpr int alignment = 64;
/// Around the scalars, so that a stray write of a broken kernel does not corrupt the heap; the tests with
/// guard pages report such a write.
constexpr int margin = 64;

std::byte* aligned_start(std::vector<std::byte>& storage, int offset) {
  const auto address = reinterpret_cast<std::uintptr_t>(storage.data());
  return storage.data() + ((alignment - address % alignment) % alignment) + margin + offset;
}

/// Orders bit patterns as the numbers that they represent.
template <class Bits, class Float>
std::int64_t rank(Float value) {
  const auto bits = static_cast<std::int64_t>(std::bit_cast<Bits>(value));
  return bits < 0 ? std::int64_t{std::numeric_limits<Bits>::min()} - bits : bits;
}

std::string hexadecimal(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%a (%.9g)", value, value);
  return text;
}

}  // namespace

double load_scalar(Precision precision, const void* base, int index) {
  const std::byte* place =
      static_cast<const std::byte*>(base) + std::ptrdiff_t{index} * scalar_size(precision);
  if (precision == Precision::binary32) {
    float value;
    std::memcpy(&value, place, sizeof value);
    return value;
  }
  double value;
  std::memcpy(&value, place, sizeof value);
  return value;
}

void store_scalar(Precision precision, void* base, int index, double value) {
  std::byte* place = static_cast<std::byte*>(base) + std::ptrdiff_t{index} * scalar_size(precision);
  if (precision == Precision::binary32) {
    const auto narrow = static_cast<float>(value);
    std::memcpy(place, &narrow, sizeof narrow);
  } else {
    std::memcpy(place, &value, sizeof value);
  }
}

double rounded(Precision precision, double value) {
  return precision == Precision::binary32 ? double{static_cast<float>(value)} : value;
}

// The NaN patterns are written as integers, since loading and storing a signalling NaN as a number may
// quieten it.
void poison(Precision precision, void* base, int count, Poison pattern) {
  if (pattern == Poison::bytes_aa) {
    std::memset(base, 0xAA, static_cast<std::size_t>(count * scalar_size(precision)));
    return;
  }
  const bool quiet = pattern == Poison::quiet_nan;
  const std::uint32_t narrow = quiet ? 0xffd3c2b1 : 0x7fa1b2c3;
  const std::uint64_t wide = quiet ? 0xfffbd3c2b1a09687 : 0x7ff5a1b2c3d4e5f6;
  for (int i = 0; i < count; ++i) {
    std::byte* place = static_cast<std::byte*>(base) + std::ptrdiff_t{i} * scalar_size(precision);
    if (precision == Precision::binary32) {
      std::memcpy(place, &narrow, sizeof narrow);
    } else {
      std::memcpy(place, &wide, sizeof wide);
    }
  }
}

Array::Array(Precision precision, int count, int offset)
    : precision_(precision),
      count_(count),
      storage_(bytes() + static_cast<std::size_t>(alignment + 2 * margin + offset)),
      start_(aligned_start(storage_, offset)) {}

Array::Array(const Array& other) : Array(other.precision_, other.count_) { copy(other); }

void Array::fill(double value) {
  for (int i = 0; i < count_; ++i) set(i, value);
}

void Array::copy(const Array& other) {
  if (other.bytes() != bytes()) throw std::logic_error("arrays of different shapes");
  std::memcpy(start_, other.start_, bytes());
}

testing::AssertionResult same_bits(const void* got, const void* expected, Precision precision, int count) {
  const auto size = static_cast<std::size_t>(scalar_size(precision));
  if (std::memcmp(got, expected, size * static_cast<std::size_t>(count)) == 0)
    return testing::AssertionSuccess();
  int i = 0;
  const auto at = [&](const void* base) {
    return static_cast<const std::byte*>(base) + static_cast<std::size_t>(i) * size;
  };
  while (std::memcmp(at(got), at(expected), size) == 0) ++i;
  return testing::AssertionFailure() << "scalar " << i << " is "
                                     << hexadecimal(load_scalar(precision, got, i)) << ", expected "
                                     << hexadecimal(load_scalar(precision, expected, i));
}

testing::AssertionResult same_bits(const Array& got, const Array& expected) {
  if (got.precision() != expected.precision() || got.count() != expected.count())
    return testing::AssertionFailure() << "arrays of different shapes";
  return same_bits(got.data(), expected.data(), got.precision(), got.count());
}

std::uint64_t ulp_distance(Precision precision, double a, double b) {
  if (std::isnan(a) || std::isnan(b)) return std::numeric_limits<std::uint64_t>::max();
  const auto place = [&](double value) {
    return precision == Precision::binary32 ? rank<std::int32_t>(static_cast<float>(value))
                                            : rank<std::int64_t>(value);
  };
  const std::int64_t from = std::min(place(a), place(b)), to = std::max(place(a), place(b));
  return static_cast<std::uint64_t>(to) - static_cast<std::uint64_t>(from);
}

}  // namespace xfm::test
