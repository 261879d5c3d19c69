// The imaginary parts that are zero: forward CCS stores them as +0 whatever the input, inverse CCS never
// reads them. Also zeros that are computed.
#include <xmmintrin.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "tests/support/guarded.h"
#include "tests/support/kernel_test.h"
#include "tests/support/layout.h"
#include "tests/support/random.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

/// The elements of CCS that hold no value.
std::vector<int> zeros(int length) {
  return length % 2 == 0 ? std::vector<int>{1, length + 1} : std::vector<int>{1};
}

class StoredZeros : public KernelTest {
 protected:
  static void expect_plus_zeros(const Array& src, double special) {
    for (const std::int32_t flag : flags) {
      const Array dst = separate(src, flag);
      for (const int e : zeros(kernel().length))
        ASSERT_TRUE(dst[e] == 0 && !std::signbit(dst[e]))
            << "element " << e << " is " << dst[e] << " with " << special;
    }
  }
};

TEST_P(StoredZeros, ArePlusZeroWhateverTheInput) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double special : {std::numeric_limits<double>::quiet_NaN(), infinity, -infinity, -0.0, -1.0}) {
    for (int in = 0; in < kernel().read; ++in) {
      Array src = random_input();
      src.set(in, special);
      ASSERT_NO_FATAL_FAILURE(expect_plus_zeros(src, special));
    }
    Array src(kernel().precision, kernel().read);
    src.fill(special);
    ASSERT_NO_FATAL_FAILURE(expect_plus_zeros(src, special));
  }
}

INSTANTIATE_TEST_SUITE_P(All, StoredZeros, testing::ValuesIn(kernels_of("DFTFwd_RToCCS")), ByName());

/// The inverse kernels of CCS.
class UnfetchedZeros : public KernelTest {
 protected:
  static void set_bits(Array& array, int index, std::uint64_t pattern) {
    const auto narrow = static_cast<std::uint32_t>(pattern >> 32 | (pattern & 1));
    if (array.precision() == Precision::binary32) {
      std::memcpy(array.at(index), &narrow, sizeof narrow);
    } else {
      std::memcpy(array.at(index), &pattern, sizeof pattern);
    }
  }
};

// The patterns are, in either precision, NaN of both kinds, infinities, -0, a subnormal and ordinary numbers.
TEST_P(UnfetchedZeros, MayHoldAnyBits) {
  constexpr std::uint64_t patterns[] = {0x7fa1b2c3d4e5f607, 0x7ff5a1b2c3d4e5f6, 0xfffbd3c2b1a09687,
                                        0xffffffffffffffff, 0x7f80000000000000, 0x7ff0000000000000,
                                        0xfff0000000000000, 0x8000000000000000, 0x0000000000000001,
                                        0xaaaaaaaaaaaaaaaa, 0x3ff0000000000000, 0x7fefffffffffffff};
  for (const Kind kind : kinds) {
    Array src = random_input(kind);
    for (const std::int32_t flag : flags) {
      for (const int e : zeros(kernel().length)) src.set(e, 0.0);
      const Array expected = separate(src, flag);
      for (const std::uint64_t pattern : patterns) {
        for (const int e : zeros(kernel().length)) {
          set_bits(src, e, pattern);
          ASSERT_TRUE(same_bits(separate(src, flag), expected))
              << "element " << e << ", bits " << std::hex << pattern;
        }
      }
    }
  }
}

// Any arithmetic or conversion of a signalling NaN raises a flag, even if its result is dropped.
TEST_P(UnfetchedZeros, RaiseNothing) {
  constexpr unsigned invalid = 0x01;
  Array src = random_input(), dst = output();
  for (const int e : zeros(kernel().length)) poison(src.precision(), src.at(e), 1, Poison::signalling_nan);
  const unsigned before = _mm_getcsr();
  _mm_setcsr(before & ~invalid);
  const xfmStatus status = run(kernel(), src.data(), dst.data(), XFM_SCALE_BY_SQRT_N);
  const unsigned after = _mm_getcsr();
  _mm_setcsr(before);
  EXPECT_EQ(status, xfmStsOk);
  EXPECT_EQ(after & invalid, 0U);
}

// For even lengths the array may end before the last one; here a guard page follows.
TEST_P(UnfetchedZeros, NeedNotBeThere) {
  const int last = zeros(kernel().length).back();
  const Array data = random_input();
  if (last == 1) return;  // odd length
  const auto bytes = static_cast<std::size_t>(last * step());
  const Guarded region(bytes);
  std::byte* const src = region.end() - bytes;
  std::copy_n(static_cast<const std::byte*>(data.data()), bytes, src);
  Array dst = output();
  ASSERT_EQ(run(kernel(), src, dst.data(), XFM_SCALE_NONE), xfmStsOk);
  EXPECT_TRUE(same_bits(dst, separate(data, XFM_SCALE_NONE)));
}

INSTANTIATE_TEST_SUITE_P(All, UnfetchedZeros, testing::ValuesIn(kernels_of("DFTInv_CCSToR")), ByName());

std::vector<Kernel> all_real_kernels() {
  std::vector<Kernel> kernels;
  for (const Kernel& kernel : catalogue::kernels())
    if (real_family(kernel) != nullptr) kernels.push_back(kernel);
  return kernels;
}

class ComputedZeros : public KernelTest {};

// Negation is a subtraction from zero, so no output of zeros is -0.
TEST_P(ComputedZeros, ArePlusZero) {
  Array src(kernel().precision, kernel().read), expected = output();
  src.fill(0.0);
  expected.fill(0.0);
  for (const std::int32_t flag : flags)
    ASSERT_TRUE(same_bits(separate(src, flag), expected)) << "flag " << flag;
}

INSTANTIATE_TEST_SUITE_P(All, ComputedZeros, testing::ValuesIn(all_real_kernels()), ByName());

}  // namespace
}  // namespace xfm::test
