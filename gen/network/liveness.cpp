#include "gen/network/liveness.h"

#include <algorithm>

namespace xfm::gen {
namespace {

// Operands have smaller numbers than the nodes that use them, so one walk down visits all users first.
Sequence<int> spread(const Network& network, Sequence<int> uses) {
  for (NodeId id = uses.size() - 1; id >= 0; --id) {
    if (uses[id] == 0) continue;
    for (const NodeId operand : operands(network.node(id))) ++uses[operand];
  }
  return uses;
}

}  // namespace

Sequence<int> uses(const Network& network) {
  Sequence<int> stored(network.nodes().size());
  for (const Store& store : network.stores()) {
    if (store.node >= 0) ++stored[store.node];
  }
  return spread(network, std::move(stored));
}

Sequence<int> uses(const Network& network, const Sequence<Value>& outputs) {
  Sequence<int> leaving(network.nodes().size());
  for (const Value& output : outputs) ++leaving[output.node];
  return spread(network, std::move(leaving));
}

int instructions(const Network& network) {
  const Sequence<int> used = uses(network);
  return network.stores().size() +
         static_cast<int>(std::count_if(used.begin(), used.end(), [](int n) { return n > 0; }));
}

Sequence<Sequence<bool>> live_lanes(const Network& network) {
  const int width = network.width();
  Sequence<Sequence<bool>> live(network.nodes().size(), Sequence<bool>(width));
  for (const Store& store : network.stores()) {
    for (int l = 0; store.node >= 0 && l < width; ++l) {
      if (store.lanes[l] >= 0) live[store.node][l] = true;
    }
  }
  for (NodeId id = live.size() - 1; id >= 0; --id) {
    const Node& node = network.node(id);
    for (int l = 0; l < width; ++l) {
      if (!live[id][l]) continue;
      if (node.op == Op::permute) {
        live[node.in[node.lanes[l] < width ? 0 : 1]][node.lanes[l] % width] = true;
      } else {
        for (const NodeId operand : operands(node)) live[operand][l] = true;
      }
    }
  }
  return live;
}

}  // namespace xfm::gen
