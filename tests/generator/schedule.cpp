// The order of operations: operands first, all loads before the first store, nothing dead, nothing lost.
#include "gen/order/schedule.h"

#include <random>

#include "tests/bits/generated.h"
#include "tests/generator/small_networks.h"
#include "tests/support/kernel_test.h"

namespace xfm::gen {
namespace {

Sequence<bool> reachable(const Network& network) {
  Sequence<bool> live(network.nodes().size());
  for (const Store& store : network.stores())
    if (store.node >= 0) live[store.node] = true;
  for (NodeId id = live.size() - 1; id >= 0; --id) {
    if (!live[id]) continue;
    for (const NodeId operand : operands(network.node(id))) live[operand] = true;
  }
  return live;
}

void expect_order(const Network& network, Order order) {
  Sequence<bool> done(network.nodes().size()), stored(network.stores().size());
  bool storing = false;
  for (const Step& step : schedule(network, order)) {
    if (step.node < 0) {
      const int s = step.store;
      ASSERT_FALSE(stored[s]) << "store " << s << " is repeated";
      const NodeId value = network.stores()[s].node;  // none where a zero is stored
      ASSERT_TRUE(value < 0 || done[value]) << "store " << s << " comes before its value";
      stored[s] = storing = true;
      continue;
    }
    ASSERT_EQ(step.store, -1);
    const NodeId id = step.node;
    ASSERT_FALSE(done[id]) << "node " << id << " is repeated";
    for (const NodeId operand : operands(network.node(id)))
      ASSERT_TRUE(done[operand]) << "node " << id << " comes before node " << operand;
    ASSERT_FALSE(storing && network.node(id).op == Op::load) << "a load after a store";
    done[id] = true;
  }
  ASSERT_EQ(done, reachable(network)) << "dead operations, or lost ones";
  ASSERT_EQ(stored, Sequence<bool>(stored.size(), true));
}

void expect_order(const Network& network) {
  for (const Order order : {Order::windowed, Order::earliest_start, Order::bisection}) {
    SCOPED_TRACE(static_cast<int>(order));
    expect_order(network, order);
  }
}

TEST(Schedule, DropsDeadOperations) {
  Network network(1);
  const Value x = network.load(0), y = network.load(1), unread = network.load(2);
  const Value used = x + y, dead = x - y, more = dead + unread;
  network.store(network.factor(used), 0);
  EXPECT_FALSE(more.absent());
  EXPECT_EQ(schedule(network, Order::windowed).size(), 5) << "two loads, a sum, a factor, a store";
  expect_order(network);
}

TEST(Schedule, AValueStoredTwice) {
  Network network(1);
  const Value sum = network.factor(network.load(0) + network.load(1));
  network.store(sum, 0);
  network.store(sum, 1);
  EXPECT_EQ(schedule(network, Order::windowed).size(), 6);
  expect_order(network);
}

TEST(Schedule, RandomNetworks) {
  std::mt19937 random(1);
  const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  for (int round = 0; round < 500; ++round) {
    Network network(2);
    Sequence<Value> values;
    const int inputs = 2 + below(6), operations = 4 + below(40);
    for (int n = 0; n < inputs; ++n) values.push_back(network.load({2 * n, 2 * n + 1}));
    for (int n = 0; n < operations; ++n) {
      const Value a = values[below(values.size())], b = values[below(values.size())];
      switch (below(6)) {
        case 0:
          values.push_back(network.mul(constant("c", 3), a));
          break;
        case 1:
          values.push_back(a + network.flip_signs(test::with_parts_exchanged(b), {1, 0}));
          break;
        case 2:
          values.push_back(a - b);
          break;
        default:
          values.push_back(a + b);
      }
    }
    const int outputs = 1 + below(8);
    for (int n = 0; n < outputs; ++n) {
      const Value v = values[below(values.size())];
      network.store(network.factor(v.negative ? -v : v), {2 * n, 2 * n + 1});
    }
    ASSERT_NO_FATAL_FAILURE(expect_order(network)) << "round " << round;
  }
}

class ScheduleOf : public test::KernelTest {};

TEST_P(ScheduleOf, AKernel) { expect_order(*test::generated(kernel()).network); }

INSTANTIATE_TEST_SUITE_P(All, ScheduleOf, testing::ValuesIn(test::generated_kernels()), test::ByName());

}  // namespace
}  // namespace xfm::gen
