// The search for pairs finds the best answer where it is known; its cost is that of an independent count, and
// some order of operations exists for whatever it pairs.
#include "gen/packing/pairs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "gen/packing/matching.h"

namespace xfm::gen {
namespace {

enum Kind { loading, addition, product };

const PairCosts costs = {.kind = {0, 10, 7},
                         .load = 2,
                         .merged_load = 9,
                         .shuffle = 8,
                         .flip = 3,
                         .store = 6,
                         .upper_store = 4,
                         .alternating_signs = 1};

struct Graph {
  int load(int place) { return add({.kind = loading, .load = place}); }
  int sum(int a, int b) { return add({.kind = addition, .in = {a, b}, .commutative = true}); }
  int difference(int a, int b) { return add({.kind = addition, .in = {a, b}, .subtracts = true}); }
  int times(int a) { return add({.kind = product, .in = {a, -1}, .constant_product = true}); }
  void store(int unit, int place) { leaving.push_back({unit, place}); }
  Sequence<Pair> pairs() const { return find_pairs(units, leaving, costs); }
  int cost(const Sequence<Pair>& pairs) const { return cost_of(pairs, units, leaving, costs); }

  int add(const Unit& unit) {
    units.push_back(unit);
    return units.size() - 1;
  }

  Sequence<Unit> units{};
  Sequence<Leaving> leaving{};
};

/// Four loads, and operations of any shape above them; what nobody uses leaves.
Graph random_graph(unsigned seed) {
  std::mt19937 random(seed);
  const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  Graph g;
  for (int place = 0; place < 4; ++place) g.load(place);
  std::set<int> unused;
  const auto operand = [&] {
    const int u = below(g.units.size());
    unused.erase(u);
    return u;
  };
  for (int i = 0; i < 40; ++i) {
    const int a = operand(), b = operand(), shape = below(3);
    unused.insert(shape == 0 ? g.sum(a, b) : shape == 1 ? g.difference(a, b) : g.times(a));
  }
  int place = 0;
  for (const int u : unused) g.store(u, place++);
  return g;
}

/// What a graph of pairs costs, counted from its definition.
class Count {
 public:
  Count(const Graph& g, const Sequence<Pair>& pairs)
      : g_(g), partner_(g.units.size(), -1), high_(g.units.size()) {
    for (const auto& [low, high, crossed] : pairs) {
      partner_[low] = high;
      partner_[high] = low;
      high_[high] = true;
    }
    operations(pairs);
    for (const Vector& v : vectors_) cost_ += vector(v);
    for (const int u : alone_) cost_ += g.units[u].load >= 0 ? costs.load : high_[u] ? costs.shuffle : 0;
    stores();
  }
  int cost() const { return cost_; }

 private:
  void operations(const Sequence<Pair>& pairs) {
    for (int u = 0; u < partner_.size(); ++u) {
      if (!high_[u]) cost_ += costs.kind[g_.units[u].kind];
      if (partner_[u] < 0) alone_.insert(g_.units[u].in.begin(), g_.units[u].in.end());
    }
    alone_.erase(-1);
    for (const Pair& pair : pairs) {
      for (const Vector& v : operand_vectors(g_.units, pair)) {
        if (v[0] >= 0) vectors_.insert(v);
      }
      cost_ += signs(pair);
    }
  }

  int signs(const Pair& pair) const {
    if (g_.units[pair.low].subtracts == g_.units[pair.high].subtracts) return 0;
    const Vector second = operand_vectors(g_.units, pair)[1];
    for (const int operand : second) {
      const auto uses = [&](const Unit& unit) { return std::ranges::count(unit.in, operand); };
      std::ptrdiff_t all = std::ranges::count(g_.leaving, operand, &Leaving::unit);
      for (const Unit& unit : g_.units) all += uses(unit);
      if (g_.units[operand].constant_product && all == 1) return 0;
    }
    return g_.units[pair.low].subtracts ? costs.alternating_signs : costs.flip;
  }

  int vector(const Vector& v) const {
    const int p = g_.units[v[0]].load, q = g_.units[v[1]].load;
    if (p >= 0 && q >= 0) return costs.load + (q == p || q == p + 1 ? 0 : costs.merged_load);
    if (p >= 0 || q >= 0) return costs.merged_load;
    return partner_[v[0]] == v[1] && high_[v[1]] ? 0 : costs.shuffle;
  }

  // Every output by itself, less what leaving together saves.
  void stores() {
    Sequence<int> apart(g_.leaving.size() + 1), unit_at(g_.leaving.size() + 1, -1);
    for (const auto& [unit, place] : g_.leaving) {
      apart[place] = costs.store + (high_[unit] ? costs.upper_store : 0);
      unit_at[place] = unit;
      cost_ += apart[place];
    }
    Sequence<bool> gone(apart.size());
    for (const bool pairs : {true, false}) {
      for (int p = 0; p + 1 < g_.leaving.size(); p += pairs ? 1 : 2) {
        const bool pair = partner_[unit_at[p]] == unit_at[p + 1] && !high_[unit_at[p]];
        if (pair != pairs || gone[p] || gone[p + 1]) continue;
        cost_ -= std::max(0, apart[p] + apart[p + 1] - costs.store - (pair ? 0 : costs.shuffle));
        gone[p] = gone[p + 1] = true;
      }
    }
  }

