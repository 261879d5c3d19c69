// The order of operations: operands first, all loads before the first store, nothing dead, nothing lost.
#include "gen/order/schedule.h"

#include <random>

#include "tests/bits/generated.h"
#include "tests/support/kernel_test.h"

namespace xfm::gen {
namespace {

std::vector<bool> reachable(const Network& network) {
  std::vector<bool> live(network.nodes().size(), false);
  for (const Store& store : network.stores())
    if (store.node >= 0) live[static_cast<std::size_t>(store.node)] = true;
  for (std::size_t id = live.size(); id-- > 0;) {
    if (!live[id]) continue;
    for (const NodeId operand : operands(network.nodes()[id])) live[static_cast<std::size_t>(operand)] = true;
  }
  return live;
}

void expect_order(const Network& network, Order order) {
  std::vector<bool> done(network.nodes().size(), false), stored(network.stores().size(), false);
  bool storing = false;
  for (const Step& step : schedule(network, order)) {
    if (step.node < 0) {
      const auto s = static_cast<std::size_t>(step.store);
      ASSERT_FALSE(stored[s]) << "store " << s << " is repeated";
      const NodeId value = network.stores()[s].node;  // none where a zero is stored
      ASSERT_TRUE(value < 0 || done[static_cast<std::size_t>(value)])
          << "store " << s << " comes before its value";
      stored[s] = storing = true;
      continue;
    }
    ASSERT_EQ(step.store, -1);
    const auto id = static_cast<std::size_t>(step.node);
    ASSERT_FALSE(done[id]) << "node " << id << " is repeated";
    for (const NodeId operand : operands(network.node(step.node)))
      ASSERT_TRUE(done[static_cast<std::size_t>(operand)])
          << "node " << id << " comes before node " << operand;
    ASSERT_FALSE(storing && network.node(step.node).op == Op::load) << "a load after a store";
    done[id] = true;
  }
  ASSERT_EQ(done, reachable(network)) << "dead operations, or lost ones";
  ASSERT_EQ(stored, std::vector<bool>(stored.size(), true));
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
  network.store(network.factor(used), {0, -1, -1, -1});
  EXPECT_FALSE(more.absent());
  EXPECT_EQ(schedule(network).size(), 5U) << "two loads, a sum, a factor, a store";
  expect_order(network);
}

TEST(Schedule, AValueStoredTwice) {
  Network network(1);
  const Value sum = network.factor(network.load(0) + network.load(1));
  network.store(sum, {0, -1, -1, -1});
  network.store(sum, {1, -1, -1, -1});
  EXPECT_EQ(schedule(network).size(), 6U);
  expect_order(network);
}

TEST(Schedule, RandomNetworks) {
  std::mt19937 random(1);
  const auto below = [&](std::size_t n) { return random() % n; };
  for (int round = 0; round < 500; ++round) {
    Network network(2);
    std::vector<Value> values;
    const std::size_t inputs = 2 + below(6), operations = 4 + below(40);
    for (std::size_t n = 0; n < inputs; ++n) values.push_back(network.load(static_cast<int>(n)));
    for (std::size_t n = 0; n < operations; ++n) {
      const Value a = values[below(values.size())], b = values[below(values.size())];
      switch (below(6)) {
        case 0:
          values.push_back(network.mul(constant("c", 3), a));
          break;
        case 1:
          values.push_back(a + network.flip_signs(network.exchange(b), {1, 0, 0, 0}));
          break;
        case 2:
          values.push_back(a - b);
          break;
        default:
          values.push_back(a + b);
      }
    }
    const std::size_t outputs = 1 + below(8);
    for (std::size_t n = 0; n < outputs; ++n) {
      const Value v = values[below(values.size())];
      network.store(network.factor(v.negative ? -v : v), {static_cast<int>(n), -1, -1, -1});
    }
    ASSERT_NO_FATAL_FAILURE(expect_order(network)) << "round " << round;
  }
}

class ScheduleOf : public test::KernelTest {};

TEST_P(ScheduleOf, AKernel) { expect_order(*test::generated(kernel()).network); }

INSTANTIATE_TEST_SUITE_P(All, ScheduleOf, testing::ValuesIn(test::generated_kernels()), test::ByName());

}  // namespace
}  // namespace xfm::gen
