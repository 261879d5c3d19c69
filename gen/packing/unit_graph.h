// What does not change while pairs are searched for: who uses a unit, what it depends on, and which units
// stand alike in the graph.
#pragma once

#include <cstdint>
#include <span>

#include "gen/packing/pairs.h"

namespace xfm::gen {

/// A unit that uses a value, and as which operand.
struct Use {
  int unit;
  std::size_t slot;
};

class UnitGraph {
 public:
  explicit UnitGraph(const Sequence<Unit>& units);

  const Sequence<Unit>& units() const { return units_; }
  int size() const { return units_.size(); }
  const Unit& operator[](int u) const { return units_[u]; }
  int operands(int u) const { return (units_[u].in[0] >= 0 ? 1 : 0) + (units_[u].in[1] >= 0 ? 1 : 0); }
  std::span<const Use> users(int u) const {
    return std::span(users_).subspan(static_cast<std::size_t>(first_[u]),
                                     static_cast<std::size_t>(first_[u + 1] - first_[u]));
  }

  /// Whether one of the two is computed from the other.
  bool depend(int u, int v) const { return follows(u, v) || follows(v, u); }

 private:
  bool follows(int late, int early) const {
    return (ancestors_[late * row_ + early / 64] >> (early % 64) & 1) != 0;
  }
  void link();
  void inherit();

  const Sequence<Unit>& units_;
  Sequence<int> first_;
  Sequence<Use> users_;
  int row_;
  Sequence<std::uint64_t> ancestors_;  // a row of bits for each unit
};

/// Units sorted into classes.
struct Classes {
  Sequence<int> of;  ///< the class of each unit
  Sequence<Sequence<int>> members;
};

/// Classes of units that look alike as far as this many steps away. Units that correspond in isomorphic parts
/// of the graph are in one class; the reverse need not hold.
Classes likeness(const UnitGraph& graph, int steps);

}  // namespace xfm::gen
