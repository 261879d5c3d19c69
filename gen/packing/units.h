// Bringing units together: which registers hold which complex numbers, and how the target's permutations make
// a wanted register of them.
//
// A unit is a complex number of binary32 parts, two lanes that stay together; a register has a place for each
// of four. A wanted register is one that exists, or one instruction on registers that exist, or one
// instruction on two registers that hold a part of it each and are made in the same way. Among equally cheap
// ways the one is taken whose registers also hold units that other wanted registers of the stage can use.
#pragma once

#include <array>
#include <map>
#include <optional>

#include "gen/targets/target.h"

namespace xfm::gen {

class UnitPermuter {
 public:
  static constexpr int places = 4;

  /// A unit where it was computed: a place of a node. Negative nodes stand for nothing.
  struct Unit {
    NodeId node = -1;
    int place = 0;
    auto operator<=>(const Unit&) const = default;
  };
  using Wanted = std::array<Unit, places>;

  UnitPermuter(Network& network, const Target& target);

  /// Announces registers that will be wanted.
  void expect(const Sequence<Wanted>& all);

  /// A node with these units in its places. Places where none is wanted may hold anything.
  NodeId bring(const Wanted& wanted);

 private:
  using Number = int;                        // of a unit, or -1
  using Units = std::array<Number, places>;  // of a register
  struct Register {
    NodeId node;
    Units held;
  };
  // A register that exists, or how to make one.
  struct Plan {
    int cost = impossible;
    int serves = 0;  // wanted registers that can use what it makes on the way
    int known = -1;
    const Permutation* permutation = nullptr;
    Units a{}, b{};  // the operands; made first if there are none yet
    PerLane picks{};
  };
  static constexpr int impossible = 1 << 20;
  static constexpr int deepest = 3;

  Number number(const Unit& unit);
  Units numbers(const Wanted& wanted);
  int find(const Units& wanted) const;
  Plan plan(const Units& wanted, int depth);
  Plan by_one(const Units& wanted) const;
  Plan by_one(const Units& wanted, const Permutation& permutation, const Register& a,
              const Register& b) const;
  void by_two(const Units& wanted, const Permutation& permutation, int place, Plan& way, int depth,
              Plan& best);
  int served(const Units& held) const;
  int make(const Plan& plan, int depth);

  Network& network_;
  Sequence<const Permutation*> permutations_{};
  Sequence<Register> registers_{};
  Sequence<Unit> units_{};
  std::map<Unit, Number> numbers_{};
  Sequence<Sequence<int>> holders_{};              // of each unit: registers
  Sequence<Units> expected_{};                     // and not brought yet
  Sequence<Sequence<int>> expecting_{};            // of each unit: numbers in expected_
  std::map<std::pair<Units, int>, Plan> plans_{};  // until the next register is made
};

}  // namespace xfm::gen
