#include "gen/algorithms/transposition.h"

#include <algorithm>
#include <stdexcept>

namespace xfm::gen {
namespace {

Complex product(const ScaledComplex& term) {
  if (magnitude(term.c).is_one()) return term.c.is_negative() ? -term.z : term.z;
  return term;
}

}  // namespace

void Transposition::receive(NodeId node, const ScaledComplex& weight) { sent_[node].push_back(weight); }

void Transposition::send(Value output, const Complex& weight) {
  if (!output.absent()) receive(output.node, output.negative ? -weight : weight);
}

// Terms are added in the order of their arrival, the reverse of the recipe's.
Complex Transposition::weight(NodeId node) const {
  const Sequence<ScaledComplex>& terms = sent_[node];
  const bool products = std::any_of(terms.begin(), terms.end(),
                                    [](const ScaledComplex& term) { return !magnitude(term.c).is_one(); });
  if (products && forward_.rounding() == Rounding::combination) return combination(terms);
  Complex total;
  for (const ScaledComplex& term : terms) total = total + product(term);
  return total;
}

Points Transposition::run(int inputs) {
  Points arrived(inputs);
  for (NodeId id = sent_.size() - 1; id >= 0; --id) {
    const Complex sum = weight(id);
    if (sum.p.absent() && sum.q.absent()) continue;
    const Node& node = forward_.node(id);
    switch (node.op) {
      case Op::load:
        arrived[node.lanes[0]] = sum;
        break;
      case Op::add:
        receive(node.in[0], sum);
        receive(node.in[1], sum);
        break;
      case Op::sub:
        receive(node.in[0], sum);
        receive(node.in[1], -sum);
        break;
      case Op::mul:
        receive(node.in[0], node.constants[0] * sum);
        break;
      case Op::combination:
        for (const Term& term : node.terms) receive(term.node, term.coefficient * sum);
        break;
      default:
        throw std::logic_error("transposition of an operation that is not linear and scalar");
    }
  }
  return arrived;
}

}  // namespace xfm::gen
