// A matching of units in pairs, what it costs, and the way back from each change.
//
// The cost follows from the matching alone and is kept up to date pair by pair: what a pair wants is compared
// with what the other users of its operands want, and those are few.
#pragma once

#include "gen/packing/unit_graph.h"

namespace xfm::gen {

class Matching {
 public:
  Matching(const UnitGraph& graph, const Sequence<Leaving>& leaving, const PairCosts& costs);

  int cost() const { return cost_; }
  const UnitGraph& graph() const { return graph_; }

  bool paired(int u) const { return partners_[u] >= 0; }
  int partner(int u) const { return partners_[u]; }
  bool high(int u) const { return high_[u] != 0; }
  bool is_pair(int low, int high) const { return partners_[low] == high && high_[high] != 0; }
  /// The operand beside operand `slot` of a paired unit.
  int beside(int u, std::size_t slot) const {
    return graph_[partners_[u]].in[slot ^ static_cast<std::size_t>(crossed_[u])];
  }

  /// Whether the two may pair: operations of one kind, none of them computed from the other.
  bool alike(int u, int v) const;
  /// Whether a pair has two ways to put its operands together.
  bool can_cross(int u, int v) const { return graph_[u].commutative || graph_[v].commutative; }

  /// @name Changes. They can be taken back to an earlier length of the history.
  /// @{
  void join(int low, int high);  ///< both single; crossed if that is cheaper
  void join(const Pair& pair);
  void part(int u) { part(pair_of(u)); }
  void cross(int u);  ///< the other way to put a pair's operands together
  int history() const { return log_.size(); }
  void undo(int history);
  void accept() { log_.clear(); }
  /// @}

  /// Whether some order of all pairs and single units has operands before their users; asked before a change
  /// is accepted.
  bool acyclic();

  Sequence<Pair> pairs() const;
  Sequence<int> joint_stores() const;

 private:
  struct Change {
    Pair pair;
    bool joined;
    int cost;  ///< before
  };

  struct Lift {
    int unit, level;  ///< before
  };

  int vector_cost(const Vector& v) const;
  bool wanted(const Vector& v) const;
  int want_cost(const Vector& v) const { return wanted(v) ? 0 : vector_cost(v); }
  int sign_cost(const Pair& pair) const;
  int operands_cost(const Pair& pair) const;
  int results_cost(const Pair& pair) const;
  int alone_cost(int u) const;
  void use_alone(int u, int count);
  void count_alone(int u, int change);
  void set(const Pair& pair, bool joined);
  bool leaves_paired(int place) const;
  int store_cost(int place) const;
  int couple_cost(int couple) const;
  bool may_meet(int couple) const;
  int unit_at(int place) const { return place < 0 || place >= at_place_.size() ? -1 : at_place_[place]; }
  Pair pair_of(int u) const;
  bool find_levels();
  void lift(int u, int level);
  void part(const Pair& pair);

  const UnitGraph& graph_;
  const PairCosts& costs_;
  Sequence<int> partners_;
  Sequence<char> high_, crossed_;
  Sequence<int> uses_, alone_;       // by all, stores included, and by single units
  Sequence<int> at_place_;           // what leaves to a place, or -1
  Sequence<Sequence<int>> couples_;  // of places, that a unit leaves to
  int cost_ = 0;
  Sequence<Change> log_;
  Sequence<Lift> lifted_;
  Sequence<int> levels_, new_levels_, waiting_, ready_;
};

}  // namespace xfm::gen
