// Real scalars of one precision at a chosen place in memory. Tests handle scalars as binary64 values, which
// hold binary32 exactly, so that one test serves both precisions.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#include "tools/catalogue.h"

namespace xfm::test {

using catalogue::Precision;

constexpr int scalar_size(Precision precision) { return precision == Precision::binary32 ? 4 : 8; }

double load_scalar(Precision precision, const void* base, int index);
/// Rounds the value to the precision.
void store_scalar(Precision precision, void* base, int index, double value);
/// The value rounded to the precision.
double rounded(Precision precision, double value);

/// Contents that no transform of ordinary data produces, to see what a call wrote.
enum class Poison { bytes_aa, quiet_nan, signalling_nan };
constexpr Poison poisons[] = {Poison::bytes_aa, Poison::quiet_nan, Poison::signalling_nan};
void poison(Precision precision, void* base, int count, Poison pattern);

/// An array that owns its scalars. The first one lies `offset` bytes past a multiple of 64.
class Array {
 public:
  Array(Precision precision, int count, int offset = 0);

  Precision precision() const { return precision_; }
  int count() const { return count_; }
  std::size_t bytes() const { return static_cast<std::size_t>(count_ * scalar_size(precision_)); }
  void* data() { return start_; }
  const void* data() const { return start_; }
  /// The address of scalar `index`; one past the last is allowed.
  std::byte* at(int index) { return start_ + std::ptrdiff_t{index} * scalar_size(precision_); }

  double operator[](int index) const { return load_scalar(precision_, start_, index); }
  void set(int index, double value) { store_scalar(precision_, start_, index, value); }
  void fill(double value);
  void fill(Poison pattern) { poison(precision_, start_, count_, pattern); }
  /// Copies the scalars of an array of the same shape, whatever its offset.
  void copy(const Array& other);

  Array(const Array& other);
  Array& operator=(const Array&) = delete;

 private:
  Precision precision_;
  int count_;
  std::vector<std::byte> storage_;
  std::byte* start_;
};

/// Equality bit for bit; reports the first scalar that differs.
testing::AssertionResult same_bits(const void* got, const void* expected, Precision precision, int count);
testing::AssertionResult same_bits(const Array& got, const Array& expected);

/// The number of steps between neighbouring values of the precision that lead from one value to the other;
/// NaN is far from everything.
std::uint64_t ulp_distance(Precision precision, double a, double b);

}  // namespace xfm::test
