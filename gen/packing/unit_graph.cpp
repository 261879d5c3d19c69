#include "gen/packing/unit_graph.h"

#include <algorithm>

namespace xfm::gen {

UnitGraph::UnitGraph(const Sequence<Unit>& units)
    : units_(units),
      first_(units.size() + 1),
      row_((units.size() + 63) / 64),
      ancestors_(units.size() * row_) {
  link();
  inherit();
}

void UnitGraph::link() {
  const auto each_use = [&](auto meet) {
    for (int u = 0; u < size(); ++u) {
      for (std::size_t slot = 0; slot < 2; ++slot)
        if (units_[u].in[slot] >= 0) meet(units_[u].in[slot], Use{u, slot});
    }
  };
  each_use([&](int operand, Use) { ++first_[operand + 1]; });
  for (int u = 0; u < size(); ++u) first_[u + 1] += first_[u];
  users_.resize(static_cast<std::size_t>(first_[size()]));
  Sequence<int> next = first_;
  each_use([&](int operand, Use use) { users_[next[operand]++] = use; });
}

void UnitGraph::inherit() {
  for (int u = 0; u < size(); ++u) {
    for (const int operand : units_[u].in) {
      if (operand < 0) continue;
      for (int word = 0; word < row_; ++word)
        ancestors_[u * row_ + word] |= ancestors_[operand * row_ + word];
      ancestors_[u * row_ + operand / 64] |= std::uint64_t{1} << (operand % 64);
    }
  }
}

namespace {

using Colour = std::uint64_t;

Colour mixed(Colour a, Colour b) {
  const Colour product = (a ^ (b + 0x9e3779b97f4a7c15U)) * 0xff51afd7ed558ccdU;
  return product ^ (product >> 32);
}

// The colour of a unit and of all around it. A sum of colours does not depend on their order.
Colour surroundings(const UnitGraph& graph, const Sequence<Colour>& colours, int u) {
  const auto through = [&](int unit, std::size_t slot, int other) {
    return mixed(colours[other], graph[unit].commutative ? 2 : slot);
  };
  Colour before = 0, after = 0;
  for (std::size_t slot = 0; slot < 2; ++slot)
    if (graph[u].in[slot] >= 0) before += through(u, slot, graph[u].in[slot]);
  for (const Use& use : graph.users(u)) after += through(use.unit, use.slot, use.unit);
  return mixed(mixed(colours[u], before), after);
}

}  // namespace

// Refinement of colours (B. Weisfeiler, A. Lehman 1968).
Classes likeness(const UnitGraph& graph, int steps) {
  Sequence<Colour> colours(graph.size()), refined(graph.size());
  for (int u = 0; u < graph.size(); ++u)
    colours[u] = mixed(static_cast<Colour>(graph[u].kind), graph[u].load >= 0);
  for (int step = 0; step < steps; ++step) {
    for (int u = 0; u < graph.size(); ++u) refined[u] = surroundings(graph, colours, u);
    colours.swap(refined);
  }
  Sequence<Colour> distinct = colours;
  std::sort(distinct.begin(), distinct.end());
  distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
  Classes classes{Sequence<int>(graph.size()), Sequence<Sequence<int>>(distinct.size())};
  for (int u = 0; u < graph.size(); ++u) {
    const auto colour = std::lower_bound(distinct.begin(), distinct.end(), colours[u]);
    classes.of[u] = static_cast<int>(colour - distinct.begin());
    classes.members[classes.of[u]].push_back(u);
  }
  return classes;
}

}  // namespace xfm::gen
