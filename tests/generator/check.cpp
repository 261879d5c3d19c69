// The checks that stop a build: what they count, and that they name a wrong network.
#include "gen/network/check.h"

#include <gtest/gtest.h>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

using test::error_of;

TEST(Count, LivingOperations) {
  Network network(1);
  const Value x = network.load(0), y = network.load(1);
  const Constant c = constant("c", 3);
  const Value used = network.mul(c, x) + y, dead = network.mul(c, x - y);
  EXPECT_FALSE(dead.absent());
  test::store(network, used, 0);
  const Counts counts = count(network);
  EXPECT_EQ(counts.adds, 1);
  EXPECT_EQ(counts.mults, 1) << "the factor is not counted";
  EXPECT_EQ(counts.add_nodes, 1);
  EXPECT_EQ(counts.mult_nodes, 2) << "the factor is an instruction";
  EXPECT_EQ(counts.loads, 2);
  EXPECT_EQ(counts.stores, 1);
  EXPECT_EQ(instructions(network), 6);
}

TEST(Count, PairsCountTwice) {
  Network network(2);
  const Value x = network.load({0, 1}), y = network.load({2, 3});
  test::store(network,
              network.mul(constant("c", 3), x) + network.flip_signs(test::with_parts_exchanged(y), {1, 0}),
              0);
  const Counts counts = count(network);
  EXPECT_EQ(counts.adds, 2);
  EXPECT_EQ(counts.mults, 2);
  EXPECT_EQ(counts.add_nodes, 1);
  EXPECT_EQ(counts.permutations, 1);
}

// One lane of the sum is idle, two of the product are trivial.
TEST(Count, IdleAndTrivialLanesDoNotCount) {
  Network network(4);
  const Value x = network.load({0, 1, 2, 3}), y = network.load({4, 5, 6, -1});
  const Constant one{"1", 1}, zero{"0", 0}, c = constant("c", 3);
  const Value product = network.mul(Sequence<Constant>{one, zero, c, c}, x);
  network.store(network.factor(product + y), {0, 1, 2, -1});
  const Counts counts = count(network);
  EXPECT_EQ(counts.mults, 1);
  EXPECT_EQ(counts.adds, 2) << "a sum with a product by zero is no addition";
  EXPECT_EQ(counts.add_nodes, 1);
  EXPECT_EQ(counts.mult_nodes, 2);
}

TEST(Count, LinearCombinations) {
  Network network(1, Rounding::combination);
  const Value x = network.load(0), y = network.load(1);
  const Constant c = constant("c", 3), one{"1", 1};
  test::store(network, network.sum(Products{{one, x}, {c, y}, {-c, x}}), 0);
  const Counts counts = count(network);
  EXPECT_EQ(counts.adds, 2);
  EXPECT_EQ(counts.mults, 2);
}

TEST(CheckCounts, NamesKernelAndRow) {
  EXPECT_EQ(error_of([] { check_counts({.adds = 98, .mults = 16}, 96, 16, "N=12 64fc"); }),
            "N=12 64fc: 98 adds, row says 96");
  EXPECT_EQ(error_of([] { check_counts({.adds = 96, .mults = 17}, 96, 16, "N=12 64fc"); }),
            "N=12 64fc: 17 mults, row says 16");
  EXPECT_EQ(error_of([] { check_counts({.adds = 90, .mults = 16}, 96, 16, "N=12 64fc"); }), "no error");
}

/// The transform of length 2 on two real numbers, its last output times `last`.
std::unique_ptr<Network> butterfly(const Constant& last) {
  auto network = std::make_unique<Network>(1);
  const Value x = network->load(0), y = network->load(1);
  test::store(*network, x + y, 0);
  test::store(*network, network->mul(last, x - y), 1);
  return network;
}

const Definition two_points = [](const Sequence<Wide>& src, Sequence<Wide>& dst) {
  dst = {src[0] + src[1], src[0] - src[1]};
};

TEST(CheckDefinition, NamesTheKernel) {
  const auto error = [](Wide last) {
    const auto network = butterfly(constant("last", last));
    return error_of([&] { check_definition(*network, two_points, 2, 2, "N=2"); });
  };
  EXPECT_EQ(error(1), "no error");
  EXPECT_EQ(error(2), "N=2: output 1 is not that of the transform");
  EXPECT_EQ(error(Wide(1) + Wide(0x1p-80)), "N=2: output 1 is not that of the transform")
      << "wrong in the last place";
}

TEST(CheckMemory, EveryInputOnceAndEveryOutputOnce) {
  const auto error = [](const Network& network, int read, int written) {
    return error_of([&] { check_memory(network, read, written, "N=2"); });
  };
  const auto network = butterfly({"1", 1});
  EXPECT_EQ(error(*network, 2, 2), "no error");
  EXPECT_EQ(error(*network, 3, 2), "N=2: scalar 2 is read 0 times");
  EXPECT_EQ(error(*network, 2, 3), "N=2: scalar 2 is written 0 times");
  test::store(*network, network->load(0) + network->load(1), 1);
  EXPECT_EQ(error(*network, 2, 2), "N=2: scalar 1 is written 2 times");

  Network twice(2);
  test::store(twice, twice.load({0, 1}) + twice.load({1, 2}), 0);
  EXPECT_EQ(error(twice, 3, 2), "N=2: scalar 1 is read 2 times");
}

}  // namespace
}  // namespace xfm::gen
