// Every set of lanes is brought together, by permutations that the target has.
#include "gen/packing/permuter.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

/// Registers 0, 1, ... hold the scalars 0, 1, ... in their order.
struct Registers {
  Registers(int width, int count)
      : network(width),
        permuter(network, baseline(), width == 2 ? Precision::binary64 : Precision::binary32) {
    for (int j = 0; j < count; ++j) {
      PerLane scalars;
      for (int l = 0; l < width; ++l) scalars.push_back(width * j + l);
      nodes.push_back(network.load(scalars).node);
    }
  }

  Place place(int scalar) const { return {nodes[scalar / network.width()], scalar % network.width()}; }

  Network network;
  Sequence<NodeId> nodes{};
  Permuter permuter;
};

/// Whether the target has an instruction that makes the picks of a node.
bool allowed(const Node& node, int width) {
  for (const Permutation& permutation : baseline().permutations) {
    bool all = permutation.idle.size() == width;
    for (int l = 0; all && l < width; ++l) all = permutation.allows(l, node.lanes[l]);
    if (all) return true;
  }
  return false;
}

/// Brings these scalars together, fewer than lanes if some are idle, and looks at what arrives.
void expect_arrival(Registers& registers, const Sequence<int>& scalars) {
  Network& network = registers.network;
  Sequence<Place> wanted(network.width());
  for (int l = 0; l < scalars.size(); ++l) wanted[l] = registers.place(scalars[l]);
  const NodeId node = registers.permuter.bring(wanted);
  for (int l = 0; l < scalars.size(); ++l) {
    ASSERT_EQ(registers.permuter.content({node, l}), wanted[l]) << "lane " << l;
    Place at{node, l};
    while (network.node(at.node).op == Op::permute) {
      const int pick = network.node(at.node).lanes[at.lane];
      at = {network.node(at.node).in[pick < network.width() ? 0 : 1], pick % network.width()};
    }
    ASSERT_EQ(network.node(at.node).lanes[at.lane], scalars[l]) << "lane " << l;
  }
  for (const Node& made : network.nodes())
    ASSERT_TRUE(made.op == Op::load || allowed(made, network.width())) << "no such instruction";
}

// All choices of a full register from four, and of its first lanes alone.
TEST(Permuter, BringsAnyLanesTogetherByThreeInstructions) {
  constexpr int width = 4, count = 4, all = width * count;
  for (int lanes = 1, choices = all; lanes <= width; ++lanes, choices *= all) {
    for (int choice = 0; choice < choices; ++choice) {
      Sequence<int> scalars;
      for (int rest = choice, l = 0; l < lanes; ++l, rest /= all) scalars.push_back(rest % all);
      Registers registers(width, count);
      ASSERT_NO_FATAL_FAILURE(expect_arrival(registers, scalars)) << testing::PrintToString(scalars);
      ASSERT_LE(test::count(registers.network, Op::permute), 3) << testing::PrintToString(scalars);
    }
  }
}

TEST(Permuter, BringsAnyTwoLanesTogetherByOneInstruction) {
  for (int first = 0; first < 4; ++first) {
    for (int second = 0; second < 4; ++second) {
      Registers registers(2, 2);
      ASSERT_NO_FATAL_FAILURE(expect_arrival(registers, {first, second})) << first << ", " << second;
      ASSERT_LE(test::count(registers.network, Op::permute), 1);
    }
  }
}

// What is there already is found, and found to be what it is.
TEST(Permuter, SharesPermutations) {
  std::mt19937 random(1);
  Registers registers(4, 3);
  Sequence<Sequence<int>> brought;
  for (int round = 0; round < 200; ++round) {
    Sequence<int> scalars;
    for (int l = 0; l < 4; ++l) scalars.push_back(static_cast<int>(random() % 12));
    ASSERT_NO_FATAL_FAILURE(expect_arrival(registers, scalars)) << "round " << round;
    brought.push_back(scalars);
  }
  const int nodes = registers.network.nodes().size();
  for (const Sequence<int>& scalars : brought) ASSERT_NO_FATAL_FAILURE(expect_arrival(registers, scalars));
  EXPECT_EQ(registers.network.nodes().size(), nodes) << "made again";
}

TEST(Permuter, WhatIsInPlaceTakesNothing) {
  Registers registers(4, 2);
  ASSERT_NO_FATAL_FAILURE(expect_arrival(registers, {4, 5, 6, 7}));
  EXPECT_EQ(test::count(registers.network, Op::permute), 0);
}

TEST(Permuted, TakesOneInstructionOrNone) {
  Registers registers(4, 2);
  const NodeId a = registers.nodes[0], b = registers.nodes[1];
  const PerLane picks = registers.network.node(registers.permuter.permuted(a, b, {3, 0, 5, 4})).lanes;
  EXPECT_EQ(picks, (PerLane{3, 0, 5, 4}));
  EXPECT_EQ(registers.network.node(registers.permuter.permuted(a, b, {2, 6, 3, 7})).lanes,
            (PerLane{2, 6, 3, 7}));
  EXPECT_THROW(registers.permuter.permuted(a, b, {0, 4, 2, 6}), std::logic_error);
  EXPECT_THROW(registers.permuter.permuted(a, b, {0, 4, 5, 6}), std::logic_error);
}

}  // namespace
}  // namespace xfm::gen
