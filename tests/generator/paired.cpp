// Networks in pairs: twice the lanes, the same scalar program.
#include "gen/packing/paired.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "gen/passes/passes.h"
#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

std::unique_ptr<Network> in_pairs(const Network& network) { return Pairing().run(network, {}, {}); }

std::string error_of_pairing(const Network& network, const Network& pairs) {
  return test::error_of([&] {
    Programs programs(Equality::bits);
    check_same(programs.read(pairs, Precision::binary64), "in pairs",
               programs.read(network, Precision::binary64), "the single one");
  });
}

// Sums and differences of `count` inputs and as many others, to successive outputs.
void butterflies(Network& network, int count) {
  for (int k = 0; k < count; ++k) {
    const Value a = network.load(k), b = network.load(count + k);
    network.store(network.factor(a + b), k);
    network.store(network.factor(a - b), count + k);
  }
}

TEST(Pairing, PacksWhatIsSideBySideWithoutAPermutation) {
  Network network(1);
  butterflies(network, 2);
  const auto pairs = in_pairs(network);
  EXPECT_EQ(error_of_pairing(network, *pairs), "no error");
  EXPECT_EQ(instructions(*pairs), 2 + 2 + 2 + 2);  // loads, a sum and a difference, the factor, stores
  EXPECT_EQ(test::count(*pairs, Op::permute), 0);
  EXPECT_EQ(pairs->width(), 2);
}

TEST(Pairing, OfPairsGivesFourLanes) {
  Network network(1);
  butterflies(network, 4);
  const auto pairs = in_pairs(network), fours = in_pairs(*pairs);
  EXPECT_EQ(error_of_pairing(network, *fours), "no error");
  EXPECT_EQ(instructions(*fours), 2 + 2 + 2 + 2);
  EXPECT_EQ(fours->width(), 4);
}

// What has no like operation beside it stays single, and takes its operand out of a pair.
TEST(Pairing, LeavesOddOperationsSingle) {
  Network network(1);
  butterflies(network, 2);
  network.store(network.mul(test::integer(3), network.load(0) - network.load(3)), 4);
  const auto pairs = in_pairs(network);
  EXPECT_EQ(error_of_pairing(network, *pairs), "no error");
  EXPECT_EQ(test::evaluate<double>(*pairs, {1, 2, 3, 4}, 5),
            test::evaluate<double>(network, {1, 2, 3, 4}, 5));
}

// Lanes that add beside lanes that subtract keep the signs of zeros.
TEST(Pairing, MixesSumsAndDifferencesExactly) {
  Network network(1);
  for (int k = 0; k < 4; ++k) {
    const Value a = network.load(2 * k), b = network.load(2 * k + 1);
    network.store(k % 2 == 0 ? a - b : a + b, k);
  }
  const auto pairs = in_pairs(network);
  EXPECT_EQ(error_of_pairing(network, *pairs), "no error");
  EXPECT_GT(pairs->width(), 1);
}

// The parts of complex numbers, exchanged and with one sign changed: four lanes of two numbers.
TEST(Pairing, TakesPermutationsAndSignFlipsOfTwoLanes) {
  Network network(2);
  for (int k = 0; k < 2; ++k) {
    const Value z = network.load({2 * k, 2 * k + 1}), w = network.load({4 + 2 * k, 5 + 2 * k});
    const Value turned = network.flip_signs(test::with_parts_exchanged(w), {1, 0});
    network.store(z + turned, {2 * k, 2 * k + 1});
    network.store(z - turned, {4 + 2 * k, 5 + 2 * k});
  }
  const auto pairs = in_pairs(network);
  EXPECT_EQ(error_of_pairing(network, *pairs), "no error");
  EXPECT_EQ(instructions(*pairs), 2 + 1 + 1 + 2 + 2);
}

// Conversions pair as well: a linear combination of binary32 inputs, two at a time.
TEST(Pairing, TakesConversions) {
  Network network(1, Rounding::combination);
  for (int k = 0; k < 2; ++k) {
    const Network::Product terms[] = {{test::integer(3), network.load(k)},
                                      {test::integer(-5), network.load(2 + k)}};
    network.store(network.sum(terms, Finish::scaled), k);
  }
  const auto pairs = in_pairs(*lowered(network, Precision::binary32));
  EXPECT_EQ(instructions(*pairs), 2 + 2 + 2 + 1 + 1 + 1 + 1);
  EXPECT_EQ(test::evaluate<float>(*pairs, {1, 2, 0.1F, 0.2F}, 2),
            test::evaluate<float>(network, {1, 2, 0.1F, 0.2F}, 2));
}

// Layouts that number their memory alike are searched once and get the same operations.
TEST(Pairing, NumbersMemoryAsTheProgramDoes) {
  const auto with_outputs = [](int first) {
    auto network = std::make_unique<Network>(1);
    for (int k = 0; k < 2; ++k) network->store(network->load(k) + network->load(2 + k), first + k);
    return network;
  };
  Pairing pairing;
  const auto one = pairing.run(*with_outputs(0), {}, {});
  const auto other = pairing.run(*with_outputs(2), {.outputs = {-1, -1, 0, 1}}, {});
  EXPECT_EQ(one->nodes(), other->nodes());
}

}  // namespace
}  // namespace xfm::gen
