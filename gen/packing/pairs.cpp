#include "gen/packing/pairs.h"

#include <algorithm>
#include <bit>

#include "gen/packing/matching.h"

namespace xfm::gen {
namespace {

// S. Vigna's splitmix64: small, and the same everywhere.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed) {}

  std::uint64_t bits() {
    std::uint64_t z = state_ += 0x9e3779b97f4a7c15U;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
    return z ^ (z >> 31);
  }
  int below(int n) { return static_cast<int>((bits() >> 32) * static_cast<std::uint64_t>(n) >> 32); }
  bool one_in(int n) { return below(n) == 0; }

  // -log2 of a number between 0 and 1, in units of 2^-16; straight between the powers of two.
  std::int64_t logarithm() {
    const std::uint64_t r = bits() | 1;
    const int zeros = std::countl_zero(r);
    const std::uint64_t fraction = (r << zeros << 1) >> 48;
    return (std::int64_t{zeros + 1} << 16) - static_cast<std::int64_t>(fraction);
  }

 private:
  std::uint64_t state_;
};

class Moves {
 public:
  Moves(Matching& matching, const Sequence<Leaving>& leaving, Random& random)
      : matching_(matching), random_(random) {
    for (int u = 0; u < matching.size(); ++u) {
      const Unit& unit = matching.unit(u);
      if (unit.load >= 0) {
        if (unit.load >= loads_.size()) loads_.resize(static_cast<std::size_t>(unit.load) + 1, -1);
        loads_[unit.load] = u;
        continue;
      }
      operations_.push_back(u);
      if (unit.kind >= of_kind_.size()) of_kind_.resize(static_cast<std::size_t>(unit.kind) + 1);
      of_kind_[unit.kind].push_back(u);
    }
    for (const Leaving& l : leaving) {
      if (l.place >= outputs_.size()) outputs_.resize(static_cast<std::size_t>(l.place) + 1, -1);
      outputs_[l.place] = l.unit;
    }
  }

  bool none() const { return operations_.empty(); }

  // Changes the matching somewhere.
  void make() {
    const int which = random_.below(16);
    if (which < 6) {
      beside_operands();
    } else if (which < 10) {
      beside_users();
    } else if (which < 11) {
      neighbours();
    } else if (which < 13) {
      anywhere();
    } else if (which < 14) {
      stretch();
    } else if (which < 15) {
      flip();
    } else {
      single_or_crossed();
    }
  }

 private:
  int any() { return operations_[random_.below(operations_.size())]; }

  void beside_operands() {
    const int u = any();
    if (!matching_.paired(u)) return anywhere();
    const std::size_t slot = matching_.unit(u).in[1] >= 0 && random_.one_in(2) ? 1 : 0;
    const int a = matching_.unit(u).in[slot], b = matching_.beside(u, slot);
    if (matching_.high(u)) {
      grow(b, a);
    } else {
      grow(a, b);
    }
  }

  void beside_users() {
    const int u = any();
    if (!matching_.paired(u)) return anywhere();
    const int v = matching_.partner(u);
    if (matching_.users(u).empty() || matching_.users(v).empty()) return;
    const int a = some_user(u), b = some_user(v);
    if (matching_.high(u)) {
      grow(b, a);
    } else {
      grow(a, b);
    }
  }

  int some_user(int u) { return matching_.users(u)[random_.below(matching_.users(u).size())].unit; }

  void neighbours() {
    if (random_.one_in(2)) {
      if (outputs_.size() < 2) return;
      const int p = random_.below(outputs_.size() - 1);
      const int a = outputs_[p], b = outputs_[p + 1];
      if (a >= 0 && b >= 0) grow(a, b);
    } else {
      if (loads_.size() < 2) return;
      const int p = random_.below(loads_.size() - 1);
      const int a = loads_[p], b = loads_[p + 1];
      if (a >= 0 && b >= 0) grow(some_user(a), some_user(b));
    }
  }

  void anywhere() {
    const int a = any();
    const Sequence<int>& others = of_kind_[matching_.unit(a).kind];
    grow(a, others[random_.below(others.size())]);
  }

  void stretch() {
    const int from = random_.below(operations_.size()), by = 1 + random_.below(operations_.size() / 2);
    const int length = 1 + random_.below(32);
    for (int i = from; i < from + length && i + by < operations_.size(); ++i)
      pair(operations_[i], operations_[i + by]);
  }

