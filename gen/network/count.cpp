#include "gen/network/check.h"

#include <algorithm>

namespace xfm::gen {
namespace {

// A lane counts unless it is idle, multiplies by 0, 1 or -1, or adds a product by 0.
class Counter {
 public:
  explicit Counter(const Network& network)
      : network_(network), live_(live_lanes(network)), zero_(live_.size(), Sequence<bool>(network.width())) {}

  Counts run() {
    for (NodeId id = 0; id < live_.size(); ++id) {
      if (std::ranges::find(live_[id], true) == live_[id].end()) continue;
      instruction(network_.node(id));
      for (int l = 0; l < network_.width(id); ++l) lane(id, l);
    }
    counts_.stores = network_.stores().size();
    return counts_;
  }

 private:
  // A doubling is a multiplication in the row, and an addition in the code.
  void instruction(const Node& node) {
    counts_.loads += node.is(Op::load);
    counts_.permutations += node.is(Op::permute);
    counts_.adds += node.is(Op::minus);
    counts_.mults += node.is(Op::twice);
    counts_.add_nodes += node.is(Op::add, Op::sub, Op::minus, Op::twice);
    counts_.mult_nodes += node.is(Op::mul, Op::factor);
    if (node.is(Op::combination)) combination(node);
  }

  void combination(const Node& node) {
    const int adds = node.terms.size() - 1 + (node.finish == Finish::negated ? 1 : 0);
    const auto mults = static_cast<int>(
        std::ranges::count_if(node.terms, [](const Term& t) { return !magnitude(t.coefficient).is_one(); }));
    counts_.adds += adds;
    counts_.mults += mults;
    counts_.add_nodes += adds;
    counts_.mult_nodes += mults + scales(node.finish);
  }

  void lane(NodeId id, int l) {
    const Node& node = network_.node(id);
    const auto zero = [&](std::size_t operand) -> bool { return zero_[node.in[operand]][l]; };
    if (node.is_sum()) {
      zero_[id][l] = zero(0) && zero(1);
      counts_.adds += live_[id][l] && !zero(0) && !zero(1);
    } else if (node.is(Op::mul)) {
      zero_[id][l] = node.constant(l).is_zero() || zero(0);
      counts_.mults += live_[id][l] && !zero_[id][l] && !magnitude(node.constant(l)).is_one();
    } else if (node.is(Op::permute)) {
      const Place from = network_.source(node, l);
      zero_[id][l] = static_cast<bool>(zero_[from.node][from.lane]);
    }
  }

  const Network& network_;
  Sequence<Sequence<bool>> live_, zero_;
  Counts counts_;
};

}  // namespace

Counts count(const Network& network) { return Counter(network).run(); }

}  // namespace xfm::gen
