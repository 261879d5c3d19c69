// Folded networks compute the same values with fewer products.
#include "gen/passes/passes.h"

#include <gtest/gtest.h>

#include "gen/network/check.h"
#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

class Fold : public testing::Test {
 protected:
  /// Folds, and compares the result with the network in binary128.
  std::unique_ptr<Network> folded(int written) const {
    auto result = fold_constants(network);
    const Sequence<Wide> src = {Wide(1) / 3, Wide(-2) / 7, Wide(5) / 11};
    const auto before = test::evaluate<Wide>(network, src, written),
               after = test::evaluate<Wide>(*result, src, written);
    for (int i = 0; i < written; ++i)
      EXPECT_LT(static_cast<double>(wide_abs(before[i] - after[i])), 1e-32) << "scalar " << i;
    return result;
  }
  static int mults(const Network& of) { return count(of).mults; }

  Network network{1};
  const Value x = network.load(0), y = network.load(1), z = network.load(2);
  const Constant c = cosine(turn(1, 7)), d = cosine(turn(2, 7)), e = cosine(turn(3, 7));
};

TEST_F(Fold, ProductsOfAProduct) {
  const Value product = network.mul(c, x);
  test::store(network, network.mul(d, product) + y, 0);
  test::store(network, network.mul(e, product) + z, 1);
  EXPECT_EQ(mults(network), 3);
  EXPECT_EQ(mults(*folded(2)), 2);
}

TEST_F(Fold, AProductThatIsAlsoAddedStays) {
  const Value product = network.mul(c, x);
  test::store(network, network.mul(d, product) + y, 0);
  test::store(network, product + z, 1);
  const auto result = folded(2);
  EXPECT_EQ(mults(*result), 2);
  for (const float input : {0.1F, 0.2F, 0.3F, 0.4F}) {
    const Sequence<float> src = {input, 0, 0};
    EXPECT_EQ(test::evaluate<float>(network, src, 2), test::evaluate<float>(*result, src, 2));
  }
}

TEST_F(Fold, AProductOfASumOfProducts) {
  const Value sum = network.mul(d, x) - network.mul(e, y);
  test::store(network, network.mul(c, sum) + z, 0);
  EXPECT_EQ(mults(network), 3);
  EXPECT_EQ(mults(*folded(1)), 2);
}

TEST_F(Fold, ASumWithAnotherUseStays) {
  const Value sum = network.mul(d, x) - network.mul(e, y);
  test::store(network, network.mul(c, sum) + z, 0);
  test::store(network, sum + x, 1);
  EXPECT_EQ(mults(*folded(2)), 3);
}

TEST_F(Fold, ChainsFoldToTheEnd) {
  test::store(network, network.mul(c, network.mul(d, network.mul(e, x))) + y, 0);
  EXPECT_EQ(mults(*folded(1)), 1);
}

TEST_F(Fold, WhatCannotFoldKeepsItsBits) {
  test::store(network, (x + network.mul(c, y)) - network.mul(d, z), 0);
  const auto result = folded(1);
  EXPECT_EQ(mults(*result), 2);
  const Sequence<float> src = {0.1F, 0.7F, -1.3F};
  EXPECT_EQ(test::evaluate<float>(network, src, 1), test::evaluate<float>(*result, src, 1));
}

// The product of the constants is rounded once, not each by itself.
TEST_F(Fold, ConstantsAreMultipliedOutBeforeTheyAreRounded) {
  test::store(network, network.mul(c, network.mul(d, x)) + y, 0);
  const auto expected = static_cast<float>(c.value * d.value);
  EXPECT_EQ(test::evaluate<float>(*folded(1), {1, 0, 0}, 1)[0], expected);
}

TEST_F(Fold, ZerosStayZeros) {
  test::store(network, network.mul(c, network.mul(d, x)) + y, 0);
  network.store_zero(1);
  const auto result = folded(2);
  EXPECT_EQ(mults(*result), 1);
  ASSERT_EQ(result->stores().size(), 2);
  EXPECT_LT(result->stores()[1].node, 0);
  EXPECT_EQ(result->stores()[1].lanes, PerLane{1});
}

TEST(FoldLanes, LaneConstants) {
  Network network(4);
  const Constant c = cosine(turn(1, 7)), d = cosine(turn(2, 7)), one{"1", 1}, zero{"0", 0};
  const Value x = network.load({0, 1, 2, 3});
  const Value product = network.mul(c, network.mul(Sequence<Constant>{one, zero, -d, d}, x));
  test::store(network, product, 0);
  const auto result = fold_constants(network);
  EXPECT_EQ(test::count(*result, Op::mul), 1);
  const Sequence<Wide> src = {2, 3, 5, 7};
  const auto before = test::evaluate<Wide>(network, src, 4), after = test::evaluate<Wide>(*result, src, 4);
  for (int l = 0; l < 4; ++l) EXPECT_LT(static_cast<double>(wide_abs(before[l] - after[l])), 1e-32);
}

TEST(FoldLinearCombinations, AreRefused) {
  Network network(1, Rounding::combination);
  test::store(network, network.sum(Products{{constant("c", 3), network.load(0)}}), 0);
  EXPECT_THROW(fold_constants(network), std::logic_error);
}

}  // namespace
}  // namespace xfm::gen
