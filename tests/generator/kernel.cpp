// A kernel leaves the recipe only if it passes all checks, and the first that fails names it.
#include "gen/kernel.h"

#include <gtest/gtest.h>

#include "src/dft/recipe/dft.h"
#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

using test::error_of;

Design nine_points(const std::string& tree = "") {
  return dft::design(9, Precision::binary64, Direction::forward, tree, baseline());
}

TEST(MakeKernel, TriesOtherTreesOfTheSameLength) {
  const Kernel dear = make_kernel(nine_points("D(9)"));
  EXPECT_EQ(dear.tree, "D(9)");
  EXPECT_GT(count(*dear.network).mults, dear.mults) << "another tree may cost more than the row";
  EXPECT_LE(count(*make_kernel(nine_points()).network).mults, dear.mults);
  for (const std::string wrong : {"2,2", "CT(3,4)", "D(11)"})
    EXPECT_NE(error_of([&] { nine_points(wrong); }).find(wrong), std::string::npos) << wrong;
}

/// The sum and the difference of two numbers. `swapped` computes the difference the other way round, and
/// takes its negative.
std::unique_ptr<Network> butterfly(bool swapped = false) {
  auto network = std::make_unique<Network>(1);
  const Value x = network->load(0), y = network->load(1);
  const Constant minus_one = -test::integer(1);
  const Value difference = swapped ? network->mul(Sequence<Constant>{minus_one}, y - x) : x - y;
  test::store(*network, x + y, 0);
  test::store(*network, difference, 1);
  return network;
}

Design two_points() {
  return {.kernel = {.family = "Butterfly",
                     .type = {Precision::binary64, false},
                     .scaling = Scaling::forward,
                     .length = 2,
                     .read = 2,
                     .written = 2,
                     .tree = "2",
                     .adds = 2,
                     .mults = 0,
                     .network = butterfly()},
          .definition = [](const Sequence<Wide>& src, Sequence<Wide>& dst) {
            dst = {src[0] + src[1], src[0] - src[1]};
          }};
}

std::string error_of_kernel(Design design) {
  return error_of([&] { make_kernel(std::move(design)); });
}

TEST(MakeKernel, NamesTheKernelAndTheCheckThatFails) {
  EXPECT_EQ(error_of_kernel(two_points()), "no error");
  Design more_inputs = two_points();
  more_inputs.kernel.read = 3;
  EXPECT_EQ(error_of_kernel(std::move(more_inputs)), "xfmButterfly_2_64f: scalar 2 is read 0 times");
  Design unread = two_points();
  unread.kernel.read = 3;
  unread.unread = {2};
  EXPECT_EQ(error_of_kernel(std::move(unread)), "no error");
  Design other_sum = two_points();
  other_sum.definition = [](const Sequence<Wide>& src, Sequence<Wide>& dst) { dst = {src[0], src[1]}; };
  EXPECT_EQ(error_of_kernel(std::move(other_sum)),
            "xfmButterfly_2_64f: output 0 is not that of the transform");
  Design cheap_row = two_points();
  cheap_row.kernel.adds = 1;
  EXPECT_EQ(error_of_kernel(std::move(cheap_row)), "xfmButterfly_2_64f: 2 adds, row says 1");
  Design tried = two_points();
  tried.kernel.adds = 1;
  tried.by_row = false;
  EXPECT_EQ(error_of_kernel(std::move(tried)), "no error");
}

TEST(MakeKernel, OtherFormsHaveTheSameValues) {
  Design signs = two_points();
  signs.other_form = butterfly(true);
  EXPECT_EQ(error_of_kernel(std::move(signs)), "no error") << "they differ in signs of zeros alone";
  Design doubled = two_points();
  doubled.other_form = std::make_unique<Network>(1);
  Network& other = *doubled.other_form;
  const Value x = other.load(0), y = other.load(1);
  test::store(other, x + y, 0);
  test::store(other, (x + y) - other.twice(y), 1);
  EXPECT_EQ(error_of_kernel(std::move(doubled)),
            "xfmButterfly_2_64f: output 1 is not computed as in its other form");
}

TEST(ElementType, Names) {
  EXPECT_EQ((ElementType{Precision::binary32, true}.suffix()), "32fc");
  EXPECT_EQ((ElementType{Precision::binary64, false}.suffix()), "64f");
  EXPECT_EQ((ElementType{Precision::binary64, true}.name()), "xfm64fc");
  EXPECT_EQ((ElementType{Precision::binary64, true}.scalar()), "xfm64f");
}

}  // namespace
}  // namespace xfm::gen
