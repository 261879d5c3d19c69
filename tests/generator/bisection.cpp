// The order of bisection holds every node, behind its operands.
#include <gtest/gtest.h>

#include <algorithm>

#include "gen/order/schedule.h"
#include "tests/generator/drafts.h"

namespace xfm::gen {
namespace {

TEST(Bisection, OrdersAllNodesAfterTheirOperands) {
  for (unsigned seed = 1; seed <= 50; ++seed) {
    const auto draft = test::random_draft(seed);
    const Network& network = *draft;
    const Sequence<int> used = uses(network);
    Sequence<NodeId> nodes;
    for (NodeId id = 0; id < used.size(); ++id)
      if (used[id] > 0 && network.node(id).op != Op::load) nodes.push_back(id);
    Sequence<NodeId> order = bisected(network, nodes);
    Sequence<bool> done(used.size());
    for (const NodeId id : order) {
      for (const NodeId operand : operands(network.node(id)))
        EXPECT_TRUE(network.node(operand).op == Op::load || done[operand]) << seed;
      done[id] = true;
    }
    std::ranges::sort(order);
    EXPECT_EQ(order, nodes) << seed;
  }
}

}  // namespace
}  // namespace xfm::gen
