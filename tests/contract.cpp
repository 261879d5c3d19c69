// Kernels: statuses and their order, and what a call must not change.
#include "tests/support/bad_flags.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

class Contract : public KernelTest {
 protected:
  /// One call must return the status and leave src and dst unchanged. Either pointer may be replaced by null.
  static void expect_refusal(xfmStatus expected, Array& src, Array& dst, std::int32_t flag,
                             bool src_null = false, bool dst_null = false);
};

void Contract::expect_refusal(xfmStatus expected, Array& src, Array& dst, std::int32_t flag, bool src_null,
                              bool dst_null) {
  const Array src_before(src), dst_before(dst);
  ASSERT_EQ(run(kernel(), src_null ? nullptr : src.data(), dst_null ? nullptr : dst.data(), flag), expected)
      << "flag " << flag << ", src " << (src_null ? "null" : "valid") << ", dst "
      << (dst_null ? "null" : "valid");
  ASSERT_TRUE(same_bits(src, src_before)) << "src was written, flag " << flag;
  ASSERT_TRUE(same_bits(dst, dst_before)) << "dst was written, flag " << flag;
}

TEST_P(Contract, AcceptsTheFourFlags) {
  Array src = random_input();
  const Array before(src);
  for (const std::int32_t flag : flags) {
    Array dst = output();
    EXPECT_EQ(run(kernel(), src.data(), dst.data(), flag), xfmStsOk) << "flag " << flag;
    EXPECT_TRUE(same_bits(src, before)) << "src was written, flag " << flag;
  }
}

TEST_P(Contract, RefusesEveryOtherFlag) {
  for (const int offset : {0, step()}) {
    Array src(kernel().precision, kernel().read, offset);
    random.fill(src, Kind::ordinary);
    for (const Poison pattern : poisons) {
      Array dst(kernel().precision, kernel().written);
      dst.fill(pattern);
      for (const std::int32_t flag : bad_flags())
        ASSERT_NO_FATAL_FAILURE(expect_refusal(xfmStsBadScale, src, dst, flag));
    }
  }
}

// Whatever the flag, and whether or not the other pointer is a multiple of 16.
TEST_P(Contract, NullPointersComeFirst) {
  for (int offset = 0; offset < 16; offset += step()) {
    Array src(kernel().precision, kernel().read, offset), dst(kernel().precision, kernel().written, offset);
    random.fill(src, Kind::ordinary);
    for (const Poison pattern : poisons) {
      dst.fill(pattern);
      for (const std::int32_t flag : {1, 2, 4, 8, 0, 3, 5, 6, 7, 9, 16, -1, 1 << 30}) {
        ASSERT_NO_FATAL_FAILURE(expect_refusal(xfmStsNullPtr, src, dst, flag, true, false));
        ASSERT_NO_FATAL_FAILURE(expect_refusal(xfmStsNullPtr, src, dst, flag, false, true));
        ASSERT_NO_FATAL_FAILURE(expect_refusal(xfmStsNullPtr, src, dst, flag, true, true));
      }
    }
  }
}

// Equal results over different contents: every output is written and none is read.
TEST_P(Contract, WritesEveryOutputAndReadsNone) {
  const Array src = random_input();
  for (int offset = 0; offset < 16; offset += step()) {
    Array first(kernel().precision, kernel().written, offset),
        second(kernel().precision, kernel().written, offset);
    for (const std::int32_t flag : flags) {
      first.fill(Poison::bytes_aa);
      second.fill(Poison::signalling_nan);
      ASSERT_EQ(run(kernel(), src.data(), first.data(), flag), xfmStsOk);
      ASSERT_EQ(run(kernel(), src.data(), second.data(), flag), xfmStsOk);
      ASSERT_TRUE(same_bits(first, second)) << "flag " << flag << ", dst offset " << offset;
    }
  }
}

XFM_FOR_ALL_KERNELS(Contract);

}  // namespace
}  // namespace xfm::test