  // Lanes of a group that hangs together change places.
  void flip() {
    const int u = any();
    if (!matching_.paired(u)) return;
    group_.assign(1, u);
    const int most = 1 << random_.below(8);
    for (int next = 0; next < group_.size() && next < most; ++next) {
      const int w = group_[next];
      const int v = matching_.partner(w);
      if (matching_.high(w)) {
        repair(w, v);
      } else {
        repair(v, w);
      }
      const auto meet = [&](int x, int y) {
        if (matching_.paired(x) && matching_.partner(x) == y &&
            std::find(group_.begin(), group_.end(), x) == group_.end() &&
            std::find(group_.begin(), group_.end(), y) == group_.end())
          group_.push_back(x);
      };
      for (std::size_t slot = 0; slot < 2; ++slot) {
        if (matching_.unit(w).in[slot] >= 0) meet(matching_.unit(w).in[slot], matching_.beside(w, slot));
      }
      for (const Use& use : matching_.users(w)) {
        if (matching_.paired(use.unit) && matching_.beside(use.unit, use.slot) == v)
          meet(use.unit, matching_.partner(use.unit));
      }
    }
  }

  void repair(int low, int high) {
    matching_.part(low);
    matching_.join(low, high);
  }

  void single_or_crossed() {
    const int u = any();
    if (!matching_.paired(u)) return;
    if (matching_.can_cross(u, matching_.partner(u)) && random_.one_in(2)) {
      matching_.cross(u);
    } else {
      matching_.part(u);
    }
  }

  bool pair(int a, int b) {
    if (!matching_.alike(a, b) || matching_.is_pair(a, b)) return false;
    const int c = matching_.partner(a), d = matching_.partner(b);
    const bool a_low = c >= 0 && !matching_.high(a);
    if (c >= 0) matching_.part(a);
    if (d >= 0 && d != a) matching_.part(b);
    matching_.join(a, b);
    if (c >= 0 && d >= 0 && c != b && matching_.alike(c, d) && !random_.one_in(4)) {
      if (a_low)
        matching_.join(d, c);
      else
        matching_.join(c, d);
    }
    return true;
  }

  void grow(int a, int b) {
    if (!pair(a, b)) return;
    const int most = 1 << random_.below(7);
    group_.assign(1, a);
    int best_cost = matching_.cost(), best = matching_.history();
    int made = 1;
    for (int next = 0; next < group_.size() && made < most; ++next) {
      const int u = group_[next], v = matching_.partner(u);
      if (v < 0) continue;
      const bool low = !matching_.high(u);
      const auto meet = [&](int x, int y) {
        if (made >= most) return;
        if (!low) std::swap(x, y);
        if (pair(x, y)) {
          ++made;
          group_.push_back(x);
          if (matching_.cost() < best_cost) {
            best_cost = matching_.cost();
            best = matching_.history();
          }
        }
      };
      for (std::size_t slot = 0; slot < 2; ++slot) {
        const int x = matching_.unit(u).in[slot];
        if (x >= 0 && matching_.partner(u) == v) meet(x, matching_.beside(u, slot));
      }
      for (const Use& mine : matching_.users(u)) {
        for (const Use& other : matching_.users(v)) {
          if (mine.slot == other.slot &&
              matching_.unit(mine.unit).subtracts == matching_.unit(other.unit).subtracts)
            meet(mine.unit, other.unit);
        }
      }
    }
    matching_.undo(best);
  }

  Matching& matching_;
  Random& random_;
  Sequence<int> operations_, loads_, outputs_, group_;
  Sequence<Sequence<int>> of_kind_;
};

}  // namespace

Sequence<Pair> find_pairs(const Sequence<Unit>& units, const Sequence<Leaving>& leaving,
                          const PairCosts& costs, const Search& search) {
  Matching matching(units, leaving, costs);
  Random random(search.seed);
  Moves moves(matching, leaving, random);
  if (moves.none()) return {};
  const int total = search.moves > 0 ? search.moves : 150 * units.size();
  constexpr int steps = 128;
  // In tenths, times 2^16 * ln 2: from 12 to 0.8 in 128 steps.
  std::int64_t temperature = 12 * 45426;
  for (int step = 0; step < steps; ++step) {
    for (int i = 0; i < total / steps; ++i) {
      const int before = matching.cost();
      moves.make();
      const std::int64_t worse = matching.cost() - before;
      const bool taken = worse <= 0 || (worse << 32) <= temperature * random.logarithm();
      if (!taken || (matching.history() > 0 && !matching.acyclic())) matching.undo(0);
      matching.accept();
    }
    temperature = temperature * 64164 >> 16;
  }
  return matching.pairs();
}

}  // namespace xfm::gen
