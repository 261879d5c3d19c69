#include "gen/packing/pairs.h"

#include <algorithm>
#include <utility>

#include "gen/math/random.h"
#include "gen/packing/matching.h"

namespace xfm::gen {
namespace {

// Random changes of a matching. They start where a shuffle could go or where units are alike, and grow along
// operands and users.
class Moves {
 public:
  Moves(Matching& matching, const Sequence<Leaving>& leaving, Random& random)
      : matching_(matching), graph_(matching.graph()), random_(random) {
    for (int u = 0; u < graph_.size(); ++u) {
      if (graph_[u].load < 0) {
        operations_.push_back(u);
      } else {
        put(loads_, graph_[u].load, u);
      }
    }
    for (const auto& [unit, place] : leaving) put(outputs_, place, unit);
    for (const int steps : {0, 1, 2, 4, 6}) classes_.push_back(likeness(graph_, steps));
  }

  /// Whether there is anything to do at all.
  bool none() const { return operations_.empty(); }

  // Operands and users of a pair are the likeliest; the proportions matter little.
  void make() {
    const int choice = random_.below(14);
    if (choice < 6) return operands_of_pair();
    if (choice < 10) return users_of_pair();
    if (choice < 11) return neighbours_in_memory();
    if (choice < 13) return units_alike();
    undo_pair();
  }

 private:
  static void put(Sequence<int>& units, int place, int unit) {
    if (place >= units.size()) units.resize(static_cast<std::size_t>(place) + 1, -1);
    units[place] = unit;
  }

  template <class Range>
  auto some(const Range& range) {
    return range.begin()[random_.below(static_cast<int>(range.size()))];
  }
  int some_user(int u) { return graph_.users(u).empty() ? -1 : some(graph_.users(u)).unit; }

  void operands_of_pair() {
    const int u = some(operations_);
    const auto slot = static_cast<std::size_t>(random_.below(2));
    if (!matching_.paired(u)) return units_alike();
    if (graph_[u].in[slot] < 0) return;
    grow_as(u, graph_[u].in[slot], matching_.beside(u, slot));
  }

  void users_of_pair() {
    const int u = some(operations_);
    if (!matching_.paired(u)) return units_alike();
    const int a = some_user(u), b = some_user(matching_.partner(u));
    grow_as(u, a, b);
  }

  void neighbours_in_memory() {
    const bool at_outputs = random_.below(2) == 0;
    const Sequence<int>& units = at_outputs ? outputs_ : loads_;
    if (units.size() < 2) return;
    const int place = random_.below(units.size() - 1), a = units[place], b = units[place + 1];
    if (a < 0 || b < 0) return;
    if (at_outputs) {
      grow(a, b);
    } else {
      const int user = some_user(a);
      grow(user, some_user(b));
    }
  }

  void units_alike() {
    const Classes& classes = classes_[random_.below(classes_.size())];
    const int u = some(operations_);
    grow(u, some(classes.members[classes.of[u]]));
  }

  void undo_pair() {
    const int u = some(operations_);
    if (!matching_.paired(u)) return;
    if (matching_.can_cross(u, matching_.partner(u)) && random_.below(2) == 0) {
      matching_.cross(u);
    } else {
      matching_.part(u);
    }
  }

  // Pairs two units whatever they were paired with, and their partners with each other.
  bool pair(int low, int high) {
    if (low < 0 || high < 0 || !matching_.alike(low, high) || matching_.is_pair(low, high)) return false;
    const int c = matching_.partner(low), d = matching_.partner(high);
    const bool lanes_change = c >= 0 && !matching_.high(low);
    if (c >= 0) matching_.part(low);
    if (d >= 0 && d != low) matching_.part(high);
    matching_.join(low, high);
    if (c >= 0 && d >= 0 && c != high && matching_.alike(c, d))
      matching_.join(lanes_change ? d : c, lanes_change ? c : d);
    return true;
  }

  // With the lanes of u and its partner.
  void grow_as(int u, int a, int b) {
    if (matching_.high(u)) std::swap(a, b);
    grow(a, b);
  }

