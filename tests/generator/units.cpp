// Registers of four complex numbers: any four come together, by the instructions of AVX2, and each is weighed
// as the manner of its product says.
#include "gen/packing/units.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "gen/packing/lanes.h"
#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

using test::count;
using test::integers;

constexpr int places = UnitPermuter::places;
const Target& wide() { return target("x86-64-v3"); }

/// Registers 0, 1, ... hold the complex numbers 0, 1, ... in their order.
struct Numbers {
  explicit Numbers(int registers) {
    for (int j = 0; j < registers; ++j) {
      PerLane scalars;
      for (int l = 0; l < 2 * places; ++l) scalars.push_back(2 * places * j + l);
      nodes.push_back(network.load(scalars).node);
    }
  }

  UnitPermuter::Wanted wanted(const std::array<int, places>& numbers) const {
    UnitPermuter::Wanted units;
    for (std::size_t p = 0; p < places; ++p)
      if (numbers[p] >= 0) units[p] = {nodes[numbers[p] / places], numbers[p] % places};
    return units;
  }

  /// Brings these numbers together and looks at what arrives; negative ones are not wanted.
  void expect_arrival(const std::array<int, places>& numbers) {
    const NodeId node = permuter.bring(wanted(numbers));
    for (int l = 0; l < 2 * places; ++l) {
      const int number = numbers[static_cast<std::size_t>(l / 2)];
      Place at{node, l};
      while (network.node(at.node).op == Op::permute) at = network.source(network.node(at.node), at.lane);
      if (number < 0) continue;
      ASSERT_EQ(network.node(at.node).lanes[at.lane], 2 * number + l % 2) << "lane " << l;
    }
  }

  int permutations() const { return count(network, Op::permute); }

  Network network{2 * places};
  Sequence<NodeId> nodes{};
  UnitPermuter permuter{network, wide()};
};

std::array<int, places> digits(int choice, int base) {
  std::array<int, places> numbers{};
  for (int& number : numbers) {
    number = choice % base;
    choice /= base;
  }
  return numbers;
}

TEST(Units, OfTwoRegistersComeTogetherByThreeInstructions) {
  constexpr int numbers = 2 * places;
  for (int choice = 0; choice < numbers * numbers * numbers * numbers; ++choice) {
    Numbers registers(2);
    const auto wanted = digits(choice, numbers);
    ASSERT_NO_FATAL_FAILURE(registers.expect_arrival(wanted)) << testing::PrintToString(wanted);
    ASSERT_LE(registers.permutations(), 3) << testing::PrintToString(wanted);
  }
}

TEST(Units, OfManyRegistersComeTogether) {
  std::mt19937 random(1);
  Numbers registers(6);
  for (int round = 0; round < 500; ++round) {
    std::array<int, places> wanted{};
    for (int& number : wanted) number = static_cast<int>(random() % 25) - 1;
    wanted[0] = std::max(wanted[0], 0);
    ASSERT_NO_FATAL_FAILURE(registers.expect_arrival(wanted)) << testing::PrintToString(wanted);
  }
}

// Four by four numbers, announced before: two instructions a register.
TEST(Units, ATranspositionTakesEightInstructions) {
  Numbers registers(4);
  Sequence<UnitPermuter::Wanted> all;
  for (int l = 0; l < places; ++l) all.push_back(registers.wanted({l, 4 + l, 8 + l, 12 + l}));
  registers.permuter.expect(all);
  for (int l = 0; l < places; ++l)
    ASSERT_NO_FATAL_FAILURE(registers.expect_arrival({l, 4 + l, 8 + l, 12 + l}));
  EXPECT_EQ(registers.permutations(), 8);
}

TEST(Units, WhatIsInPlaceTakesNothing) {
  Numbers registers(2);
  ASSERT_NO_FATAL_FAILURE(registers.expect_arrival({4, 5, 6, 7}));
  ASSERT_NO_FATAL_FAILURE(registers.expect_arrival({4, -1, 6, -1}));
  EXPECT_EQ(registers.permutations(), 0);
}

/// The product of infinity by 1, 2 + 3i, i and 2, when trivial parts of the weights make products or not.
Sequence<double> products(bool zeros) {
  Network network(2 * places);
  Lanes lanes(network, wide());
  Elements elements;
  const ComplexConstant weights[] = {integers(1, 0), integers(2, 3), integers(0, 1), integers(2, 0)};
  for (int n = 0; n < places; ++n) {
    Element& e = elements.emplace_back(weighted(source_element(n), weights[n]));
    e.manner.zeros = zeros;
  }
  const double inf = std::numeric_limits<double>::infinity();
  return test::lanes_of<double>(network, lanes.gather(elements, Form::interleaved).p,
                                {inf, 5, 5, 7, inf, 5, inf, 5});
}

TEST(Units, ProductsByZeroAreMadeOnlyWhereTheyAreAskedFor) {
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_EQ(products(false), (Sequence<double>{inf, 5, -11, 29, -5, inf, inf, 10}));
  const Sequence<double> all = products(true);
  EXPECT_EQ(all[0], inf);
  EXPECT_TRUE(std::isnan(all[1])) << "0 * infinity + 5";
  EXPECT_TRUE(std::isnan(all[4])) << "0 * infinity - 5";
  EXPECT_TRUE(std::isnan(all[7])) << "0 * infinity + 10";
}

}  // namespace
}  // namespace xfm::gen
