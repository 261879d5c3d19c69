#include "gen/packing/permuter.h"

#include <algorithm>
#include <stdexcept>

namespace xfm::gen {

NodeId Permuter::make(NodeId a, NodeId b, PerLane picks) {
  const NodeId id = network_.permute({&network_, a, false}, {&network_, b, false}, std::move(picks)).node;
  if (std::find(made_.begin(), made_.end(), id) == made_.end()) made_.push_back(id);
  return id;
}

Place Permuter::content(Place place) const {
  while (network_.node(place.node).op == Op::permute)
    place = network_.source(network_.node(place.node), place.lane);
  return place;
}

// Where both operands are the same, a lane may come from either.
NodeId Permuter::permuted(NodeId a, NodeId b, PerLane picks) {
  Places wanted;
  for (const int pick : picks) wanted.push_back({pick < width() ? a : b, pick % width()});
  for (const Permutation& permutation : target_.permutations) {
    if (const NodeId id = by_one(permutation, wanted, a, b); id >= 0) return id;
  }
  throw std::logic_error("the target has no such permutation");
}

// A node that has the wanted lanes already, or -1.
NodeId Permuter::find(const Places& wanted) const {
  const auto holds = [&](NodeId node) {
    for (int l = 0; l < width(); ++l) {
      if (!wanted[l].idle() && wanted[l] != content({node, l})) return false;
    }
    return true;
  };
  if (holds(wanted[0].node)) return wanted[0].node;
  const auto found = std::find_if(made_.begin(), made_.end(), holds);
  return found == made_.end() ? -1 : *found;
}

NodeId Permuter::by_one(const Permutation& permutation, const Places& wanted, NodeId a, NodeId b) {
  if (!permutation.suits(width(), lane_bytes_)) return -1;
  PerLane picks = permutation.idle;
  for (int l = 0; l < width(); ++l) {
    const auto [node, lane] = wanted[l];
    if (node < 0) continue;
    if (node == a && permutation.allows(l, lane)) {
      picks[l] = lane;
    } else if (node == b && permutation.allows(l, width() + lane)) {
      picks[l] = width() + lane;
    } else {
      return -1;
    }
  }
  return make(a, b, std::move(picks));
}

// The wanted lanes from at most two nodes by one instruction, or -1.
NodeId Permuter::by_one(const Places& wanted) {
  Sequence<NodeId> sources;
  for (const Place& place : wanted) {
    if (!place.idle() && std::find(sources.begin(), sources.end(), place.node) == sources.end())
      sources.push_back(place.node);
  }
  if (sources.size() > 2) return -1;
  const NodeId a = sources.front(), b = sources.back();
  for (const Permutation& permutation : target_.permutations) {
    if (const NodeId id = by_one(permutation, wanted, a, b); id >= 0) return id;
    if (const NodeId id = by_one(permutation, wanted, b, a); id >= 0) return id;
  }
  return -1;
}

// Where a node holds a and b; idle places for what it does not hold.
Permuter::Places Permuter::within(NodeId node, const Place& a, const Place& b) const {
  Places places(2);
  for (int l = width() - 1; l >= 0; --l) {
    if (content({node, l}) == a) places[0] = {node, l};
    if (!b.idle() && content({node, l}) == b) places[1] = {node, l};
  }
  return places;
}

// a and b in one node: an existing one, or a new one. Fixed permutations are preferred, because
// transpositions can share their results.
Permuter::Places Permuter::beside(const Place& a, const Place& b) {
  const auto complete = [&](const Places& p) { return !p[0].idle() && (b.idle() || !p[1].idle()); };
  if (const Places p = within(a.node, a, b); complete(p)) return p;
  for (const NodeId node : made_) {
    if (const Places p = within(node, a, b); complete(p)) return p;
  }
  return within(make(a.node, b.node, side_by_side(a, b)), a, b);
}

PerLane Permuter::side_by_side(const Place& a, const Place& b) const {
  const auto has = [](const PerLane& picks, int pick) {
    return std::find(picks.begin(), picks.end(), pick) != picks.end();
  };
  const Permutation* free = nullptr;
  for (const Permutation& p : target_.permutations) {
    if (!p.suits(width(), lane_bytes_)) continue;
    if (p.fixed() && has(p.idle, a.lane) && has(p.idle, width() + b.lane)) return p.idle;
    if (!p.fixed() && free == nullptr) free = &p;
  }
  // Each brings the other part of its complex number along.
  PerLane picks = free->idle, places(2);
  for (int l = 0; l < width(); ++l) {
    const bool first = free->allows(l, a.lane);
    const int lane = first ? a.lane : b.lane, before = places[first ? 0 : 1]++;
    picks[l] = (first ? 0 : width()) + (before == 0 ? lane : lane ^ 1);
  }
  return picks;
}

// First in pairs, then the pairs together.
NodeId Permuter::bring(const Places& wanted) {
  if (const NodeId node = find(wanted); node >= 0) return node;
  if (const NodeId node = by_one(wanted); node >= 0) return node;
  Places near(wanted.size());
  for (int l = 0; l < wanted.size(); l += 2) {
    if (wanted[l].idle()) continue;
    const Places pair = beside(wanted[l], wanted[l + 1]);
    near[l] = pair[0];
    near[l + 1] = pair[1];
  }
  const NodeId node = by_one(near);
  if (node < 0) throw std::logic_error("lanes that the target cannot bring together");
  return node;
}

}  // namespace xfm::gen
