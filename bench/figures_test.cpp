// The arithmetic between the stop watch and the report.
#include <gtest/gtest.h>

#include <vector>

#include "bench/limit.h"
#include "bench/report.h"
#include "bench/statistics.h"

namespace xfm::bench {
namespace {

using catalogue::Kernel;
using catalogue::Precision;

Kernel kernel(const char* type, Precision precision, int length, int adds, int mults) {
  Kernel result{};
  result.family = "DFTFwd_CToC";
  result.type = type;
  result.precision = precision;
  result.length = length;
  result.read = result.written = 2 * length;
  result.adds = adds;
  result.mults = mults;
  return result;
}

catalogue::Form form(int lanes, int exchanges) {
  catalogue::Form result{};
  result.lanes = lanes;
  result.exchanges = exchanges;
  return result;
}

TEST(Summary, OddAndEvenCounts) {
  const Summary odd = summarize({5, 1, 2});
  EXPECT_EQ(odd.least, 1);
  EXPECT_EQ(odd.median, 2);
  const Summary even = summarize({9, 1, 2, 4});
  EXPECT_EQ(even.least, 1);
  EXPECT_EQ(even.median, 3);
}

TEST(GeometricMean, OfReciprocalsIsOne) {
  EXPECT_DOUBLE_EQ(geometric_mean(std::vector{4.0, 0.25, 2.0, 0.5}), 1);
  EXPECT_DOUBLE_EQ(geometric_mean(std::vector{2.0, 4.0, 8.0}), 4);
}

// Each of the five terms in turn is the largest.
TEST(Limit, Additions) {  // split radix 8 in binary64: 52 / 2 lanes / 2
  const Kernel split_radix = kernel("64fc", Precision::binary64, 8, 52, 4);
  EXPECT_DOUBLE_EQ(limit_in_cycles(split_radix, form(2, 3)), 13 + 7);
  EXPECT_DOUBLE_EQ(limit_in_cycles(split_radix, form(4, 3)), 6.5 + 7);
}

TEST(Limit, AdditionsAndShuffles) {  // (52 / 2 + 20) / 3
  const Kernel split_radix = kernel("64fc", Precision::binary64, 8, 52, 4);
  EXPECT_DOUBLE_EQ(limit_in_cycles(split_radix, form(2, 20)), 46.0 / 3 + 7);
}

TEST(Limit, ShufflesThatSplitAndJoinBinary32) {  // (40 / 4 lanes + 16) / 3
  EXPECT_DOUBLE_EQ(limit_in_cycles(kernel("32fc", Precision::binary32, 16, 40, 0), form(4, -1)),
                   26.0 / 3 + 7);
}

TEST(Limit, MultiplicationsWithTheFactor) {  // (200 + 32) / 4 lanes / 2
  EXPECT_DOUBLE_EQ(limit_in_cycles(kernel("32fc", Precision::binary32, 16, 144, 200), form(4, -1)), 29 + 7);
}

TEST(Limit, StoresOfAScalarKernel) {
  EXPECT_DOUBLE_EQ(limit_in_cycles(kernel("32fc", Precision::binary32, 3, 12, 4), form(1, 0)), 6 + 7);
}

TEST(Limit, Loads) {
  Kernel gather = kernel("64fc", Precision::binary64, 4, 3, 0);
  gather.read = 40;
  EXPECT_DOUBLE_EQ(limit_in_cycles(gather, form(1, 0)), 20 + 7);
}

TEST(Groups, ByFamilyAndTypeWithLengthsBehind) {
  const Kernel a = kernel("32fc", Precision::binary32, 6, 36, 8);
  const Kernel b = kernel("64fc", Precision::binary64, 6, 36, 8);
  const Kernel c = kernel("32fc", Precision::binary32, 7, 60, 36);
  const Summary ten{10, 12};
  const auto groups = grouped(
      {{&a, 1, 1, ten, Summary{20, 18}, {}}, {&b, 1, 1, ten, {}, {}}, {&c, 1, 1, ten, Summary{9, 15}, {}}});
  ASSERT_EQ(groups.size(), 2U);
  EXPECT_EQ(groups[0].type, "32fc");
  EXPECT_EQ(groups[0].ratios(), (std::vector{2.0, 0.9}));
  EXPECT_EQ(groups[0].ratios_of_medians(), (std::vector{1.5, 1.25}));
  EXPECT_EQ(groups[0].lengths_behind(), std::vector{7});
  EXPECT_EQ(groups[0].weakest().kernel, &c);
  EXPECT_FALSE(groups[1].has_rival());
}

TEST(Groups, FurtherRivals) {
  const Kernel a = kernel("32f", Precision::binary32, 1, 2, 0);
  const Group group{
      "WHT", "32f", {{&a, 1, 1, Summary{10, 12}, {}, {{"loops", {40, 41}}, {"others", {5, 6}}}}}};
  EXPECT_EQ(group.ratios_to_other(0), std::vector{4.0});
  EXPECT_EQ(group.ratios_to_other(1), std::vector{0.5});
}

}  // namespace
}  // namespace xfm::bench
