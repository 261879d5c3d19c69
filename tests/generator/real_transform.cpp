// Real transforms as networks: every rule of a plan against the definition in binary128, the passes over
// products and signs, and the order by bisection.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "gen/algorithms/real_transform.h"
#include "gen/order/bisection.h"
#include "gen/order/schedule.h"
#include "gen/passes/merging.h"
#include "gen/passes/signs.h"
#include "tests/generator/small_networks.h"
#include "tests/support/reference.h"

namespace xfm::gen {
namespace {

/// The greatest difference of the bins of unit vectors from exp(-2 pi i n (k + offset/2)/N).
double error_of(Network& network, const Points& bins, int length, int offset) {
  double error = 0;
  for (int n = 0; n < length; ++n) {
    std::vector<Wide> unit(static_cast<std::size_t>(length));
    unit[static_cast<std::size_t>(n)] = 1;
    for (std::size_t k = 0; k < bins.size(); ++k) {
      const long turns = static_cast<long>(n) * (2 * static_cast<long>(k) + offset);
      const auto parts = static_cast<unsigned long>(2 * length);
      const auto part = [&](Value v) { return v.absent() ? Wide{0} : test::lanes_of(network, v, unit)[0]; };
      error = std::max(error, std::abs(static_cast<double>(part(bins[k].p) - test::cosine(turns, parts))));
      error = std::max(error, std::abs(static_cast<double>(part(bins[k].q) + test::sine(turns, parts))));
    }
  }
  return error;
}

TEST(RealTransform, IsTheDefinition) {
  for (const char* text : {"2",
                           "3",
                           "5",
                           "7",
                           "11",
                           "D(7, 1, 3, 2, 0)",
                           "3 x 5",
                           "5 x 2 * 2",
                           "2 x 3 * 3",
                           "3 * 3",
                           "2 * 2",
                           "2 * 2 * 2",
                           "(2 * 2) * 2",
                           "3 * 2",
                           "5 * 5",
                           "F(3, 3)",
                           "F(3 x 2, 3 * 2)",
                           "R(2, 3 x 2 * 2, 3 x 2, 3 * 2)",
                           "R(2, 3 x 2 * 2, 3 x 2)",
                           "R(3, (2 * 2) * (2 * 2), 2 * (2 * 2))"}) {
    Tree plan = parse_tree(text);
    if (plan.args.size() > 2 && plan.rule == "*")
      plan = {"*", 0, {plan.args[0], {"*", 0, {plan.args[1], plan.args[2]}}}};
    Network network(1, Rounding::combination);
    const int length = length_of(plan);
    const Points bins = transform(plan, samples(network, length));
    EXPECT_EQ(bins.size(), static_cast<std::size_t>(length / 2 + 1)) << text;
    EXPECT_LT(error_of(network, bins, length, 0), 1e-30) << text;
  }
}

TEST(SkewTransform, IsTheDefinition) {
  for (const char* text :
       {"2", "3", "7", "3 x 5", "3 * 3", "2 * 2", "2 * (2 * 2)", "2 * (2 * (2 * 2))", "3 * 2", "3 x 2",
        "2 x 3", "5 x 2 * 2", "2 x (5 x 3)", "3 * (3 x 2)", "(2 * 2) * 2"}) {
    const Tree plan = parse_tree(text);
    Network network(1, Rounding::combination);
    const int length = length_of(plan);
    const Points bins = skew_transform(plan, samples(network, length));
    EXPECT_EQ(bins.size(), static_cast<std::size_t>((length + 1) / 2)) << text;
    EXPECT_LT(error_of(network, bins, length, 1), 1e-30) << text;
  }
}

TEST(ComplexTransform, JoinsTwoRealOnes) {
  Network network(1, Rounding::combination);
  Points z;
  for (int n = 0; n < 6; ++n) z.push_back({network.load(2 * n), network.load(2 * n + 1)});
  const Points bins = complex_transform(parse_tree("3 x 2"), z);
  ASSERT_EQ(bins.size(), 6U);
  std::vector<Wide> src(12);
  src[3] = 1;  // i at n = 1: bin k is i exp(-2 pi i k/6)
  for (std::size_t k = 0; k < 6; ++k) {
    const auto turns = static_cast<long>(k);
    EXPECT_LT(
        std::abs(static_cast<double>(test::lanes_of(network, bins[k].p, src)[0] - test::sine(turns, 6))),
        1e-30);
    EXPECT_LT(
        std::abs(static_cast<double>(test::lanes_of(network, bins[k].q, src)[0] - test::cosine(turns, 6))),
        1e-30);
  }
}

/// The linear combinations that outputs depend on.
int combinations(const Draft& draft) {
  const std::vector<int> used = uses(draft);
  int count = 0;
  for (std::size_t id = 0; id < used.size(); ++id)
    count += used[id] > 0 && draft.network->nodes()[id].op == Op::combination ? 1 : 0;
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
  const std::vector<float> src{23, 2.3F};
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
  const Value wide =
      network.sum(Products{{constant("tenth", Wide(0.1)), x}}, Finish::unrounded);
  EXPECT_NO_THROW(
      network.sum(Products{{constant("1", 1), wide}, {constant("1", 1), x}}));
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

Draft random_draft(unsigned seed) {
  Draft draft;
  Values values = samples(*draft.network, 6);
  const auto next = [&] { return seed = seed * 1664525U + 1013904223U, seed >> 16U; };
  for (int n = 0; n < 40; ++n) {
    const Value a = values[next() % values.size()], b = values[next() % values.size()];
    if (a.node == b.node) continue;
    const unsigned kind = next() % 3;
    values.push_back(kind == 0   ? a + b
                     : kind == 1 ? a - b
                                 : combination({{{"1", 1}, a}, {-constant("half", 0.5), b}}));
  }
  for (int k = 0; k < 4; ++k)
    draft.outputs.push_back(-values[values.size() - 1 - static_cast<std::size_t>(k)]);
  return draft;
}

// Whichever signs are negated, the outputs stay the same and no operation starts with a minus.
TEST(Signs, ChangeNoOutput) {
  for (unsigned seed = 1; seed <= 50; ++seed) {
    const Draft draft = random_draft(seed);
    const Binding binding{{0, 1, 2, 3, 4, 5}, {0, 1, 2, 3}};
    const std::vector<bool> none(draft.network->nodes().size(), false), negated = negated_values(draft);
    const auto plain = bind(draft, binding, none), better = bind(draft, binding, negated);
    const std::vector<double> src = {1.5, -2, 0.25, 3, -0.75, 7};
    EXPECT_EQ(test::evaluate(*plain, src, 4), test::evaluate(*better, src, 4)) << seed;
    EXPECT_LE(test::count(*better, Op::minus), test::count(*plain, Op::minus)) << seed;
    for (const Node& node : better->nodes())
      EXPECT_TRUE(node.terms.empty() || !node.terms.front().coefficient.is_negative()) << seed;
  }
}

TEST(Bisection, OrdersAllNodesAfterTheirOperands) {
  for (unsigned seed = 1; seed <= 50; ++seed) {
    const Draft draft = random_draft(seed);
    std::vector<NodeId> nodes;
    const std::vector<int> used = uses(draft);
    for (NodeId id = 0; id < static_cast<NodeId>(used.size()); ++id)
      if (used[static_cast<std::size_t>(id)] > 0 && draft.network->node(id).op != Op::load)
        nodes.push_back(id);
    const std::vector<NodeId> order = bisected(*draft.network, nodes);
    EXPECT_EQ(order.size(), nodes.size());
    std::set<NodeId> done;
    for (const NodeId id : order) {
      for (const NodeId operand : operands(draft.network->node(id)))
        EXPECT_TRUE(draft.network->node(operand).op == Op::load || done.contains(operand)) << seed;
      done.insert(id);
    }
    EXPECT_EQ(done.size(), nodes.size());
  }
}

}  // namespace
}  // namespace xfm::gen
