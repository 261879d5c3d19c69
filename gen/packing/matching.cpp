#include "gen/packing/matching.h"

#include <algorithm>
#include <utility>

namespace xfm::gen {

std::array<Vector, 2> operand_vectors(const Sequence<Unit>& units, const Pair& pair) {
  std::array<int, 2> low = units[pair.low].in, high = units[pair.high].in;
  if (pair.crossed) {
    if (units[pair.high].commutative) {
      std::swap(high[0], high[1]);
    } else {
      std::swap(low[0], low[1]);
    }
  }
  return {{{low[0], high[0]}, {low[1], high[1]}}};
}

Matching::Matching(const Sequence<Unit>& units, const Sequence<Leaving>& leaving, const PairCosts& costs)
    : units_(units),
      costs_(costs),
      users_(units.size()),
      row_((units.size() + 63) / 64),
      uses_(units.size()),
      mates_(units.size(), -1),
      high_(units.size()),
      crossed_(units.size()),
      alone_(units.size()),
      places_(units.size(), -1),
      waiting_(units.size()) {
  ancestors_.resize(static_cast<std::size_t>(size() * row_));
  for (int u = 0; u < size(); ++u) {
    if (unit(u).load < 0) cost_ += costs.kind[unit(u).kind];
    for (std::size_t slot = 0; slot < 2; ++slot) {
      const int operand = unit(u).in[slot];
      if (operand < 0) continue;
      users_[operand].push_back({u, slot});
      ++uses_[operand];
      for (int word = 0; word < row_; ++word)
        ancestors_[u * row_ + word] |= ancestors_[operand * row_ + word];
      ancestors_[u * row_ + operand / 64] |= std::uint64_t{1} << (operand % 64);
    }
    use_alone(u, 1);
  }
  for (const Leaving& l : leaving) {
    ++uses_[l.unit];
    if (l.place >= at_place_.size()) at_place_.resize(static_cast<std::size_t>(l.place) + 1, -1);
    at_place_[l.place] = l.unit;
    places_[l.unit] = l.place;
  }
  for (int couple = 0; 2 * couple < at_place_.size(); ++couple) cost_ += couple_cost(couple);
}

bool Matching::alike(int u, int v) const {
  const auto follows = [&](int late, int early) {
    return (ancestors_[late * row_ + early / 64] >> (early % 64) & 1) != 0;
  };
  return u != v && unit(u).kind == unit(v).kind && unit(u).load < 0 && !follows(u, v) && !follows(v, u);
}

// A register of these two values, if nobody else wants it.
int Matching::vector_cost(const Vector& v) const {
  const int p = unit(v[0]).load, q = unit(v[1]).load;
  if (p >= 0 && q >= 0) return p == q || p + 1 == q ? costs_.load : costs_.load + costs_.merged_load;
  if (p >= 0 || q >= 0) return costs_.merged_load;
  return is_pair(v[0], v[1]) ? 0 : costs_.shuffle;
}

bool Matching::wanted(const Vector& v) const {
  return std::any_of(users_[v[0]].begin(), users_[v[0]].end(), [&](const Use& use) {
    return paired(use.unit) && !high(use.unit) && beside(use.unit, use.slot) == v[1];
  });
}

int Matching::sign_cost(const Pair& pair) const {
  const Unit &low = unit(pair.low), &high = unit(pair.high);
  if (low.subtracts == high.subtracts) return 0;
  const auto [second_low, second_high] = operand_vectors(units_, pair)[1];
  for (const int operand : {second_low, second_high}) {
    if (unit(operand).constant_product && uses_[operand] == 1) return 0;
  }
  return low.subtracts ? costs_.alternating_signs : costs_.flip;
}

// What the operand vectors of a pair and their signs cost beside those of the other pairs.
int Matching::operands_cost(const Pair& pair) const {
  const auto [first, second] = operand_vectors(units_, pair);
  const bool other = second[0] >= 0 && second != first;
  return sign_cost(pair) + want_cost(first) + (other ? want_cost(second) : 0);
}

// What the results of two units cost: out of the high lane, next to each other, and into memory.
int Matching::results_cost(const Pair& pair) const {
  const int first = places_[pair.low] / 2, second = places_[pair.high] / 2;
  int cost = alone_cost(pair.low) + alone_cost(pair.high);
  if (wanted({pair.low, pair.high})) cost += vector_cost({pair.low, pair.high});
  if (places_[pair.low] >= 0) cost += couple_cost(first);
  if (places_[pair.high] >= 0 && (first != second || places_[pair.low] < 0)) cost += couple_cost(second);
  return cost;
}

// Extraction from the high lane, or the load of a single value.
int Matching::alone_cost(int u) const {
  if (alone_[u] == 0) return 0;
  return unit(u).load >= 0 ? costs_.load : high(u) ? costs_.shuffle : 0;
}

void Matching::use_alone(int u, int count) {
  for (const int operand : unit(u).in) {
    if (operand < 0) continue;
    cost_ -= alone_cost(operand);
    alone_[operand] += count;
    cost_ += alone_cost(operand);
  }
}

bool Matching::leaves_paired(int place) const {
  const int u = unit_at(place);
  return u >= 0 && paired(u) && unit_at(high(u) ? place - 1 : place + 1) == partner(u);
}

// The store of one place; that of a pair counts at its low lane.
int Matching::store_cost(int place) const {
  const int u = unit_at(place);
  if (u < 0 || (high(u) && leaves_paired(place))) return 0;
  return costs_.store + (high(u) ? costs_.upper_store : 0);
}

// Two places side by side, apart or shuffled together if both are free.
int Matching::couple_cost(int couple) const {
  const int p = 2 * couple, q = p + 1, a = unit_at(p), b = unit_at(q);
  const int apart = store_cost(p) + store_cost(q);
  if (a < 0 || b < 0 || leaves_paired(p) || leaves_paired(q)) return apart;
  return std::min(apart, costs_.store + costs_.shuffle);
}

void Matching::join(const Pair& pair) {
  use_alone(pair.low, -1);
  use_alone(pair.high, -1);
  cost_ += operands_cost(pair) - costs_.kind[unit(pair.low).kind] - results_cost(pair);
  mates_[pair.low] = pair.high;
  mates_[pair.high] = pair.low;
  high_[pair.high] = 1;
  crossed_[pair.low] = crossed_[pair.high] = pair.crossed ? 1 : 0;
  cost_ += results_cost(pair);
  log_.push_back({pair, true});
}

void Matching::part(const Pair& pair) {
  cost_ -= results_cost(pair);
  mates_[pair.low] = mates_[pair.high] = -1;
  high_[pair.high] = 0;
  crossed_[pair.low] = crossed_[pair.high] = 0;
  cost_ -= operands_cost(pair) - costs_.kind[unit(pair.low).kind] - results_cost(pair);
  use_alone(pair.low, 1);
  use_alone(pair.high, 1);
  log_.push_back({pair, false});
}

void Matching::join(int low, int high) {
  Pair pair{low, high, false}, other{low, high, true};
  if (can_cross(low, high) && operands_cost(other) < operands_cost(pair)) std::swap(pair, other);
  join(pair);
}

Pair Matching::pair_of(int u) const {
  const int low = high(u) ? partner(u) : u;
  return {low, partner(low), crossed_[u] != 0};
}

void Matching::cross(int u) {
  Pair pair = pair_of(u);
  part(pair);
  pair.crossed = !pair.crossed;
  join(pair);
}

void Matching::undo(int history) {
  while (log_.size() > history) {
    const Change last = log_.back();
    if (last.joined) {
      part(last.pair);
    } else {
      join(last.pair);
    }
    log_.pop_back();
    log_.pop_back();
  }
}

// Takes away what has no operands left, pair by pair, until nothing is left (A. B. Kahn 1962).
bool Matching::acyclic() {
  ready_.clear();
  const auto group = [&](int u) { return high(u) ? partner(u) : u; };
  for (int u = 0; u < size(); ++u) waiting_[u] = 0;
  int groups = 0;
  for (int u = 0; u < size(); ++u) {
    for (const int operand : unit(u).in) waiting_[group(u)] += operand >= 0 ? 1 : 0;
    groups += high(u) ? 0 : 1;
  }
  for (int u = 0; u < size(); ++u) {
    if (!high(u) && waiting_[u] == 0) ready_.push_back(u);
  }
  const auto finish = [&](int u) {
    for (const Use& use : users(u)) {
      const int g = group(use.unit);
      if (--waiting_[g] == 0) ready_.push_back(g);
    }
  };
  for (int next = 0; next < ready_.size(); ++next) {
    const int u = ready_[next];
    finish(u);
    if (paired(u)) finish(partner(u));
  }
  return ready_.size() == groups;
}

Sequence<Pair> Matching::pairs() const {
  Sequence<Pair> all;
  for (int u = 0; u < size(); ++u) {
    if (paired(u) && !high(u)) all.push_back(pair_of(u));
  }
  return all;
}

}  // namespace xfm::gen
