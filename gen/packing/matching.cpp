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

namespace {

bool contains(const Sequence<int>& numbers, int n) {
  return std::find(numbers.begin(), numbers.end(), n) != numbers.end();
}

}  // namespace

Matching::Matching(const UnitGraph& graph, const Sequence<Leaving>& leaving, const PairCosts& costs)
    : graph_(graph),
      costs_(costs),
      partners_(graph.size(), -1),
      high_(graph.size()),
      crossed_(graph.size()),
      uses_(graph.size()),
      alone_(graph.size()),
      couples_(graph.size()),
      levels_(graph.size()),
      new_levels_(graph.size()),
      waiting_(graph.size()) {
  for (int u = 0; u < graph.size(); ++u) {
    if (graph[u].load < 0) cost_ += costs.kind[graph[u].kind];
    uses_[u] = static_cast<int>(graph.users(u).size());
    use_alone(u, 1);
  }
  for (const auto& [unit, place] : leaving) {
    ++uses_[unit];
    if (place >= at_place_.size()) at_place_.resize(static_cast<std::size_t>(place) + 1, -1);
    at_place_[place] = unit;
    if (!contains(couples_[unit], place / 2)) couples_[unit].push_back(place / 2);
  }
  for (int couple = 0; 2 * couple < at_place_.size(); ++couple) cost_ += couple_cost(couple);
  find_levels();
}

// Units of one level never depend on each other.
bool Matching::alike(int u, int v) const {
  if (u == v || graph_[u].kind != graph_[v].kind || graph_[u].load >= 0) return false;
  return levels_[u] == levels_[v] || !graph_.depend(u, v);
}

// A register of these two values, if nobody else wants it.
int Matching::vector_cost(const Vector& v) const {
  const int p = graph_[v[0]].load, q = graph_[v[1]].load;
  if (p >= 0 && q >= 0) return p == q || p + 1 == q ? costs_.load : costs_.load + costs_.merged_load;
  if (p >= 0 || q >= 0) return costs_.merged_load;
  return is_pair(v[0], v[1]) ? 0 : costs_.shuffle;
}

bool Matching::wanted(const Vector& v) const {
  const auto users = graph_.users(v[0]);
  return std::any_of(users.begin(), users.end(), [&](const Use& use) {
    return paired(use.unit) && !high(use.unit) && beside(use.unit, use.slot) == v[1];
  });
}

int Matching::sign_cost(const Pair& pair) const {
  const Unit &low = graph_[pair.low], &high = graph_[pair.high];
  if (low.subtracts == high.subtracts) return 0;
  const auto [second_low, second_high] = operand_vectors(graph_.units(), pair)[1];
  for (const int operand : {second_low, second_high}) {
    if (graph_[operand].constant_product && uses_[operand] == 1) return 0;
  }
  return low.subtracts ? costs_.alternating_signs : costs_.flip;
}

// What the operand vectors of a pair and their signs cost beside those of the other pairs.
int Matching::operands_cost(const Pair& pair) const {
  const auto [first, second] = operand_vectors(graph_.units(), pair);
  const bool other = second[0] >= 0 && second != first;
  return sign_cost(pair) + want_cost(first) + (other ? want_cost(second) : 0);
}

// What the results of two units cost: out of the high lane, next to each other, and into memory.
int Matching::results_cost(const Pair& pair) const {
  int cost = alone_cost(pair.low) + alone_cost(pair.high);
  if (wanted({pair.low, pair.high})) cost += vector_cost({pair.low, pair.high});
  for (const int couple : couples_[pair.low]) cost += couple_cost(couple);
  for (const int couple : couples_[pair.high])
    if (!contains(couples_[pair.low], couple)) cost += couple_cost(couple);
  return cost;
}

// Extraction from the high lane, or the load of a single value.
int Matching::alone_cost(int u) const {
  if (alone_[u] == 0) return 0;
  return graph_[u].load >= 0 ? costs_.load : high(u) ? costs_.shuffle : 0;
}

