#include <algorithm>

#include "gen/order/schedule.h"

namespace xfm::gen {
namespace {

using Nodes = Sequence<NodeId>;

// Recursive bisection (Frigo 1999): the graph is cut in the middle between its inputs and its outputs, each
// half is ordered by itself, and parts that share nothing are ordered one after the other. Whatever the
// number of registers, the values in flight are within a constant factor of the fewest.
class Bisection {
 public:
  Bisection(const Network& network, const Nodes& nodes)
      : sources_(network.nodes().size()), users_(sources_.size()), part_(sources_.size()) {
    for (const NodeId id : nodes) {
      for (const NodeId operand : operands(network.node(id))) {
        sources_[id].push_back(operand);
        users_[operand].push_back(id);
      }
    }
    order(nodes);
  }

  Nodes result() { return std::move(order_); }

 private:
  // Marks these nodes as one set and returns its number.
  int mark(const Nodes& nodes) {
    ++marks_;
    for (const NodeId id : nodes) part_[id] = marks_;
    return marks_;
  }

  void order(const Nodes& nodes) {
    if (nodes.size() <= 2) {
      order_.insert(order_.end(), nodes.begin(), nodes.end());
      return;
    }
    const Sequence<Nodes> components = split(nodes);
    if (components.size() > 1) {
      for (const Nodes& component : components) order(component);
      return;
    }
    const auto [first, second] = halves(nodes);
    order(first);
    order(second);
  }

  // The connected components, in the recipe's order.
  Sequence<Nodes> split(const Nodes& nodes) {
    const int whole = mark(nodes);
    Sequence<Nodes> components;
    for (const NodeId start : nodes) {
      if (part_[start] != whole) continue;
      Nodes& component = components.emplace_back(Nodes{start});
      part_[start] = 0;
      for (int next = 0; next < component.size(); ++next) {
        for (const auto* neighbours : {&sources_, &users_}) {
          for (const NodeId id : (*neighbours)[component[next]]) {
            if (part_[id] != whole) continue;
            part_[id] = 0;
            component.push_back(id);
          }
        }
      }
      std::sort(component.begin(), component.end());
    }
    return components;
  }

  // Peels off layers, alternately from the inputs and from the outputs: a node goes to the side that reaches
  // it first.
  std::pair<Nodes, Nodes> halves(const Nodes& nodes) {
    const int whole = mark(nodes), near_inputs = ++marks_, near_outputs = ++marks_;
    Nodes left = nodes;
    for (bool from_inputs = true; !left.empty(); from_inputs = !from_inputs) {
      const auto& neighbours = from_inputs ? sources_ : users_;
      const auto waits = [&](NodeId id) {
        return std::any_of(neighbours[id].begin(), neighbours[id].end(),
                           [&](NodeId other) { return part_[other] == whole; });
      };
      const auto layer = std::stable_partition(left.begin(), left.end(), waits);
      for (auto id = layer; id != left.end(); ++id) part_[*id] = from_inputs ? near_inputs : near_outputs;
      left.erase(layer, left.end());
    }
    std::pair<Nodes, Nodes> both;
    for (const NodeId id : nodes) (part_[id] == near_inputs ? both.first : both.second).push_back(id);
    return both;
  }

  Sequence<Nodes> sources_, users_;
  Sequence<int> part_;
  int marks_ = 0;
  Nodes order_;
};

}  // namespace

Sequence<NodeId> bisected(const Network& network, const Sequence<NodeId>& nodes) {
  return Bisection(network, nodes).result();
}

}  // namespace xfm::gen
