#include "gen/passes/binding.h"

#include <algorithm>
#include <stdexcept>

#include "gen/order/schedule.h"

namespace xfm::gen::real {

std::vector<int> uses(const Draft& draft) {
  std::vector<int> count(draft.network->nodes().size(), 0);
  for (const Value& output : draft.outputs) ++count[static_cast<std::size_t>(output.node)];
  for (NodeId id = static_cast<NodeId>(count.size()) - 1; id >= 0; --id) {
    if (count[static_cast<std::size_t>(id)] == 0) continue;
    for (const NodeId operand : operands(draft.network->node(id))) ++count[static_cast<std::size_t>(operand)];
  }
  return count;
}

namespace {

class Binder {
 public:
  Binder(const Draft& draft, const Binding& binding, const std::vector<bool>& turned)
      : draft_(draft),
        binding_(binding),
        turned_(turned),
        uses_(uses(draft)),
        open_(uses_.size(), false),
        made_nodes_(uses_.size(), -1) {
    for (const Value& output : draft.outputs) {
      const std::size_t at = index(output.node);
      open_[at] = binding.factor_inside && node(output.node).op == Op::combination && uses_[at] == 1;
    }
  }

  std::unique_ptr<Network> run() {
    for (NodeId id = 0; id < static_cast<NodeId>(uses_.size()); ++id) {
      if (uses_[index(id)] > 0 && !open_[index(id)]) made_nodes_[index(id)] = make(id).node;
    }
    for (const int zero : binding_.zeros) made_->store_zero(zero);
    for (std::size_t k = 0; k < draft_.outputs.size(); ++k)
      made_->store(output(draft_.outputs[k]), binding_.to[k]);
    return std::move(made_);
  }

 private:
  static std::size_t index(NodeId id) { return static_cast<std::size_t>(id); }
  const Node& node(NodeId id) const { return draft_.network->node(id); }

  // What a node of the draft stands for, by the node that was made of it or of its negative.
  Value value(NodeId id) const { return turned_[index(id)] ? -made(id) : made(id); }
  Value made(NodeId id) const { return {made_.get(), made_nodes_[index(id)], false}; }

  Value make(NodeId id) {
    const Node& of = node(id);
    const bool turned = turned_[index(id)];
    const auto in = [&](std::size_t k) { return turned ? -value(of.in[k]) : value(of.in[k]); };
    switch (of.op) {
      case Op::load:
        return made_->load(binding_.from[index(of.lanes[0])]);
      case Op::add:
        return in(0) + in(1);
      case Op::sub:
        return in(0) - in(1);
      case Op::twice:
        return made_->twice(in(0));
      case Op::combination:
        return made_->sum(terms(id), node(id).finish);
      default:
        throw std::logic_error("a draft holds sums and statements alone");
    }
  }

  // The terms of a statement, or of its negative, a positive one first.
  std::vector<Network::Product> terms(NodeId id) const {
    std::vector<Network::Product> all;
    for (const Term& term : node(id).terms) {
      const bool minus = turned_[index(id)] != turned_[index(term.node)];
      all.push_back({minus ? -term.coefficient : term.coefficient, made(term.node)});
    }
    const auto leader =
        std::find_if(all.begin(), all.end(), [](const Network::Product& p) { return !p.c.is_negative(); });
    if (leader != all.end()) std::rotate(all.begin(), leader, leader + 1);
    return all;
  }

  Value output(const Value& v) {
    const bool minus = v.negative != turned_[index(v.node)];
    if (open_[index(v.node)]) return made_->sum(terms(v.node), minus ? Finish::negated : Finish::scaled);
    const Value scaled = made_->factor(made(v.node));
    return minus ? made_->minus(scaled) : scaled;
  }

  const Draft& draft_;
  const Binding& binding_;
  const std::vector<bool>& turned_;
  std::unique_ptr<Network> made_ = std::make_unique<Network>(1, Rounding::combination);
  std::vector<int> uses_;
  std::vector<bool> open_;
  std::vector<NodeId> made_nodes_;
};

}  // namespace

std::unique_ptr<Network> bind(const Draft& draft, const Binding& binding, const std::vector<bool>& turned) {
  return Binder(draft, binding, turned).run();
}

}  // namespace xfm::gen::real
