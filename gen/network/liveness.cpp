#include "gen/network/network.h"

#include <algorithm>

namespace xfm::gen {
// Operands have smaller numbers than the nodes that use them, so one walk down visits all users first.
Sequence<int> uses(const Network& network) {
  Sequence<int> uses(network.nodes().size());
  for (const Store& store : network.stores()) {
    if (store.node >= 0) ++uses[store.node];
  }
  for (const Value& output : network.outputs()) ++uses[output.node];
  for (NodeId id = uses.size() - 1; id >= 0; --id) {
    if (uses[id] == 0) continue;
    for (const NodeId operand : operands(network.node(id))) ++uses[operand];
  }
  return uses;
}

int instructions(const Network& network) {
  const Sequence<int> used = uses(network);
  return network.stores().size() +
         static_cast<int>(std::count_if(used.begin(), used.end(), [](int n) { return n > 0; }));
}

Sequence<Sequence<bool>> live_lanes(const Network& network) {
  Sequence<Sequence<bool>> live;
  for (NodeId id = 0; id < network.nodes().size(); ++id) live.emplace_back(network.width(id));
  for (const Store& store : network.stores()) {
    for (int l = 0; store.node >= 0 && l < store.lanes.size(); ++l) {
      if (store.lanes[l] >= 0) live[store.node][l] = true;
    }
  }
  for (NodeId id = live.size() - 1; id >= 0; --id) {
    const Node& node = network.node(id);
    for (int l = 0; l < network.width(id); ++l) {
      if (!live[id][l]) continue;
      if (node.op == Op::permute) {
        const auto [source, lane] = network.source(node, l);
        live[source][lane] = true;
      } else {
        for (const NodeId operand : operands(node)) live[operand][l] = true;
      }
    }
  }
  return live;
}

}  // namespace xfm::gen
