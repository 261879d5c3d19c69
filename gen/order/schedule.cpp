#include "gen/order/schedule.h"

#include <algorithm>
#include <stdexcept>

namespace xfm::gen {
namespace {

class Scheduler {
 public:
  explicit Scheduler(const Network& network)
      : network_(network),
        uses_(uses(network)),
        done_(uses_.size()),
        output_stage_(uses_.size()),
        used_inside_(uses_.size()),
        stored_(network.stores().size()) {
    for (NodeId id = 0; id < size(); ++id) loads_ += live(id) && op(id) == Op::load ? 1 : 0;
    mark_output_stage();
  }

  Sequence<Step> run(Order order) {
    // Inputs that only the output stage uses: they too must be read before the first store.
    for (NodeId id = 0; id < size(); ++id) {
      if (live(id) && op(id) == Op::load && !used_inside_[id]) write(id);
    }
    for (const NodeId id : order == Order::bisection ? bisected(network_, inner()) : by_start(order)) {
      write(id);
      if (loads_ == 0) finish_ready();
    }
    for (int s = 0; s < stored_.size(); ++s) write_store(s);
    return steps_;
  }

 private:
  NodeId size() const { return uses_.size(); }
  bool live(NodeId id) const { return uses_[id] > 0; }
  Op op(NodeId id) const { return network_.node(id).op; }

  // The operations that are not written on demand, in the recipe's order.
  Sequence<NodeId> inner() const {
    Sequence<NodeId> nodes;
    for (NodeId id = 0; id < size(); ++id) {
      const bool on_demand = output_stage_[id] || network_.node(id).is(Op::load, Op::twice);
      if (live(id) && !on_demand) nodes.push_back(id);
    }
    return nodes;
  }

  // The recipe's order, sorted by the window in which an operation can start: what waits for a long chain
  // does not hold up what is ready. Within a window the recipe's order keeps few values live.
  Sequence<NodeId> by_start(Order of) const {
    // In cycles. 12 spills more; 48 leaves the recipe's order as it is up to a few hundred operations.
    const int window = of == Order::earliest_start ? 1 : 24;
    Sequence<int> start(size()), end(size());
    for (NodeId id = 0; id < size(); ++id) {
      if (!live(id)) continue;
      for (const NodeId operand : operands(network_.node(id))) start[id] = std::max(start[id], end[operand]);
      end[id] = start[id] + latency(network_.node(id));
    }
    Sequence<NodeId> order = inner();
    std::stable_sort(order.begin(), order.end(),
                     [&](NodeId a, NodeId b) { return start[a] / window < start[b] / window; });
    return order;
  }

  // In cycles, typical of current processors. A linear combination converts, multiplies, adds up and converts
  // back.
  static int latency(const Node& node) {
    if (node.is(Op::load, Op::twice)) return 0;
    if (node.is(Op::permute, Op::sign_flip)) return 1;
    if (node.is(Op::mul, Op::factor)) return 4;
    return node.is(Op::combination) ? 12 + 3 * node.terms.size() : 3;
  }

  // The output stage is the factor multiplications, and the sign flips, permutations and joins whose results
  // go nowhere else.
  void mark_output_stage() {
    for (NodeId id = size() - 1; id >= 0; --id) {
      if (!live(id)) continue;
      const Node& node = network_.node(id);
      const bool joins = node.is(Op::sign_flip, Op::permute) || is_join(node);
      const bool ends = node.is(Op::factor, Op::minus) || scales(node.finish);
      output_stage_[id] = ends || (joins && !used_inside_[id]);
      if (output_stage_[id]) continue;
      for (const NodeId operand : operands(node)) used_inside_[operand] = true;
    }
  }

  // A join: P + i*Q or P - i*Q.
  bool is_join(const Node& node) const {
    return node.is_sum() && (times_i(node.in[0]) || times_i(node.in[1]));
  }

  // An exchange of the parts of complex numbers, or the sign flip after it unless constants carry that.
  bool times_i(NodeId id) const {
    const Node& node = network_.node(id);
    if (node.op == Op::sign_flip) return true;
    if (node.op != Op::permute || node.in[0] != node.in[1]) return false;
    for (int l = 0; l < network_.width(); ++l) {
      if (network_.source(node, l).lane != (l ^ 1)) return false;
    }
    return true;
  }

  void write(NodeId id) {
    if (done_[id]) return;
    for (const NodeId operand : operands(network_.node(id))) write(operand);
    done_[id] = true;
    if (op(id) == Op::load) --loads_;
    steps_.push_back({.node = id});
  }

  bool ready(NodeId id) const {
    if (done_[id] || !output_stage_[id]) return done_[id];
    const Sequence<NodeId> in = operands(network_.node(id));
    return std::all_of(in.begin(), in.end(), [&](NodeId operand) { return ready(operand); });
  }

  void finish_ready() {
    for (int s = 0; s < stored_.size(); ++s) {
      if (network_.stores()[s].node < 0 || ready(network_.stores()[s].node)) write_store(s);
    }
  }

  void write_store(int s) {
    if (stored_[s]) return;
    stored_[s] = true;
    if (network_.stores()[s].node >= 0) write(network_.stores()[s].node);
    if (loads_ > 0) throw std::logic_error("a store would come before the last load");
    steps_.push_back({.store = s});
  }

  const Network& network_;
  Sequence<int> uses_;
  Sequence<bool> done_, output_stage_;
  Sequence<bool> used_inside_;  // by live operations that are not of the output stage
  Sequence<bool> stored_;
  Sequence<Step> steps_;
  int loads_ = 0;
};

}  // namespace

Sequence<Step> schedule(const Network& network, Order order) { return Scheduler(network).run(order); }

}  // namespace xfm::gen
