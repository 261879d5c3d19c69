// The search for pairs finds the best answer where it is known, and nothing that could not be computed.
#include "gen/packing/pairs.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace xfm::gen {
namespace {

enum Kind { loading, addition, product };

const PairCosts costs = {
    .kind = {0, 10, 8}, .load = 3, .merged_load = 8, .shuffle = 8, .flip = 3, .store = 6, .upper_store = 3};

struct Graph {
  int load(int place) { return add({.kind = loading, .load = place}); }
  int sum(int a, int b) { return add({.kind = addition, .in = {a, b}, .commutative = true}); }
  int difference(int a, int b) { return add({.kind = addition, .in = {a, b}, .subtracts = true}); }
  int times(int a) { return add({.kind = product, .in = {a, -1}, .constant_product = true}); }
  void store(int unit, int place) { leaving.push_back({unit, place}); }
  Sequence<Pair> pairs() const { return find_pairs(units, leaving, costs); }

  int add(const Unit& unit) {
    units.push_back(unit);
    return units.size() - 1;
  }

  Sequence<Unit> units{};
  Sequence<Leaving> leaving{};
};

TEST(Pairs, GoWhereLoadsAndStoresAreNeighbours) {
  Graph g;
  Sequence<int> x;
  for (int place = 0; place < 4; ++place) x.push_back(g.load(place));
  const int a = g.sum(x[0], x[2]), b = g.sum(x[1], x[3]), c = g.difference(x[0], x[2]),
            d = g.difference(x[1], x[3]);
  g.store(a, 0);
  g.store(b, 1);
  g.store(c, 2);
  g.store(d, 3);
  EXPECT_EQ(g.pairs(), (Sequence<Pair>{{a, b}, {c, d}}));
}

TEST(Pairs, ExchangeOperandsOfAnAddition) {
  Graph g;
  Sequence<int> x;
  for (int place = 0; place < 4; ++place) x.push_back(g.load(place));
  const int a = g.sum(x[0], x[2]), b = g.sum(x[3], x[1]);
  g.store(a, 0);
  g.store(b, 1);
  const Sequence<Pair> pairs = g.pairs();
  ASSERT_EQ(pairs, (Sequence<Pair>{{a, b, true}}));
  EXPECT_EQ(operand_vectors(g.units, pairs[0]), (std::array<Vector, 2>{{{x[0], x[1]}, {x[2], x[3]}}}));
}

TEST(Pairs, NeverHoldAValueAndWhatIsComputedFromIt) {
  Graph g;
  const int x = g.load(0), y = g.load(1);
  g.store(g.sum(g.sum(x, y), y), 0);
  EXPECT_TRUE(g.pairs().empty());
}

}  // namespace
}  // namespace xfm::gen
