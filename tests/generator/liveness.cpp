// What of a network is live.
#include "gen/network/network.h"

#include <gtest/gtest.h>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

TEST(Uses, CountLiveNodesAndStores) {
  Network network(1);
  const Value x = network.load(0), y = network.load(1), sum = x + y,
              dead = network.mul(test::integer(3), sum);
  const Value square = network.add(sum, sum), scaled = network.factor(square);
  network.store(scaled, 0);
  network.store(scaled, 1);
  network.store_zero(2);
  const Sequence<int> used = uses(network);
  EXPECT_EQ(used[x.node], 1);
  EXPECT_EQ(used[sum.node], 1) << "a node that uses another twice is one user, and a dead one is none";
  EXPECT_EQ(used[dead.node], 0);
  EXPECT_EQ(used[scaled.node], 2) << "two stores";
  EXPECT_EQ(instructions(network), 5 + 3);
}

TEST(Uses, OfADraftCountItsOutputs) {
  Network draft(1);
  const Value x = draft.load(0), y = draft.load(1), sum = x + y, difference = x - y;
  EXPECT_EQ(draft.node(difference.node).op, Op::sub);
  draft.output(sum);
  draft.output(-sum);
  draft.output(x);
  EXPECT_EQ(uses(draft), (Sequence<int>{2, 1, 2, 0}));
}

TEST(LiveLanes, GoThroughPermutations) {
  Network network(4);
  const Value x = network.load({0, 1, 2, 3}), y = network.load({4, 5, 6, 7});
  const Value mixed = network.permute(x, y, {3, 0, 5, 4}), doubled = network.twice(mixed);
  network.store(doubled, {0, -1, 1, -1});
  network.store(y, {-1, -1, -1, 2});
  const auto live = live_lanes(network);
  EXPECT_EQ(live[doubled.node], (Sequence<bool>{true, false, true, false}));
  EXPECT_EQ(live[mixed.node], (Sequence<bool>{true, false, true, false}));
  EXPECT_EQ(live[x.node], (Sequence<bool>{false, false, false, true}));
  EXPECT_EQ(live[y.node], (Sequence<bool>{false, true, false, true}));
}

}  // namespace
}  // namespace xfm::gen