  const Graph& g_;
  Sequence<int> partner_;
  Sequence<bool> high_;
  std::set<Vector> vectors_{};
  std::set<int> alone_{};
  int cost_ = 0;
};

/// Whether every unit can be computed, a pair when the operands of both lanes are there.
bool computable(const Graph& g, const Sequence<Pair>& pairs) {
  Sequence<int> partner(g.units.size());
  for (int u = 0; u < partner.size(); ++u) partner[u] = u;
  for (const auto& [low, high, crossed] : pairs) std::swap(partner[low], partner[high]);
  Sequence<bool> done(partner.size());
  const auto ready = [&](int u) {
    return std::ranges::all_of(g.units[u].in, [&](int operand) { return operand < 0 || done[operand]; });
  };
  for (int sweep = 0; sweep < partner.size(); ++sweep) {
    for (int u = 0; u < partner.size(); ++u) {
      if (ready(u) && ready(partner[u])) done[u] = done[partner[u]] = true;
    }
  }
  return std::ranges::count(done, false) == 0;
}

TEST(Pairs, GoWhereLoadsAndStoresAreNeighbours) {
  Graph g;
  for (int place = 0; place < 4; ++place) g.load(place);
  for (int k = 0; k < 2; ++k) g.store(g.sum(k, k + 2), k);
  for (int k = 0; k < 2; ++k) g.store(g.difference(k, k + 2), k + 2);
  EXPECT_EQ(g.pairs(), (Sequence<Pair>{{4, 5}, {6, 7}}));
  EXPECT_EQ(g.cost(g.pairs()), 2 * costs.load + 2 * costs.kind[addition] + 2 * costs.store);
  EXPECT_EQ(joint_stores(g.pairs(), g.units, g.leaving, costs), (Sequence<int>{0, 2}));
}

TEST(Pairs, CrossOperandsOfAdditions) {
  Graph g;
  for (int place = 0; place < 4; ++place) g.load(place);
  g.store(g.sum(0, 2), 0);
  g.store(g.sum(3, 1), 1);
  const Sequence<Pair> pairs = g.pairs();
  ASSERT_EQ(pairs, (Sequence<Pair>{{4, 5, true}}));
  EXPECT_EQ(operand_vectors(g.units, pairs[0]), (std::array<Vector, 2>{{{0, 1}, {2, 3}}}));
}

// Only the sum may change the places of its operands.
TEST(Pairs, CrossTheSumBesideADifference) {
  Graph g;
  for (int place = 0; place < 4; ++place) g.load(place);
  g.store(g.sum(2, 0), 0);
  g.store(g.difference(1, 3), 1);
  const Sequence<Pair> pairs = g.pairs();
  ASSERT_EQ(pairs, (Sequence<Pair>{{4, 5, true}}));
  EXPECT_EQ(operand_vectors(g.units, pairs[0]), (std::array<Vector, 2>{{{0, 1}, {2, 3}}}));
}

TEST(Pairs, PayForUnlikeSigns) {
  for (const bool low_subtracts : {false, true}) {
    Graph g;
    for (int place = 0; place < 4; ++place) g.load(place);
    g.store(low_subtracts ? g.difference(0, 2) : g.sum(0, 2), 0);
    g.store(low_subtracts ? g.sum(1, 3) : g.difference(1, 3), 1);
    const int plain = 2 * costs.load + costs.kind[addition] + costs.store;
    EXPECT_EQ(g.pairs(), (Sequence<Pair>{{4, 5}}));
    EXPECT_EQ(g.cost(g.pairs()) - plain, low_subtracts ? costs.alternating_signs : costs.flip);
  }
}

TEST(Pairs, PutASignIntoAConstantThatIsUsedOnce) {
  for (const bool used_again : {false, true}) {
    Graph g;
    for (int place = 0; place < 4; ++place) g.load(place);
    const int c = g.times(2), d = g.times(3);
    g.store(g.sum(0, c), 0);
    g.store(g.difference(1, d), 1);
    if (used_again) {
      g.store(c, 2);
      g.store(d, 3);
    }
    const int plain = 2 * costs.load + costs.kind[product] + costs.kind[addition] + costs.store;
    EXPECT_EQ(g.pairs(), (Sequence<Pair>{{4, 5}, {6, 7}}));
    EXPECT_EQ(g.cost(g.pairs()) - plain, used_again ? costs.flip + costs.store : 0);
  }
}

TEST(Pairs, LeaveTogetherWhereAShuffleIsCheaper) {
  Graph g;
  for (int place = 0; place < 4; ++place) g.load(place);
  for (const int place : {0, 2, 1, 3}) g.store(g.sum(place, place), place);
  const auto joint = [&](const Sequence<Pair>& pairs, const PairCosts& by) {
    return joint_stores(pairs, g.units, g.leaving, by);
  };
  PairCosts cheap = costs;
  cheap.upper_store = 0;
  EXPECT_EQ(joint({{4, 6}, {5, 7}}, cheap), (Sequence<int>{0, 2}));  // pairs as they are
  EXPECT_EQ(joint({{6, 4}, {7, 5}}, costs), (Sequence<int>{0, 2}));  // with their lanes exchanged
  EXPECT_EQ(joint({{4, 5}, {6, 7}}, costs), (Sequence<int>{2}));     // two high lanes
  EXPECT_EQ(joint({{4, 5}, {6, 7}}, cheap), (Sequence<int>{}));
}

TEST(Pairs, NeverHoldAValueAndWhatIsComputedFromIt) {
  Graph g;
  g.load(0);
  g.load(1);
  g.store(g.sum(g.sum(0, 1), 1), 0);
  EXPECT_TRUE(g.pairs().empty());
}

TEST(Pairs, AreFoundAmongNothing) { EXPECT_TRUE(find_pairs({}, {}, costs).empty()); }

// Each of two pairs would wait for the other.
TEST(Pairs, FormNoCycle) {
  Graph g;
  const int x = g.load(0), y = g.load(1);
  const int early = g.times(x), late = g.times(g.sum(early, early));
  const int early2 = g.times(y), late2 = g.times(g.sum(early2, early2));
  const UnitGraph graph(g.units);
  Matching matching(graph, g.leaving, costs);
  matching.join(early, late2);
  EXPECT_TRUE(matching.acyclic());
  matching.accept();
  ASSERT_TRUE(matching.alike(late, early2));
  matching.join(late, early2);
  EXPECT_FALSE(matching.acyclic());
  matching.undo(0);
  EXPECT_TRUE(matching.acyclic());
  EXPECT_EQ(matching.pairs().size(), 1);
}

TEST(Pairs, CostWhatTheirInstructionsDo) {
  for (unsigned seed = 1; seed <= 50; ++seed) {
    const Graph g = random_graph(seed);
    const Sequence<Pair> pairs = g.pairs();
    EXPECT_EQ(g.cost(pairs), Count(g, pairs).cost()) << seed;
    EXPECT_EQ(g.cost({}), Count(g, {}).cost()) << seed;
    EXPECT_LT(g.cost(pairs), g.cost({})) << seed;
  }
}

TEST(Pairs, CanBeComputed) {
  for (unsigned seed = 1; seed <= 50; ++seed) {
    const Graph g = random_graph(seed);
    const Sequence<Pair> pairs = g.pairs();
    EXPECT_TRUE(computable(g, pairs)) << seed;
    std::set<int> paired;
    for (const auto& [low, high, crossed] : pairs) {
      EXPECT_EQ(g.units[low].kind, g.units[high].kind) << seed;
      EXPECT_TRUE(paired.insert(low).second && paired.insert(high).second) << seed;
    }
  }
}

// A build must not depend on its compiler. A change of the search changes this number.
TEST(Pairs, AreTheSameOnEveryCompiler) {
  std::uint64_t digest = 0;
  for (unsigned seed = 1; seed <= 20; ++seed) {
    for (const auto& [low, high, crossed] : random_graph(seed).pairs()) {
      for (const int n : {low, high, crossed ? 1 : 0})
        digest = digest * 1000003 + static_cast<std::uint64_t>(n);
    }
  }
  EXPECT_EQ(digest, 5697469689582192628U);
}

// Changes, taken back in part, leave the cost and the verdict on cycles of the pairs that remain.
TEST(Pairs, CanBeTakenBack) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    const Graph g = random_graph(seed);
    const UnitGraph graph(g.units);
    Matching matching(graph, g.leaving, costs);
    std::mt19937 random(seed);
    const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    for (int change = 0; change < 300; ++change) {
      const int u = below(graph.size()), v = below(graph.size()), before = matching.history();
      if (matching.paired(u)) {
        matching.part(u);
      } else if (!matching.paired(v) && matching.alike(u, v)) {
        matching.join(u, v);
      }
      if (below(2) == 0) matching.undo(before);
      ASSERT_EQ(matching.cost(), Count(g, matching.pairs()).cost()) << seed;
      const bool acyclic = matching.acyclic();
      ASSERT_EQ(acyclic, computable(g, matching.pairs())) << seed;
      if (!acyclic) matching.undo(0);
      matching.accept();
    }
  }
}

}  // namespace
}  // namespace xfm::gen
