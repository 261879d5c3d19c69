#include "gen/order/schedule.h"

#include <algorithm>

#include "gen/order/bisection.h"

namespace xfm::gen {
namespace {

class Scheduler {
 public:
  explicit Scheduler(const Network& network)
      : network_(network), state_(network.nodes().size(), State::dead), tail_(state_.size(), false) {
    for (const Store& store : network.stores()) {
      if (store.node >= 0) mark_live(store.node);
    }
    mark_tails();
  }

  std::vector<Step> run(Order order) {
    for (const NodeId id : loads_of_tails()) emit(id);
    for (const NodeId id : order == Order::bisection ? bisected(network_, inner()) : windows(order)) {
      emit(id);
      if (loads_ == 0) finish_ready();
    }
    for (std::size_t s = 0; s < network_.stores().size(); ++s) emit_store(s);
    return steps_;
  }

 private:
  enum class State { dead, live, done };

  static std::size_t index(NodeId id) { return static_cast<std::size_t>(id); }
  State& at(NodeId id) { return state_[index(id)]; }
  NodeId size() const { return static_cast<NodeId>(state_.size()); }

  void mark_live(NodeId id) {
    if (at(id) == State::live) return;
    at(id) = State::live;
    if (network_.node(id).op == Op::load) ++loads_;
    for (const NodeId operand : operands(network_.node(id))) mark_live(operand);
  }

  // The operations that are not written down on demand, in the recipe's order.
  std::vector<NodeId> inner() const {
    std::vector<NodeId> nodes;
    for (NodeId id = 0; id < size(); ++id) {
      const Op op = network_.node(id).op;
      const bool on_demand = tail_[index(id)] || op == Op::load || op == Op::twice;
      if (state_[index(id)] == State::live && !on_demand) nodes.push_back(id);
    }
    return nodes;
  }

  // The recipe's order, but no operation before those that can start a window earlier: what waits for long
  // chains does not hold up what is ready. Within a window the order of the stages stays, for few live
  // values.
  std::vector<NodeId> windows(Order of) const {
    // cycles; 12 spills more, 48 is the recipe's order up to a few hundred operations
    const int window = of == Order::earliest_start ? 1 : 24;
    std::vector<int> start(state_.size(), 0), end(state_.size(), 0);
    for (NodeId id = 0; id < size(); ++id) {
      if (state_[index(id)] != State::live) continue;
      for (const NodeId operand : operands(network_.node(id)))
        start[index(id)] = std::max(start[index(id)], end[index(operand)]);
      end[index(id)] = start[index(id)] + latency(network_.node(id));
    }
    std::vector<NodeId> order = inner();
    std::stable_sort(order.begin(), order.end(),
                     [&](NodeId a, NodeId b) { return start[index(a)] / window < start[index(b)] / window; });
    return order;
  }

  // What only tails read has to be read all the same before the first store.
  std::vector<NodeId> loads_of_tails() const {
    std::vector<bool> used(state_.size(), false);
    for (NodeId id = 0; id < size(); ++id) {
      if (state_[index(id)] == State::dead || tail_[index(id)]) continue;
      for (const NodeId operand : operands(network_.node(id))) used[index(operand)] = true;
    }
    std::vector<NodeId> loads;
    for (NodeId id = 0; id < size(); ++id) {
      const bool load = network_.node(id).op == Op::load;
      if (load && state_[index(id)] == State::live && !used[index(id)]) loads.push_back(id);
    }
    return loads;
  }

  // Cycles, typical of current processors. A statement converts, multiplies, adds up and converts back.
  static int latency(const Node& node) {
    switch (node.op) {
      case Op::load:
      case Op::twice:
        return 0;
      case Op::shuffle:
      case Op::exchange:
      case Op::sign_flip:
        return 1;
      case Op::mul:
      case Op::factor:
        return 4;
      case Op::combination:
        return 12 + 3 * static_cast<int>(node.terms.size());
      default:
        return 3;
    }
  }

  // A node is part of an output's tail if it leads to factor multiplications and to nothing else within two
  // steps: the factor itself, a sign, an interleaving, a join.
  void mark_tails() {
    std::vector<bool> other(state_.size(), false);
    for (NodeId id = size() - 1; id >= 0; --id) {
      if (at(id) != State::live) continue;
      const Op op = network_.node(id).op;
      const bool joins = op == Op::exchange || op == Op::sign_flip || op == Op::shuffle || is_join(id);
      const bool ends = op == Op::factor || op == Op::minus || scales(network_.node(id).finish);
      tail_[index(id)] = ends || (joins && !other[index(id)]);
      if (tail_[index(id)]) continue;
      for (const NodeId operand : operands(network_.node(id))) other[index(operand)] = true;
    }
  }

  bool is_join(NodeId id) const {
    const Node& node = network_.node(id);
    return (node.op == Op::add || node.op == Op::sub) && (is_flip(node.in[0]) || is_flip(node.in[1]));
  }
  bool is_flip(NodeId id) const { return network_.node(id).op == Op::sign_flip; }

  void emit(NodeId id) {
    if (at(id) == State::done) return;
    for (const NodeId operand : operands(network_.node(id))) emit(operand);
    at(id) = State::done;
    if (network_.node(id).op == Op::load) --loads_;
    steps_.push_back({.node = id});
  }

  bool ready(NodeId id) {
    if (at(id) == State::done) return true;
    if (!tail_[index(id)]) return false;
    const std::vector<NodeId> in = operands(network_.node(id));
    return std::all_of(in.begin(), in.end(), [&](NodeId operand) { return ready(operand); });
  }

  void finish_ready() {
    stored_.resize(network_.stores().size(), false);
    for (std::size_t s = 0; s < network_.stores().size(); ++s) {
      if (network_.stores()[s].node < 0 || ready(network_.stores()[s].node)) emit_store(s);
    }
  }

  void emit_store(std::size_t s) {
    stored_.resize(network_.stores().size(), false);
    if (stored_[s]) return;
    stored_[s] = true;
    if (network_.stores()[s].node >= 0) emit(network_.stores()[s].node);
    steps_.push_back({.store = static_cast<int>(s)});
  }

  const Network& network_;
  std::vector<State> state_;
  std::vector<bool> tail_;
  std::vector<bool> stored_;
  std::vector<Step> steps_;
  int loads_ = 0;
};

}  // namespace

std::vector<NodeId> operands(const Node& node) {
  std::vector<NodeId> in;
  for (const NodeId id : node.in) {
    if (id >= 0) in.push_back(id);
  }
  for (const Term& term : node.terms) in.push_back(term.node);
  return in;
}

std::vector<Step> schedule(const Network& network, Order order) { return Scheduler(network).run(order); }

}  // namespace xfm::gen
