#include "gen/packing/cost.h"

#include <algorithm>

namespace xfm::gen {
namespace {

// Runs of numbers that lie side by side in memory and in the register, in the halves that instructions move.
int pieces(const PerLane& scalars) {
  const auto contiguous = [&](int first, int count) {
    for (int l = first; l < first + count; ++l)
      if (scalars[l] < 0 || scalars[l] != scalars[first] + l - first) return false;
    return true;
  };
  if (contiguous(0, scalars.size())) return 1;
  int count = 0;
  for (int first = 0; first < scalars.size(); first += 4) {
    if (contiguous(first, 4)) {
      ++count;
    } else {
      for (int l = first; l < first + 4; l += 2) count += scalars[l] >= 0 ? 1 : 0;
    }
  }
  return count;
}

int cost_of(const Node& node, int width, const Target& target) {
  const auto makes = [&](const Permutation& permutation, int unit) {
    if (!permutation.suits(width / unit, 4 * unit)) return false;
    for (int l = 0; l < width; ++l) {
      if (node.lanes[l] % unit != l % unit || !permutation.allows(l / unit, node.lanes[l] / unit))
        return false;
    }
    return true;
  };
  for (const Permutation& permutation : target.permutations) {
    if (makes(permutation, 1) || makes(permutation, 2)) return permutation.cost;
  }
  return 10;
}

}  // namespace

int cost(const Network& network, const Target& target) {
  const Sequence<int> used = uses(network);
  int total = 0, arithmetic = 0, shuffles = 0, memory = 0;
  for (NodeId id = 0; id < used.size(); ++id) {
    if (used[id] == 0) continue;
    const Node& node = network.node(id);
    switch (node.op) {
      case Op::load: {
        const int merged = pieces(node.lanes) - 1;
        total += 5 + 12 * merged;
        shuffles += 10 * merged;
        memory += 5 * (merged + 1);
        break;
      }
      case Op::permute:
        total += cost_of(node, network.width(), target);
        shuffles += 10;
        break;
      case Op::sign_flip:
        total += 7;
        break;
      default:
        total += 10;
        arithmetic += 5;
    }
  }
  for (const Store& store : network.stores()) {
    total += 15 * pieces(store.lanes);
    memory += 10 * pieces(store.lanes);
  }
  return total + 2 * std::max({arithmetic, shuffles / 2, memory});
}

}  // namespace xfm::gen