void Matching::use_alone(int u, int count) {
  for (const int operand : graph_[u].in) {
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

// An even place and the next, whose values may be shuffled together if no pair leaves there.
int Matching::couple_cost(int couple) const {
  const int apart = store_cost(2 * couple) + store_cost(2 * couple + 1);
  return may_meet(couple) ? std::min(apart, costs_.store + costs_.shuffle) : apart;
}

bool Matching::may_meet(int couple) const {
  const int p = 2 * couple, q = p + 1;
  return unit_at(p) >= 0 && unit_at(q) >= 0 && !leaves_paired(p) && !leaves_paired(q);
}

Sequence<int> Matching::joint_stores() const {
  Sequence<int> places;
  for (int p = 0; p < at_place_.size(); ++p) {
    const bool pair = leaves_paired(p) && !high(unit_at(p));
    const bool meet =
        p % 2 == 0 && may_meet(p / 2) && costs_.store + costs_.shuffle < store_cost(p) + store_cost(p + 1);
    if (pair || meet) places.push_back(p);
  }
  return places;
}

// Links two units or separates them, whatever that costs.
void Matching::set(const Pair& pair, bool joined) {
  partners_[pair.low] = joined ? pair.high : -1;
  partners_[pair.high] = joined ? pair.low : -1;
  high_[pair.high] = joined ? 1 : 0;
  crossed_[pair.low] = crossed_[pair.high] = joined && pair.crossed ? 1 : 0;
}

void Matching::count_alone(int u, int change) {
  for (const int operand : graph_[u].in) {
    if (operand >= 0) alone_[operand] += change;
  }
}

void Matching::join(const Pair& pair) {
  log_.push_back({pair, true, cost_});
  use_alone(pair.low, -1);
  use_alone(pair.high, -1);
  cost_ += operands_cost(pair) - costs_.kind[graph_[pair.low].kind] - results_cost(pair);
  set(pair, true);
  cost_ += results_cost(pair);
}

void Matching::part(const Pair& pair) {
  log_.push_back({pair, false, cost_});
  cost_ -= results_cost(pair);
  set(pair, false);
  cost_ -= operands_cost(pair) - costs_.kind[graph_[pair.low].kind] - results_cost(pair);
  use_alone(pair.low, 1);
  use_alone(pair.high, 1);
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
  for (; log_.size() > history; log_.pop_back()) {
    const Change& last = log_.back();
    set(last.pair, !last.joined);
    for (const int u : {last.pair.low, last.pair.high}) count_alone(u, last.joined ? 1 : -1);
    cost_ = last.cost;
  }
}

// Levels rise along every edge of the graph of pairs, which shows that there is no cycle. New pairs whose
// units had one level leave that so. Others lift what is above them; where that takes long, the levels are
// found anew.
bool Matching::acyclic() {
  lifted_.clear();
  for (const Change& change : log_) {
    const auto [low, high, crossed] = change.pair;
    if (is_pair(low, high) && levels_[low] != levels_[high]) lift(low, std::max(levels_[low], levels_[high]));
  }
  const int most = 32 + graph_.size() / 8;
  for (int next = 0; next < lifted_.size() && lifted_.size() < most; ++next) {
    const int u = lifted_[next].unit;
    for (const Use& use : graph_.users(u)) lift(use.unit, levels_[u] + 1);
  }
  if (lifted_.size() < most) return true;
  for (; !lifted_.empty(); lifted_.pop_back()) levels_[lifted_.back().unit] = lifted_.back().level;
  return find_levels();
}

// To a level at least, with the partner.
void Matching::lift(int u, int level) {
  if (levels_[u] < level) {
    lifted_.push_back({u, levels_[u]});
    levels_[u] = level;
  }
  if (paired(u) && levels_[partner(u)] < level) lift(partner(u), level);
}

// Takes away what has no operands left, pair by pair, until nothing is left (A. B. Kahn 1962).
bool Matching::find_levels() {
  const auto group = [&](int u) { return high(u) ? partner(u) : u; };
  int groups = 0;
  ready_.clear();
  for (int u = 0; u < graph_.size(); ++u) {
    if (high(u)) continue;
    ++groups;
    waiting_[u] = graph_.operands(u) + (paired(u) ? graph_.operands(partner(u)) : 0);
    new_levels_[u] = 0;
    if (waiting_[u] == 0) ready_.push_back(u);
  }
  for (int next = 0; next < ready_.size(); ++next) {
    const int u = ready_[next];
    const auto finish = [&](int v) {
      for (const Use& use : graph_.users(v)) {
        const int g = group(use.unit);
        new_levels_[g] = std::max(new_levels_[g], new_levels_[u] + 1);
        if (--waiting_[g] == 0) ready_.push_back(g);
      }
    };
    finish(u);
    if (paired(u)) finish(partner(u));
  }
  if (ready_.size() < groups) return false;
  for (int u = 0; u < graph_.size(); ++u) levels_[u] = new_levels_[group(u)];
  return true;
}

Sequence<Pair> Matching::pairs() const {
  Sequence<Pair> all;
  for (int u = 0; u < graph_.size(); ++u) {
    if (paired(u) && !high(u)) all.push_back(pair_of(u));
  }
  return all;
}

}  // namespace xfm::gen
