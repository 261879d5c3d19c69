#include "gen/packing/units.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace xfm::gen {
namespace {

constexpr int places = UnitPermuter::places;
constexpr int lanes_a_unit = 2;

// The places of `wanted` that an instruction can fill from a register; its places count from `first`.
template <class Units>
unsigned fills(const Permutation& permutation, const Units& wanted, const Units& held, int first) {
  unsigned filled = 0;
  for (unsigned l = 0; l < places; ++l) {
    for (unsigned k = 0; wanted[l] >= 0 && k < places; ++k) {
      if (held[k] == wanted[l] && permutation.allows(static_cast<int>(l), first + static_cast<int>(k)))
        filled |= 1U << l;
    }
  }
  return filled;
}

// What a register costs one of those that it serves.
template <class Plan>
int share(const Plan& plan) {
  return plan.cost / std::max(1, plan.serves);
}

}  // namespace

UnitPermuter::UnitPermuter(Network& network, const Target& target) : network_(network) {
  for (const Permutation& permutation : target.permutations) {
    if (permutation.suits(places, 8)) permutations_.push_back(&permutation);
  }
}

// A node that is new here is a register of four new units.
UnitPermuter::Number UnitPermuter::number(const Unit& unit) {
  if (unit.node < 0) return -1;
  if (const auto known = numbers_.find(unit); known != numbers_.end()) return known->second;
  Register& made = registers_.emplace_back(Register{unit.node, {}});
  for (int p = 0; p < places; ++p) {
    made.held[static_cast<std::size_t>(p)] = units_.size();
    numbers_[{unit.node, p}] = units_.size();
    units_.push_back({unit.node, p});
    holders_.push_back({registers_.size() - 1});
    expecting_.emplace_back();
  }
  plans_.clear();
  return numbers_.at(unit);
}

UnitPermuter::Units UnitPermuter::numbers(const Wanted& wanted) {
  Units units{};
  for (std::size_t l = 0; l < places; ++l) units[l] = number(wanted[l]);
  return units;
}

void UnitPermuter::expect(const Sequence<Wanted>& all) {
  for (const Wanted& wanted : all) {
    const Units units = numbers(wanted);
    for (const Number unit : units) {
      if (unit >= 0) expecting_[unit].push_back(expected_.size());
    }
    expected_.push_back(units);
  }
}

int UnitPermuter::find(const Units& wanted) const {
  const auto unit = std::find_if(wanted.begin(), wanted.end(), [](Number u) { return u >= 0; });
  for (const int r : holders_[*unit]) {
    const Units& held = registers_[r].held;
    bool all = true;
    for (std::size_t l = 0; l < places; ++l) all = all && (wanted[l] < 0 || wanted[l] == held[l]);
    if (all) return r;
  }
  return -1;
}

// The wanted registers that one more instruction can make of this one: those that it gives two places or
// more.
int UnitPermuter::served(const Units& held) const {
  int count = 0;
  Sequence<int> met;
  for (const Number unit : held) {
    if (unit < 0) continue;
    for (const int w : expecting_[unit]) {
      if (std::find(met.begin(), met.end(), w) != met.end()) continue;
      met.push_back(w);
      count += std::any_of(permutations_.begin(), permutations_.end(), [&](const Permutation* p) {
        return std::popcount(fills(*p, expected_[w], held, 0)) >= 2 ||
               std::popcount(fills(*p, expected_[w], held, places)) >= 2;
      });
    }
  }
  return count;
}

// The wanted places from two registers by one instruction; the others take what serves most.
UnitPermuter::Plan UnitPermuter::by_one(const Units& wanted, const Permutation& permutation,
                                        const Register& a, const Register& b) const {
  Plan best;
  PerLane picks(places);
  const auto choose = [&](const auto& self, int l) -> void {
    if (l == places) {
      Units held{};
      for (std::size_t p = 0; p < places; ++p) {
        const auto pick = static_cast<std::size_t>(picks[static_cast<int>(p)]);
        held[p] = pick < places ? a.held[pick] : b.held[pick - places];
      }
      const int serves = served(held);
      if (best.cost == impossible || serves > best.serves) {
        best = {.cost = permutation.cost,
                .serves = serves,
                .permutation = &permutation,
                .a = a.held,
                .b = b.held,
                .picks = picks};
      }
      return;
    }
    const Number unit = wanted[static_cast<std::size_t>(l)];
    for (int pick = 0; pick < 2 * places; ++pick) {
      if (!permutation.allows(l, pick)) continue;
      const auto k = static_cast<std::size_t>(pick % places);
      if (unit >= 0 && unit != (pick < places ? a : b).held[k]) continue;
      picks[l] = pick;
      self(self, l + 1);
      if (unit >= 0) return;
    }
  };
  choose(choose, 0);
  return best;
}