  // Pairs operands with operands and users with users, as far as that may pay, and goes back to the best
  // state on the way (B. W. Kernighan, S. Lin: An efficient heuristic procedure for partitioning graphs,
  // 1970).
  void grow(int a, int b) {
    if (!pair(a, b)) return;
    constexpr int patience = 100;  // in tenths of an addition
    most_ = 1 << random_.below(7);
    grown_.assign(1, a);
    best_cost_ = matching_.cost();
    best_ = matching_.history();
    for (int next = 0;
         next < grown_.size() && grown_.size() < most_ && matching_.cost() < best_cost_ + patience; ++next)
      spread(grown_[next]);
    matching_.undo(best_);
  }

  void spread(int u) {
    const int v = matching_.partner(u);
    if (v < 0) return;
    for (std::size_t slot = 0; slot < 2; ++slot) {
      if (graph_[u].in[slot] >= 0) take(u, graph_[u].in[slot], matching_.beside(u, slot));
    }
    for (const Use& mine : graph_.users(u)) {
      for (const Use& other : graph_.users(v)) {
        if (mine.slot == other.slot && graph_[mine.unit].subtracts == graph_[other.unit].subtracts)
          take(u, mine.unit, other.unit);
      }
    }
  }

  void take(int u, int a, int b) {
    if (grown_.size() >= most_) return;
    if (matching_.high(u)) std::swap(a, b);
    if (!pair(a, b)) return;
    grown_.push_back(a);
    if (matching_.cost() >= best_cost_) return;
    best_cost_ = matching_.cost();
    best_ = matching_.history();
  }

  Matching& matching_;
  const UnitGraph& graph_;
  Random& random_;
  Sequence<int> operations_, loads_, outputs_;
  Sequence<Classes> classes_;  // seen from farther and farther away
  Sequence<int> grown_;
  int most_ = 0, best_cost_ = 0, best_ = 0;
};

// The temperature falls geometrically from two additions to a tenth of one.
class Cooling {
 public:
  explicit Cooling(int moves) : a_step_(std::max(moves / steps, 1)) {}

  bool done() const { return step_ == steps; }
  void next() {
    if (++move_ < a_step_) return;
    move_ = 0;
    ++step_;
    temperature_ = temperature_ * ratio >> 16;
  }

  /// With the probability exp(-worse / temperature).
  bool accepts(std::int64_t worse, Random& random) const {
    return worse <= 0 || worse << 32 <= temperature_ * random.minus_log2();
  }

 private:
  static constexpr int steps = 128;
  static constexpr std::int64_t log_2 = 45426;  // times 2^16, as all three
  static constexpr std::int64_t ratio = 63908;  // (1/25)^(1/128)

  int a_step_, move_ = 0, step_ = 0;
  std::int64_t temperature_ = 20 * log_2;
};

Matching matching_of(const Sequence<Pair>& pairs, const UnitGraph& graph, const Sequence<Leaving>& leaving,
                     const PairCosts& costs) {
  Matching matching(graph, leaving, costs);
  for (const Pair& pair : pairs) matching.join(pair);
  return matching;
}

}  // namespace

Sequence<Pair> find_pairs(const Sequence<Unit>& units, const Sequence<Leaving>& leaving,
                          const PairCosts& costs, const Search& search) {
  const UnitGraph graph(units);
  Matching matching(graph, leaving, costs);
  Random random(search.seed);
  Moves moves(matching, leaving, random);
  if (moves.none()) return {};
  for (Cooling cooling(search.moves > 0 ? search.moves : 5000 + 150 * units.size()); !cooling.done();
       cooling.next()) {
    const int before = matching.cost();
    moves.make();
    if (!cooling.accepts(matching.cost() - before, random) || !matching.acyclic()) matching.undo(0);
    matching.accept();
  }
  return matching.pairs();
}

int cost_of(const Sequence<Pair>& pairs, const Sequence<Unit>& units, const Sequence<Leaving>& leaving,
            const PairCosts& costs) {
  const UnitGraph graph(units);
  return matching_of(pairs, graph, leaving, costs).cost();
}

Sequence<int> joint_stores(const Sequence<Pair>& pairs, const Sequence<Unit>& units,
                           const Sequence<Leaving>& leaving, const PairCosts& costs) {
  const UnitGraph graph(units);
  return matching_of(pairs, graph, leaving, costs).joint_stores();
}

}  // namespace xfm::gen
