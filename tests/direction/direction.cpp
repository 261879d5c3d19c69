// An inverse kernel undoes the forward kernel of its length and precision, and it is the same network with i
// replaced by -i. Every test here is about such a pair.
#include <algorithm>
#include <cmath>

#include "tests/bits/same_values.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

struct Pair {
  const char* forward;
  const char* inverse;
};
constexpr Pair pairs[] = {{"DFTFwd_CToC", "DFTInv_CToC"},
                          {"DFTFwd_RToCCS", "DFTInv_CCSToR"},
                          {"DFTFwd_RToPack", "DFTInv_PackToR"},
                          {"DFTFwd_RToPerm", "DFTInv_PermToR"}};

std::vector<Kernel> forward_kernels() {
  std::vector<Kernel> found;
  for (const Pair& pair : pairs) {
    const auto more = kernels_of(pair.forward);
    found.insert(found.end(), more.begin(), more.end());
  }
  return found;
}

/// The inverse of a forward kernel, or null.
const Kernel* inverse_of(const Kernel& forward) {
  for (const Pair& pair : pairs)
    if (std::string(forward.family) == pair.forward)
      return find_kernel(pair.inverse, forward.length, forward.type);
  return nullptr;
}

/// The flag that gives the inverse kernel the factor that this one gives the forward kernel.
std::int32_t mirrored(std::int32_t flag) {
  if (flag == XFM_SCALE_FWD_BY_N) return XFM_SCALE_INV_BY_N;
  return flag == XFM_SCALE_INV_BY_N ? XFM_SCALE_FWD_BY_N : flag;
}

/// Real and imaginary parts exchanged.
Array exchanged(const Array& array) {
  Array result(array);
  for (int i = 0; i < array.count(); ++i) result.set(i, array[i ^ 1]);
  return result;
}

Array conjugate(const Array& array) {
  Array result(array);
  for (int i = 1; i < array.count(); i += 2) result.set(i, -array[i]);
  return result;
}

/// Element (N - k) mod N in place of element k.
Array reflected(const Array& array) {
  Array result(array);
  const int n = array.count() / 2;
  for (int k = 0; k < n; ++k)
    for (const int part : {0, 1}) result.set(2 * k + part, array[2 * ((n - k) % n) + part]);
  return result;
}

double sum_of_magnitudes(const Array& array) {
  double sum = 0;
  for (int i = 0; i < array.count(); ++i) sum += std::abs(array[i]);
  return sum;
}

double greatest_difference(const Array& one, const Array& other) {
  double greatest = 0;
  for (int i = 0; i < one.count(); ++i) greatest = std::max(greatest, std::abs(one[i] - other[i]));
  return greatest;
}

/// The Euclidean norm of one - times * other, relative to that of times * other.
double relative_distance(const Array& one, const Array& other, double times = 1) {
  double differences = 0, data = 0;
  for (int i = 0; i < one.count(); ++i) {
    differences += std::pow(one[i] - times * other[i], 2);
    data += std::pow(times * other[i], 2);
  }
  return std::sqrt(differences / data);
}

class Direction : public KernelTest {
 protected:
  void SetUp() override {
    inverse_ = inverse_of(kernel());
    ASSERT_NE(inverse_, nullptr) << "no inverse kernel";
  }

  static Array forward(const Array& src, std::int32_t flag) { return separate(src, flag); }
  Array inverse(const Array& src, std::int32_t flag) const {
    Array dst(kernel().precision, inverse_->written);
    dst.fill(Poison::quiet_nan);
    EXPECT_EQ(run(*inverse_, src.data(), dst.data(), flag), xfmStsOk);
    return dst;
  }

  /// For the rounding of one transform: the bound of a matrix entry, but in binary64, whose matrices are far
  /// better than their bound, four roundings.
  static double bound() {
    return kernel().precision == Precision::binary32 ? matrix_bound(kernel()) : 4 * 0x1p-53;
  }

  void returns_the_input(std::int32_t flag, double times);

 private:
  const Kernel* inverse_ = nullptr;
};

/// Forward and inverse with one flag give `times` the input, apart from the rounding of two transforms.
void Direction::returns_the_input(std::int32_t flag, double times) {
  const Array src = random_input();
  const Array back = inverse(forward(src, flag), flag);
  EXPECT_LE(relative_distance(back, src, times), 2 * bound()) << "flag " << flag;
}

