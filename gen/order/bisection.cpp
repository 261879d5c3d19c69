#include "gen/order/bisection.h"

#include <algorithm>

#include "gen/order/schedule.h"

namespace xfm::gen {
namespace {

using Nodes = std::vector<NodeId>;

class Bisection {
 public:
  Bisection(const Network& network, const Nodes& nodes)
      : sources_(network.nodes().size()), users_(sources_.size()), part_(sources_.size(), 0) {
    for (const NodeId id : nodes) {
      for (const NodeId operand : operands(network.node(id))) {
        sources_[index(id)].push_back(operand);
        users_[index(operand)].push_back(id);
      }
    }
    order(nodes);
  }

  Nodes result() { return std::move(order_); }

 private:
  static std::size_t index(NodeId id) { return static_cast<std::size_t>(id); }
  int& part(NodeId id) { return part_[index(id)]; }

  // A number that no other set of nodes has: nodes are told to be in a set by it.
  int mark(const Nodes& nodes) {
    ++marks_;
    for (const NodeId id : nodes) part(id) = marks_;
    return marks_;
  }

  void order(const Nodes& nodes) {
    if (nodes.size() <= 2) {
      order_.insert(order_.end(), nodes.begin(), nodes.end());
      return;
    }
    const std::vector<Nodes> components = split(nodes);
    if (components.size() > 1) {
      for (const Nodes& component : components) order(component);
      return;
    }
    const auto [first, second] = halves(nodes);
    order(first);
    order(second);
  }

  // The connected components, in the recipe's order.
  std::vector<Nodes> split(const Nodes& nodes) {
    const int whole = mark(nodes);
    std::vector<Nodes> components;
    for (const NodeId start : nodes) {
      if (part(start) != whole) continue;
      Nodes& component = components.emplace_back(Nodes{start});
      part(start) = 0;
      for (std::size_t next = 0; next < component.size(); ++next) {
        for (const auto* neighbours : {&sources_, &users_}) {
          for (const NodeId id : (*neighbours)[index(component[next])]) {
            if (part(id) != whole) continue;
            part(id) = 0;
            component.push_back(id);
          }
        }
      }
      std::sort(component.begin(), component.end());
    }
    return components;
  }

  // What can be reached from either side first, a layer at a time from the inputs and from the outputs.
  std::pair<Nodes, Nodes> halves(const Nodes& nodes) {
    const int whole = mark(nodes), near_inputs = ++marks_, near_outputs = ++marks_;
    Nodes left = nodes;
    for (bool from_inputs = true; !left.empty(); from_inputs = !from_inputs) {
      const auto& neighbours = from_inputs ? sources_ : users_;
      const auto waits = [&](NodeId id) {
        return std::any_of(neighbours[index(id)].begin(), neighbours[index(id)].end(),
                           [&](NodeId other) { return part(other) == whole; });
      };
      const auto layer = std::stable_partition(left.begin(), left.end(), waits);
      for (auto id = layer; id != left.end(); ++id) part(*id) = from_inputs ? near_inputs : near_outputs;
      left.erase(layer, left.end());
    }
    std::pair<Nodes, Nodes> both;
    for (const NodeId id : nodes) (part(id) == near_inputs ? both.first : both.second).push_back(id);
    return both;
  }

  std::vector<Nodes> sources_, users_;
  std::vector<int> part_;
  int marks_ = 0;
  Nodes order_;
};

}  // namespace

std::vector<NodeId> bisected(const Network& network, const std::vector<NodeId>& nodes) {
  return Bisection(network, nodes).result();
}

}  // namespace xfm::gen
