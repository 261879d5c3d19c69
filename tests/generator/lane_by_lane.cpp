// Networks read lane by lane: scalar ones of the same program.
#include <gtest/gtest.h>

#include <string>

#include "gen/network/program.h"
#include "gen/passes/passes.h"
#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

// Reads the network lane by lane, compares the programs, and returns the result.
std::unique_ptr<Network> read_by_lanes(const Network& network) {
  auto made = lane_by_lane(network);
  Programs programs(Equality::bits);
  check_same(programs.read(*made, Precision::binary64), "lane by lane",
             programs.read(network, Precision::binary64), "the network");
  for (NodeId id = 0; id < made->nodes().size(); ++id) EXPECT_EQ(made->width(id), 1);
  EXPECT_EQ(test::count(*made, Op::permute), 0);
  return made;
}

TEST(LaneByLane, PermutationsVanish) {
  Network network(2);
  const Value x = network.load({0, 1}), y = network.load({2, 3});
  network.store(network.add(network.permute(x, y, {1, 2}), y), {0, 1});
  EXPECT_EQ(test::count(*read_by_lanes(network), Op::add), 2);
}

TEST(LaneByLane, LanesThatComputeTheSameAreOneOperation) {
  Network network(2);
  const Value x = network.load({0, 1}), y = network.permute(x, x, {1, 0});
  network.store(network.add(x, y), {0, 1});
  EXPECT_EQ(test::count(*read_by_lanes(network), Op::add), 1);
}

TEST(LaneByLane, LanesThatNothingUsesAreNotRead) {
  Network network(2);
  const Value x = network.load({0, -1});
  network.store(network.permute(network.add(x, x), x, {0}), 0);
  EXPECT_EQ(test::count(*read_by_lanes(network), Op::load), 1);
}

// -a - b is not -(a + b) where both are zero.
TEST(LaneByLane, SignsOfZerosStay) {
  for (const int a : {0, 1}) {
    for (const int b : {0, 1}) {
      Network network(2);
      const Value x = network.load({0, 1}), y = network.load({2, 3});
      network.store(network.add(network.flip_signs(x, {a, 1}), network.flip_signs(y, {b, 0})), {0, 1});
      const auto made = read_by_lanes(network);
      EXPECT_EQ(test::count(*made, Op::sign_flip), a + b == 2 ? 1 : 0) << a << b;
    }
  }
}

TEST(LaneByLane, SignsOfOutputsAreOperations) {
  Network network(2);
  network.store(network.flip_signs(network.load({0, 1}), {1, 0}), {0, 1});
  EXPECT_EQ(test::count(*read_by_lanes(network), Op::sign_flip), 1);
}

TEST(LaneByLane, ProductsByZeroStayAndThoseByOneDoNot) {
  Network network(2);
  const Sequence<Constant> lanes = {test::integer(0), test::integer(1)};
  network.store(network.mul(lanes, network.load({0, 1})), {0, 1});
  EXPECT_EQ(test::count(*read_by_lanes(network), Op::mul), 1);
}

TEST(LaneByLane, ProductsByMinusOneAreSigns) {
  Network network(2);
  const Sequence<Constant> lanes = {-test::integer(1), -test::integer(3)};
  const Value x = network.load({0, 1});
  network.store(network.add(network.mul(lanes, x), x), {0, 1});
  const auto made = read_by_lanes(network);
  EXPECT_EQ(test::count(*made, Op::mul), 1);
  EXPECT_EQ(test::count(*made, Op::sign_flip), 0);
}

TEST(LaneByLane, LinearCombinationsMustBeLowered) {
  Network network(1, Rounding::combination);
  const Network::Product terms[] = {{test::integer(3), network.load(0)}, {test::integer(5), network.load(1)}};
  network.store(network.factor(network.sum(terms)), 0);
  EXPECT_EQ(test::error_of([&] { lane_by_lane(network); }), "a linear combination was not lowered");
  const auto low = lowered(network, Precision::binary64);
  read_by_lanes(*low);
}

}  // namespace
}  // namespace xfm::gen
