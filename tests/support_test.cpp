// The tools of the tests must themselves be able to fail.
#include <algorithm>
#include <cmath>
#include <limits>

#include "tests/support/attempt.h"
#include "tests/support/guarded.h"
#include "tests/support/layout.h"
#include "tests/support/random.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

TEST(Guards, CatchEveryStep) {
  Guarded region(100);
  const auto touch = [](std::byte* place) {
    return [place] { *const_cast<volatile std::byte*>(place) = std::byte{1}; };
  };
  EXPECT_FALSE(faults(touch(region.begin())));
  EXPECT_FALSE(faults(touch(region.end() - 1)));
  EXPECT_TRUE(faults(touch(region.begin() - 1)));
  EXPECT_TRUE(faults(touch(region.end())));
  region.forbid_writing();
  EXPECT_TRUE(faults(touch(region.begin())));
  region.allow_writing();
  EXPECT_FALSE(faults(touch(region.begin())));
}

TEST(Arrays, CompareBits) {
  for (const Precision precision : {Precision::binary32, Precision::binary64}) {
    Array one(precision, 3), other(precision, 3, 8);
    one.fill(0.0);
    other.fill(0.0);
    EXPECT_TRUE(same_bits(one, other));
    other.set(2, -0.0);
    EXPECT_FALSE(same_bits(one, other));
    other.fill(Poison::signalling_nan);
    const Array same(other);
    EXPECT_TRUE(same_bits(same, other));
    other.fill(Poison::quiet_nan);
    EXPECT_FALSE(same_bits(same, other));
  }
}

TEST(Arrays, UlpDistance) {
  EXPECT_EQ(ulp_distance(Precision::binary32, 1, 1 + 0x1p-23), 1U);
  EXPECT_EQ(ulp_distance(Precision::binary64, 1, 1 - 0x1p-53), 1U);
  EXPECT_EQ(ulp_distance(Precision::binary64, -0x1p-1074, 0x1p-1074), 2U);
  EXPECT_EQ(ulp_distance(Precision::binary32, 0.0, -0.0), 0U);
  EXPECT_GT(ulp_distance(Precision::binary32, NAN, 1), 1U << 31);
}

TEST(RandomData, EachNameHasAStream) {
  Random one("name"), same("name"), other("another");
  const double first = one.even();
  EXPECT_EQ(first, same.even());
  EXPECT_NE(first, other.even());
}

TEST(RandomData, Kinds) {
  Random random("kinds");
  for (const Precision precision : {Precision::binary32, Precision::binary64}) {
    const bool single = precision == Precision::binary32;
    const double least_normal = single ? 0x1p-126 : 0x1p-1022, greatest = single ? 0x1p127 : 0x1p1023;
    for (int i = 0; i < 1000; ++i) {
      EXPECT_LT(std::abs(random.next(Kind::subnormal, precision)), least_normal);
      EXPECT_LT(std::abs(random.next(Kind::huge, precision)) * 16384, greatest);
    }
  }
}

// Values known from elsewhere: the angles of a regular hexagon, octagon and pentagon.
TEST(Reference, KnownEntries) {
  const auto entry = [](int length, int out, int in) {
    catalogue::Kernel kernel = {};
    kernel.family = "DFTFwd_CToC";
    kernel.length = length;
    return definition(kernel)->entry(out, in);
  };
  const auto near = [](Wide a, Wide b) { return (a < b ? b - a : a - b) < Wide{1e-31}; };
  EXPECT_TRUE(entry(8, 0, 0) == 1);
  EXPECT_TRUE(entry(8, 4, 4) == -1);  // half the circle
  EXPECT_TRUE(entry(8, 5, 4) == 0);
  EXPECT_TRUE(entry(8, 3, 4) == -1);  // a quarter of the circle, clockwise
  const Wide half_root = entry(8, 2, 2);
  EXPECT_TRUE(near(half_root * half_root * 2, 1));
  EXPECT_TRUE(near(entry(6, 2, 2) * 2, 1));
  const Wide golden = 4 * entry(5, 2, 2) + 1;
  EXPECT_TRUE(near(golden * golden, 5));
}

