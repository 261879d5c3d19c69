#include "gen/passes/binding.h"

#include <algorithm>
#include <stdexcept>

namespace xfm::gen {

namespace {

class Binder {
 public:
  Binder(const Draft& draft, const Binding& binding, const Sequence<bool>& negated)
      : draft_(draft),
        binding_(binding),
        negated_(negated),
        uses_(uses(draft)),
        open_(uses_.size()),
        made_nodes_(uses_.size(), -1) {
    for (const Value& output : draft.outputs) {
      const NodeId id = output.node;
      open_[id] = binding.factor_inside && node(id).op == Op::combination && uses_[id] == 1;
    }
  }

  std::unique_ptr<Network> run() {
    for (NodeId id = 0; id < uses_.size(); ++id) {
      if (uses_[id] > 0 && !open_[id]) made_nodes_[id] = make(id).node;
    }
    for (const int zero : binding_.zeros) made_->store_zero(zero);
    for (int k = 0; k < draft_.outputs.size(); ++k) made_->store(output(draft_.outputs[k]), binding_.to[k]);
    return std::move(made_);
  }

 private:
  const Node& node(NodeId id) const { return draft_.network->node(id); }

  // A value of the draft, by the node that computes it or its negative.
  Value value(NodeId id) const { return negated_[id] ? -made(id) : made(id); }
  Value made(NodeId id) const { return {made_.get(), made_nodes_[id], false}; }

  Value make(NodeId id) {
    const Node& of = node(id);
    const bool negated = negated_[id];
    const auto in = [&](std::size_t k) { return negated ? -value(of.in[k]) : value(of.in[k]); };
    switch (of.op) {
      case Op::load:
        return made_->load(binding_.from[of.lanes[0]]);
      case Op::add:
        return in(0) + in(1);
      case Op::sub:
        return in(0) - in(1);
      case Op::twice:
        return made_->twice(in(0));
      case Op::combination:
        return made_->sum(terms(id), node(id).finish);
      default:
        throw std::logic_error("a draft may hold only loads, sums and linear combinations");
    }
  }

  // The terms of a linear combination, or of its negative, a positive one first.
  Products terms(NodeId id) const {
    Products all;
    for (const Term& term : node(id).terms) {
      const bool minus = negated_[id] != negated_[term.node];
      all.push_back({minus ? -term.coefficient : term.coefficient, made(term.node)});
    }
    const auto leader =
        std::find_if(all.begin(), all.end(), [](const Network::Product& p) { return !p.c.is_negative(); });
    if (leader != all.end()) std::rotate(all.begin(), leader, leader + 1);
    return all;
  }

  Value output(const Value& v) {
    const bool minus = v.negative != negated_[v.node];
    if (open_[v.node]) return made_->sum(terms(v.node), minus ? Finish::negated : Finish::scaled);
    const Value scaled = made_->factor(made(v.node));
    return minus ? made_->minus(scaled) : scaled;
  }

  const Draft& draft_;
  const Binding& binding_;
  const Sequence<bool>& negated_;
  std::unique_ptr<Network> made_ = std::make_unique<Network>(1, Rounding::combination);
  Sequence<int> uses_;
  Sequence<bool> open_;
  Sequence<NodeId> made_nodes_;
};

}  // namespace

std::unique_ptr<Network> bind(const Draft& draft, const Binding& binding, const Sequence<bool>& negated) {
  return Binder(draft, binding, negated).run();
}

}  // namespace xfm::gen
