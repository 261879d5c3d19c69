#include "gen/passes/passes.h"

#include <algorithm>

#include "gen/passes/rebuilding.h"

namespace xfm::gen {
namespace {

class Binder : public Rebuilding {
 public:
  Binder(const Network& draft, const Binding& binding, const Sequence<bool>& negated)
      : Rebuilding(draft), binding_(binding), negated_(negated) {}

 private:
  Value make(NodeId id) override {
    const Node& of = node(id);
    if (of.op == Op::load) return made_->load(binding_.from[of.lanes[0]]);
    if (of.op == Op::combination) return is_open(id) ? Value{} : signed_as(id, sum(id, of.finish));
    return signed_as(id, made_->repeat(of, signed_as(id, value(of.in[0])), signed_as(id, value(of.in[1]))));
  }

  void finish() override {
    for (const int zero : binding_.zeros) made_->store_zero(zero);
    for (int k = 0; k < old_.outputs().size(); ++k) made_->store(output(old_.outputs()[k]), binding_.to[k]);
  }

  // A linear combination that waits for the factor: only an output uses it.
  bool is_open(NodeId id) const {
    return binding_.factor_inside && node(id).op == Op::combination && uses_of(id) == 1 &&
           std::ranges::any_of(old_.outputs(), [&](const Value& output) { return output.node == id; });
  }

  Value signed_as(NodeId id, Value v) const { return negated_[id] ? -v : v; }

  // A linear combination or its negative, a positive term first.
  Value sum(NodeId id, Finish finish) const {
    Products all = terms(node(id));
    for (Network::Product& term : all) term.v = signed_as(id, term.v);
    const auto leader = std::ranges::find_if_not(all, &Network::Product::is_negative);
    if (leader != all.end()) std::rotate(all.begin(), leader, leader + 1);
    return made_->sum(all, finish);
  }

  Value output(const Value& v) const {
    if (is_open(v.node))
      return sum(v.node, v.negative != negated_[v.node] ? Finish::negated : Finish::scaled);
    const Value scaled = made_->factor(value(v));
    return scaled.negative ? made_->minus(-scaled) : scaled;
  }

  const Binding& binding_;
  const Sequence<bool>& negated_;
};

}  // namespace

std::unique_ptr<Network> bind(const Network& draft, const Binding& binding, const Sequence<bool>& negated) {
  return Binder(draft, binding, negated).run();
}

}  // namespace xfm::gen
