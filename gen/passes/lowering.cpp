#include <utility>

#include "gen/passes/passes.h"
#include "gen/passes/rebuilding.h"

namespace xfm::gen {
namespace {

class Lowering : public Rebuilding {
 public:
  Lowering(const Network& old, Precision precision)
      : Rebuilding(old), narrows_(precision == Precision::binary32) {}

 private:
  Value make(NodeId id) override {
    const Node& of = node(id);
    if (of.op == Op::twice) return made_->add(value(of.in[0]), value(of.in[0]));
    if (of.op == Op::combination) return combination(of);
    return made_->repeat(of, value(of.in[0]), value(of.in[1]));
  }

  Value combination(const Node& of) {
    Value sum = products(of.terms);
    if (scales(of.finish)) sum = made_->factor(sum);
    if (of.finish == Finish::negated) sum = made_->minus(sum);
    return narrows_ && of.finish != Finish::unrounded ? made_->narrow(sum) : sum;
  }

  // From left to right. A value has no sign of its own here: the first term's sign goes into its constant, or
  // the second term comes first.
  Value products(const Sequence<Term>& terms) {
    Value sum;
    for (const Term& term : terms) {
      const bool negative = term.coefficient.is_negative();
      const Value v = operand(term.node);
      const Constant c = magnitude(term.coefficient);
      const bool first = sum.absent();
      if (first && negative && !c.is_one()) {
        sum = made_->mul(Sequence<Constant>{-c}, v);
        continue;
      }
      const Value product = c.is_one() ? v : made_->mul(c, v);
      sum = first ? (negative ? -product : product) : added(sum, negative ? -product : product);
    }
    return sum.negative ? made_->flip_signs(-sum, {1}) : sum;
  }

  // Each difference is written as it is: the one of the other direction has another sign where it is zero. If
  // both terms are negative, one changes its sign by an operation, since -a - b is not -(a + b) then.
  Value added(Value a, Value b) {
    if (a.negative && b.negative) a = made_->flip_signs(-a, {1});
    if (a.negative) std::swap(a, b);
    return b.negative ? made_->subtract(a, -b, {1}) : made_->add(a, b);
  }

  Value operand(NodeId id) {
    const Value v = value(id);
    return narrows_ && !made_->inner(v.node) ? made_->widen(v) : v;
  }

  bool narrows_;
};

}  // namespace

std::unique_ptr<Network> lowered(const Network& network, Precision precision) {
  return Lowering(network, precision).run();
}

}  // namespace xfm::gen
