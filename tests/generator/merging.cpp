// Products that move into the linear combinations beside them, in drafts.
#include "gen/passes/merging.h"

#include <gtest/gtest.h>

#include "gen/network/complex.h"
#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

/// The linear combinations that outputs depend on.
int combinations(const Draft& draft) {
  const Sequence<int> used = uses(draft);
  int count = 0;
  for (NodeId id = 0; id < used.size(); ++id)
    count += used[id] > 0 && draft.network->node(id).op == Op::combination ? 1 : 0;
  return count;
}

TEST(Merging, TakesAProductIntoTheCombinationBeforeIt) {
  Draft draft;
  const Value x = draft.network->load(0), y = draft.network->load(1);
  const Value inner = combination({{constant("three", 3), x}, {constant("five", 5), y}});
  draft.outputs = {combination({{constant("seven", 7), inner}})};
  const Draft once = merged(draft);
  EXPECT_EQ(combinations(once), 1);
  EXPECT_EQ(test::lanes_of<double>(*once.network, once.outputs[0], {1, 10})[0], 21 + 350);
}

// Twice a value is a product of that value alone, and has no terms of its own.
TEST(Merging, TakesADoublingIntoTheProductBeforeIt) {
  Draft draft;
  const Value x = draft.network->load(0);
  const Value product = combination({{constant("three", 3), x}});
  draft.outputs = {draft.network->twice(product), draft.network->twice(draft.network->load(1))};
  const Draft once = merged(draft);
  EXPECT_EQ(combinations(once), 1);
  EXPECT_EQ(test::lanes_of<double>(*once.network, once.outputs[0], {7, 0})[0], 42);
  EXPECT_EQ(once.network->node(once.outputs[0].node).op, Op::combination);
  EXPECT_EQ(once.network->node(once.outputs[1].node).op, Op::twice) << "a plain value is added to itself";
}

TEST(Merging, TakesAProductIntoTheDoublingBeforeIt) {
  Draft draft;
  const Value doubled = draft.network->twice(draft.network->load(0));
  draft.outputs = {combination({{constant("three", 3), doubled}})};
  const Draft once = merged(draft);
  EXPECT_EQ(test::count(*once.network, Op::twice), 0);
  EXPECT_EQ(combinations(once), 1);
  EXPECT_EQ(test::lanes_of<double>(*once.network, once.outputs[0], {7})[0], 42);
}

TEST(Merging, LeavesValuesWithASecondUse) {
  Draft draft;
  const Value x = draft.network->load(0), y = draft.network->load(1);
  const Value inner = combination({{constant("three", 3), x}, {constant("five", 5), y}});
  draft.outputs = {combination({{constant("seven", 7), inner}}), inner + x};
  EXPECT_EQ(combinations(merged(draft)), 2);
}

TEST(Merging, OfPairsTakesTheSharedProduct) {
  Draft draft;
  const Value x = draft.network->load(0), y = draft.network->load(1);
  const Value u = combination({{constant("three", 3), x}}), v = combination({{constant("five", 5), y}});
  const Constant seven = constant("seven", 7);
  draft.outputs = {combination({{seven, u + v}}), combination({{seven, u - v}})};
  const Draft pair = merged_pairs(draft);
  EXPECT_EQ(combinations(pair), 2);
  EXPECT_EQ(test::lanes_of<double>(*pair.network, pair.outputs[0], {1, 10})[0], 21 + 350);
  EXPECT_EQ(test::lanes_of<double>(*pair.network, pair.outputs[1], {1, 10})[0], 21 - 350);
}

TEST(Unrounded, ProductsRoundOnlyAfterTheirAdditions) {
  Draft draft;
  const Value x = draft.network->load(0), y = draft.network->load(1);
  const Value product = combination({{constant("tenth", Wide(0.1)), x}});
  draft.outputs = {y + product, y - product};
  const Draft once = unrounded(draft);
  const Sequence<float> src{23, 2.3F};
  EXPECT_EQ(test::lanes_of<float>(*draft.network, draft.outputs[1], src)[0], 0);
  const auto sum = test::lanes_of<float>(*once.network, once.outputs[0], src)[0];
  const auto difference = test::lanes_of<float>(*once.network, once.outputs[1], src)[0];
  EXPECT_EQ(sum, static_cast<float>(double{2.3F} + 0.1 * 23));
  EXPECT_EQ(difference, static_cast<float>(double{2.3F} - 0.1 * 23));
  EXPECT_NE(difference, 0);
  EXPECT_EQ(combinations(once), 3);
}

TEST(Unrounded, ValuesEnterCombinationsOnly) {
  Network network(1, Rounding::combination);
  const Value x = network.load(0);
  const Value wide = network.sum(Products{{constant("tenth", Wide(0.1)), x}}, Finish::unrounded);
  EXPECT_NO_THROW(network.sum(Products{{constant("1", 1), wide}, {constant("1", 1), x}}));
  EXPECT_THROW(network.add(wide, x), std::logic_error);
  EXPECT_THROW(network.factor(wide), std::logic_error);
}

TEST(Unrounded, LeavesProductsWithAnotherUse) {
  Draft draft;
  const Value x = draft.network->load(0), y = draft.network->load(1);
  const Value product = combination({{constant("tenth", Wide(0.1)), x}});
  draft.outputs = {y + product, product};
  EXPECT_EQ(combinations(unrounded(draft)), 1);
}

}  // namespace
}  // namespace xfm::gen