// Four points: X(1) = (x0 - x2) - i (x1 - x3), and the inverse with the inner bin counted twice.
TEST(Reference, RealTransforms) {
  const auto row = [](const char* family, int out) {
    catalogue::Kernel kernel = {};
    kernel.family = family;
    kernel.length = 4;
    const auto reference = definition(kernel);
    std::vector<double> entries;
    for (int in = 0; in < 4; ++in) entries.push_back(static_cast<double>(reference->entry(out, in)));
    return entries;
  };
  using Row = std::vector<double>;
  EXPECT_EQ(row("DFTFwd_RToCCS", 1), (Row{0, 0, 0, 0}));
  EXPECT_EQ(row("DFTFwd_RToCCS", 3), (Row{0, -1, 0, 1}));
  EXPECT_EQ(row("DFTFwd_RToPack", 1), (Row{1, 0, -1, 0}));
  EXPECT_EQ(row("DFTFwd_RToPerm", 1), (Row{1, -1, 1, -1}));
  EXPECT_EQ(row("DFTInv_CCSToR", 1), (Row{1, 0, 0, -2}));
  EXPECT_EQ(row("DFTInv_PackToR", 2), (Row{1, -2, 0, 1}));
  EXPECT_EQ(row("DFTInv_PermToR", 3), (Row{1, -1, 0, 2}));
}

TEST(Reference, NoEntryExceedsTheGreatestOfItsColumn) {
  for (const RealFamily& family : real_families) {
    for (int length = 2; length <= 64; ++length) {
      catalogue::Kernel kernel = {};
      kernel.family = family.name;
      kernel.length = length;
      const auto reference = definition(kernel);
      const auto spectrum = static_cast<int>(cells(family.layout, length).size());
      for (int in = 0; in < (family.forward ? length : spectrum); ++in) {
        double greatest = 0;
        for (int out = 0; out < (family.forward ? spectrum : length); ++out)
          greatest = std::max(greatest, std::abs(static_cast<double>(reference->entry(out, in))));
        ASSERT_LE(greatest, reference->greatest(in)) << family.name << " " << length << ", column " << in;
        ASSERT_GE(greatest, 0.8 * reference->greatest(in))
            << family.name << " " << length << ", column " << in;
      }
    }
  }
}

// Inner bins of a spectrum count twice: two inputs are not read, and there is one of each weight.
TEST(Reference, Magnitude) {
  catalogue::Kernel kernel = {};
  kernel.family = "DFTInv_CCSToR";
  kernel.length = 2;
  Array src(Precision::binary64, 4);
  for (int i = 0; i < 4; ++i) src.set(i, i % 2 == 0 ? 3 : -5);
  EXPECT_EQ(magnitude(*definition(kernel), src), 6);
  kernel.length = 3;
  EXPECT_EQ(magnitude(*definition(kernel), src), 3 + 6 + 10);
}

TEST(Reference, Factors) {
  catalogue::Kernel kernel = {};
  kernel.points = 3;
  kernel.precision = Precision::binary32;
  kernel.scaling = catalogue::Scaling::forward;
  EXPECT_EQ(factor(kernel, XFM_SCALE_FWD_BY_N), double{0.33333334F});
  EXPECT_EQ(factor(kernel, XFM_SCALE_INV_BY_N), 1);
  EXPECT_EQ(factor(kernel, XFM_SCALE_BY_SQRT_N), double{0.57735026F});
  EXPECT_EQ(factor(kernel, XFM_SCALE_NONE), 1);
  kernel.scaling = catalogue::Scaling::inverse;
  EXPECT_EQ(factor(kernel, XFM_SCALE_FWD_BY_N), 1);
  EXPECT_EQ(factor(kernel, XFM_SCALE_INV_BY_N), double{0.33333334F});
  kernel.scaling = catalogue::Scaling::symmetric;
  EXPECT_EQ(factor(kernel, XFM_SCALE_FWD_BY_N), factor(kernel, XFM_SCALE_INV_BY_N));
  kernel.precision = Precision::binary64;
  EXPECT_EQ(factor(kernel, XFM_SCALE_FWD_BY_N), 1.0 / 3.0);
}

}  // namespace
}  // namespace xfm::test
