// Products that move into the linear combinations beside them, in drafts.
#include "gen/passes/passes.h"

#include <gtest/gtest.h>

#include "gen/network/complex.h"
#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

/// The nodes of an operation that outputs depend on.
int live(const Network& draft, Op op) {
  const Sequence<int> used = uses(draft);
  int count = 0;
  for (NodeId id = 0; id < used.size(); ++id) count += used[id] > 0 && draft.node(id).op == op ? 1 : 0;
  return count;
}
int combinations(const Network& draft) { return live(draft, Op::combination); }

TEST(Merging, TakesAProductIntoTheCombinationBeforeIt) {
  Network draft(1, Rounding::combination);
  const Value x = draft.load(0), y = draft.load(1);
  const Value inner = combination({{constant("three", 3), x}, {constant("five", 5), y}});
  draft.output(combination({{constant("seven", 7), inner}}));
  const auto once = merged(draft);
  EXPECT_EQ(combinations(*once), 1);
  EXPECT_EQ(test::lanes_of<double>(*once, once->outputs()[0], {1, 10})[0], 21 + 350);
}

// Twice a value is a product of that value alone, and has no terms of its own.
TEST(Merging, TakesADoublingIntoTheProductBeforeIt) {
  Network draft(1, Rounding::combination);
  const Value x = draft.load(0);
  const Value product = combination({{constant("three", 3), x}});
  draft.output(draft.twice(product));
  draft.output(draft.twice(draft.load(1)));
  const auto once = merged(draft);
  EXPECT_EQ(combinations(*once), 1);
  EXPECT_EQ(test::lanes_of<double>(*once, once->outputs()[0], {7, 0})[0], 42);
  EXPECT_EQ(once->node(once->outputs()[0].node).op, Op::combination);
  EXPECT_EQ(once->node(once->outputs()[1].node).op, Op::twice) << "a plain value is added to itself";
}

TEST(Merging, TakesAProductIntoTheDoublingBeforeIt) {
  Network draft(1, Rounding::combination);
  const Value doubled = draft.twice(draft.load(0));
  draft.output(combination({{constant("three", 3), doubled}}));
  const auto once = merged(draft);
  EXPECT_EQ(live(*once, Op::twice), 0);
  EXPECT_EQ(combinations(*once), 1);
  EXPECT_EQ(test::lanes_of<double>(*once, once->outputs()[0], {7})[0], 42);
}

TEST(Merging, LeavesValuesWithASecondUse) {
  Network draft(1, Rounding::combination);
  const Value x = draft.load(0), y = draft.load(1);
  const Value inner = combination({{constant("three", 3), x}, {constant("five", 5), y}});
  draft.output(combination({{constant("seven", 7), inner}}));
  draft.output(inner + x);
  EXPECT_EQ(combinations(*merged(draft)), 2);
}

TEST(Merging, OfPairsTakesTheSharedProduct) {
  Network draft(1, Rounding::combination);
  const Value x = draft.load(0), y = draft.load(1);
  const Value u = combination({{constant("three", 3), x}}), v = combination({{constant("five", 5), y}});
  const Constant seven = constant("seven", 7);
  draft.output(combination({{seven, u + v}}));
  draft.output(combination({{seven, u - v}}));
  const auto pair = merged_pairs(draft);
  EXPECT_EQ(combinations(*pair), 2);
  EXPECT_EQ(test::lanes_of<double>(*pair, pair->outputs()[0], {1, 10})[0], 21 + 350);
  EXPECT_EQ(test::lanes_of<double>(*pair, pair->outputs()[1], {1, 10})[0], 21 - 350);
}

TEST(Unrounded, ProductsRoundOnlyAfterTheirAdditions) {
  Network draft(1, Rounding::combination);
  const Value x = draft.load(0), y = draft.load(1);
  const Value product = combination({{constant("tenth", Wide(0.1)), x}});
  draft.output(y + product);
  draft.output(y - product);
  const auto once = unrounded(draft);
  const Sequence<float> src{23, 2.3F};
  EXPECT_EQ(test::lanes_of<float>(draft, draft.outputs()[1], src)[0], 0);
  const auto sum = test::lanes_of<float>(*once, once->outputs()[0], src)[0];
  const auto difference = test::lanes_of<float>(*once, once->outputs()[1], src)[0];
  EXPECT_EQ(sum, static_cast<float>(double{2.3F} + 0.1 * 23));
  EXPECT_EQ(difference, static_cast<float>(double{2.3F} - 0.1 * 23));
  EXPECT_NE(difference, 0);
  EXPECT_EQ(combinations(*once), 3);
}

TEST(Unrounded, ValuesMeetRoundedOnesInCombinationsOnly) {
  Network network(1, Rounding::combination);
  const Value x = network.load(0);
  const Value wide = network.sum(Products{{constant("tenth", Wide(0.1)), x}}, Finish::unrounded);
  EXPECT_NO_THROW(network.sum(Products{{constant("1", 1), wide}, {constant("1", 1), x}}));
  EXPECT_THROW(network.add(wide, x), std::logic_error);
  EXPECT_TRUE(network.inner(network.factor(wide).node)) << "what comes of it is unrounded too";
}

TEST(Unrounded, LeavesProductsWithAnotherUse) {
  Network draft(1, Rounding::combination);
  const Value x = draft.load(0), y = draft.load(1);
  const Value product = combination({{constant("tenth", Wide(0.1)), x}});
  draft.output(y + product);
  draft.output(product);
  EXPECT_EQ(combinations(*unrounded(draft)), 1);
}

}  // namespace
}  // namespace xfm::gen