UnitPermuter::Plan UnitPermuter::by_one(const Units& wanted) const {
  Sequence<int> candidates;
  unsigned all = 0;
  for (std::size_t l = 0; l < places; ++l) {
    if (wanted[l] < 0) continue;
    all |= 1U << l;
    for (const int r : holders_[wanted[l]]) {
      if (std::find(candidates.begin(), candidates.end(), r) == candidates.end()) candidates.push_back(r);
    }
  }
  Plan best;
  for (const Permutation* const permutation : permutations_) {
    for (const int a : candidates) {
      const unsigned first = fills(*permutation, wanted, registers_[a].held, 0);
      for (const int b : candidates) {
        if ((first | fills(*permutation, wanted, registers_[b].held, places)) != all) continue;
        const Plan way = by_one(wanted, *permutation, registers_[a], registers_[b]);
        if (way.cost < best.cost || (way.cost == best.cost && way.serves > best.serves)) best = way;
      }
    }
  }
  return best;
}

// Every way to divide the wanted places, from this one on, between the operands of a permutation.
void UnitPermuter::by_two(const Units& wanted, const Permutation& permutation, int place, Plan& way,
                          int depth, Plan& best) {
  if (place == places) {
    if (way.a == wanted || way.b == wanted) return;
    const bool one = std::all_of(way.b.begin(), way.b.end(), [](Number u) { return u < 0; });
    const Plan a = plan(way.a, depth), b = one ? Plan{.cost = 0} : plan(way.b, depth);
    const int cost = permutation.cost + share(a) + share(b), serves = a.serves + b.serves;
    if (a.cost >= impossible || b.cost >= impossible) return;
    if (cost > best.cost || (cost == best.cost && serves <= best.serves)) return;
    best = way;
    best.cost = cost;
    best.serves = serves;
    if (one) best.b = best.a;
    return;
  }
  const auto l = static_cast<std::size_t>(place);
  for (int pick = 0; pick < 2 * places; ++pick) {
    if (!permutation.allows(place, pick)) continue;
    Number& source = (pick < places ? way.a : way.b)[static_cast<std::size_t>(pick % places)];
    const Number before = source;
    if (wanted[l] >= 0 && before >= 0 && before != wanted[l]) continue;
    if (wanted[l] >= 0) source = wanted[l];
    way.picks[place] = pick;
    by_two(wanted, permutation, place + 1, way, depth, best);
    source = before;
    if (wanted[l] < 0) return;
  }
}

UnitPermuter::Plan UnitPermuter::plan(const Units& wanted, int depth) {
  if (std::all_of(wanted.begin(), wanted.end(), [](Number u) { return u < 0; })) return {};
  if (const int known = find(wanted); known >= 0) return {.cost = 0, .known = known};
  if (depth == 0) return {};
  const auto key = std::pair(wanted, depth);
  if (const auto known = plans_.find(key); known != plans_.end()) return known->second;
  Plan best = by_one(wanted);
  if (best.cost == impossible && depth > 1) {
    constexpr Units none{-1, -1, -1, -1};
    for (const Permutation* const permutation : permutations_) {
      Plan way{.permutation = permutation, .a = none, .b = none, .picks = PerLane(places)};
      by_two(wanted, *permutation, 0, way, depth - 1, best);
    }
  }
  plans_[key] = best;
  return best;
}

int UnitPermuter::make(const Plan& way, int depth) {
  if (way.known >= 0) return way.known;
  const auto operand = [&](const Units& units) {
    const int known = find(units);
    return known >= 0 ? known : make(plan(units, depth - 1), depth - 1);
  };
  const int a = operand(way.a), b = operand(way.b);
  PerLane picks;
  Units held{};
  for (int l = 0; l < places; ++l) {
    const int pick = way.picks[l];
    held[static_cast<std::size_t>(l)] =
        registers_[pick < places ? a : b].held[static_cast<std::size_t>(pick % places)];
    for (int part = 0; part < lanes_a_unit; ++part) picks.push_back(lanes_a_unit * pick + part);
  }
  const Value made =
      network_.permute({&network_, registers_[a].node, false}, {&network_, registers_[b].node, false}, picks);
  const int r = registers_.size();
  registers_.push_back({made.node, held});
  for (int l = 0; l < places; ++l) {
    const Number unit = held[static_cast<std::size_t>(l)];
    holders_[unit].push_back(r);
    numbers_.try_emplace({made.node, l}, unit);
  }
  return r;
}

NodeId UnitPermuter::bring(const Wanted& wanted) {
  const Units units = numbers(wanted);
  int depth = 1;
  Plan way = plan(units, depth);
  while (way.cost >= impossible && depth < deepest) way = plan(units, ++depth);
  if (way.cost >= impossible) throw std::logic_error("units that the target cannot bring together");
  const NodeId node = registers_[make(way, depth)].node;
  plans_.clear();
  for (const Number unit : units) {
    if (unit < 0) continue;
    auto& waiting = expecting_[unit];
    std::erase_if(waiting, [&](int w) { return expected_[w] == units; });
  }
  return node;
}

}  // namespace xfm::gen
