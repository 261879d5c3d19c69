// The comparison behind all tests of bits sees a single bit, and the sign of a zero where it matters.
#include "tests/bits/same_values.h"

#include <cmath>
#include <limits>

namespace xfm::test {
namespace {

testing::AssertionResult compare(Precision precision, double got, double expected, Zeros zeros) {
  Array a(precision, 3), b(precision, 3);
  a.fill(1.0);
  b.fill(1.0);
  a.set(2, got);
  b.set(2, expected);
  return same_values(a, b, zeros);
}

TEST(SameValues, SeesOneBit) {
  for (const Zeros zeros : {Zeros::as_they_are, Zeros::alike}) {
    EXPECT_TRUE(compare(Precision::binary32, 0.1, 0.1, zeros));
    EXPECT_FALSE(compare(Precision::binary32, 1, 1 + 0x1p-23, zeros));
    EXPECT_FALSE(compare(Precision::binary64, 1, 1 + 0x1p-52, zeros));
    EXPECT_FALSE(compare(Precision::binary32, 0x1p-149, 0, zeros));
    EXPECT_FALSE(compare(Precision::binary64, 1, -1, zeros));
  }
}

TEST(SameValues, SignsOfZero) {
  EXPECT_FALSE(compare(Precision::binary32, 0.0, -0.0, Zeros::as_they_are));
  EXPECT_FALSE(compare(Precision::binary64, -0.0, 0.0, Zeros::as_they_are));
  EXPECT_TRUE(compare(Precision::binary32, 0.0, -0.0, Zeros::alike));
  EXPECT_TRUE(compare(Precision::binary64, -0.0, -0.0, Zeros::as_they_are));
}

TEST(SameValues, NotANumber) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_TRUE(compare(Precision::binary64, nan, std::copysign(nan, -1.0), Zeros::as_they_are));
  EXPECT_FALSE(compare(Precision::binary32, nan, 1, Zeros::alike));
  EXPECT_FALSE(compare(Precision::binary32, 1, nan, Zeros::alike));
}

}  // namespace
}  // namespace xfm::test