TEST_P(Direction, InverseUndoesForward) {
  returns_the_input(XFM_SCALE_NONE, kernel().length);
  returns_the_input(XFM_SCALE_FWD_BY_N, 1);
  returns_the_input(XFM_SCALE_INV_BY_N, 1);
  returns_the_input(XFM_SCALE_BY_SQRT_N, 1);
}

// Each direction applies 1/N for a flag of its own; the flag of the other one has no effect.
TEST_P(Direction, FlagOfTheOtherDirectionIsNoFactor) {
  const Array src = random_input(Kind::wide);
  EXPECT_TRUE(same_bits(forward(src, XFM_SCALE_INV_BY_N), forward(src, XFM_SCALE_NONE)));
  const Array spectrum = forward(src, XFM_SCALE_NONE);
  EXPECT_TRUE(same_bits(inverse(spectrum, XFM_SCALE_FWD_BY_N), inverse(spectrum, XFM_SCALE_NONE)));
}

INSTANTIATE_TEST_SUITE_P(All, Direction, testing::ValuesIn(forward_kernels()), ByName());

/// Complex transforms of both directions have arrays of the same shape, so more can be compared.
class ComplexDirection : public Direction {};

// Both come from one network, so this holds to the bit, apart from the signs of zeros.
TEST_P(ComplexDirection, InverseIsForwardWithPartsExchanged) {
  for (const Kind kind : kinds) {
    const Array src = random_input(kind);
    for (const std::int32_t flag : flags) {
      const Array expected = exchanged(forward(exchanged(src), flag));
      ASSERT_TRUE(same_values(inverse(src, mirrored(flag)), expected, Zeros::alike))
          << to_string(kind) << " data, forward flag " << flag;
    }
  }
}

// In binary64 real and imaginary parts go through a network of real coefficients and meet only in its last
// step, where the direction is the sign of a term: the same bits again. Binary32 twiddles round earlier.
TEST_P(ComplexDirection, InverseIsForwardReflected) {
  const bool exact = kernel().precision == Precision::binary64;
  for (int round = 0; round < 4; ++round) {
    const Array src = random_input();
    const Array got = inverse(src, XFM_SCALE_NONE);
    const Array expected = reflected(forward(src, XFM_SCALE_NONE));
    EXPECT_LE(greatest_difference(got, expected), bound() * sum_of_magnitudes(src));
    EXPECT_LE(relative_distance(got, expected), bound());
    EXPECT_TRUE(!exact || same_values(got, expected, Zeros::alike));
  }
}

// An entry of either matrix may be off by the bound, in opposite directions, but not a whole column.
TEST_P(ComplexDirection, InverseMatrixIsForwardMatrixReflected) {
  for (int in = 0; in < kernel().read; ++in) {
    Array unit(kernel().precision, kernel().read);
    unit.fill(0.0);
    unit.set(in, 1.0);
    const Array expected = reflected(forward(unit, XFM_SCALE_NONE));
    EXPECT_LE(relative_distance(inverse(unit, XFM_SCALE_NONE), expected), bound()) << "unit at scalar " << in;
  }
}

// Conjugate data and constants round alike.
TEST_P(ComplexDirection, RealInputHasConjugateSpectra) {
  for (const Kind kind : kinds) {
    Array src = random_input(kind);
    for (int i = 1; i < src.count(); i += 2) src.set(i, 0.0);
    ASSERT_TRUE(
        same_values(inverse(src, XFM_SCALE_NONE), conjugate(forward(src, XFM_SCALE_NONE)), Zeros::alike))
        << to_string(kind) << " data";
  }
}

// exp(-pi i) = exp(pi i) = -1: with two points, and only then, both directions are the same.
TEST_P(ComplexDirection, OnlyTwoPointsHaveNone) {
  const Array src = random_input();
  for (const std::int32_t flag : flags) {
    const bool same = static_cast<bool>(same_bits(inverse(src, mirrored(flag)), forward(src, flag)));
    EXPECT_EQ(same, kernel().length == 2) << "forward flag " << flag;
  }
}

INSTANTIATE_TEST_SUITE_P(All, ComplexDirection, testing::ValuesIn(kernels_of("DFTFwd_CToC")), ByName());

TEST(Directions, AreOfOneNumber) {
  for (const Pair& pair : pairs) {
    EXPECT_FALSE(kernels_of(pair.forward).empty()) << pair.forward;
    EXPECT_EQ(kernels_of(pair.forward).size(), kernels_of(pair.inverse).size()) << pair.forward;
  }
}

}  // namespace
}  // namespace xfm::test
