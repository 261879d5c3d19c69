#include "gen/network/count.h"

#include <algorithm>

namespace xfm::gen {
namespace {

// A lane counts unless it is idle, multiplies by 0, 1 or -1, or adds a product by 0.
class Counter {
 public:
  explicit Counter(const Network& network)
      : network_(network),
        live_(live_lanes(network)),
        zero_(live_.size(), Sequence<bool>(network.width())) {}

  Counts run() {
    for (NodeId id = 0; id < live_.size(); ++id) {
      if (std::none_of(live_[id].begin(), live_[id].end(), [](bool l) { return l; })) continue;
      instruction(network_.node(id));
      for (int l = 0; l < network_.width(id); ++l) lane(id, l);
    }
    counts_.stores = network_.stores().size();
    return counts_;
  }

 private:
  void instruction(const Node& node) {
    switch (node.op) {
      case Op::load:
        ++counts_.loads;
        break;
      case Op::permute:
        ++counts_.permutations;
        break;
      case Op::sign_flip:
      case Op::widen:
      case Op::narrow:
        break;
      case Op::add:
      case Op::sub:
        ++counts_.add_nodes;
        break;
      case Op::minus:
        ++counts_.adds;
        ++counts_.add_nodes;
        break;
      case Op::twice:  // the row counts a multiplication, the instruction is an addition
        ++counts_.mults;
        ++counts_.add_nodes;
        break;
      case Op::mul:
      case Op::factor:
        ++counts_.mult_nodes;
        break;
      case Op::combination:
        combination(node);
        break;
    }
  }

  void lane(NodeId id, int l) {
    const Node& node = network_.node(id);
    const auto zero = [&](int operand) -> bool {
      return zero_[node.in[static_cast<std::size_t>(operand)]][l];
    };
    if (node.op == Op::add || node.op == Op::sub) {
      zero_[id][l] = zero(0) && zero(1);
      if (live_[id][l] && !zero(0) && !zero(1)) ++counts_.adds;
    } else if (node.op == Op::mul) {
      zero_[id][l] = node.constant(l).is_zero() || zero(0);
      if (live_[id][l] && !zero_[id][l] && !magnitude(node.constant(l)).is_one()) ++counts_.mults;
    } else if (node.op == Op::permute) {
      const auto [source, from] = network_.source(node, l);
      zero_[id][l] = static_cast<bool>(zero_[source][from]);
    }
  }

  void combination(const Node& node) {
    const int adds = node.terms.size() - 1;
    const auto mults =
        static_cast<int>(std::count_if(node.terms.begin(), node.terms.end(),
                                       [](const Term& t) { return !magnitude(t.coefficient).is_one(); }));
    const int minus = node.finish == Finish::negated ? 1 : 0;
    counts_.adds += adds + minus;
    counts_.mults += mults;
    counts_.add_nodes += adds + minus;
    counts_.mult_nodes += mults + (scales(node.finish) ? 1 : 0);
  }

  const Network& network_;
  Sequence<Sequence<bool>> live_, zero_;
  Counts counts_;
};

}  // namespace

Counts count(const Network& network) { return Counter(network).run(); }

}  // namespace xfm::gen
