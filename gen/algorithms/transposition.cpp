#include "gen/algorithms/transposition.h"

#include <algorithm>
#include <stdexcept>

namespace xfm::gen {
namespace {

Complex product(const ScaledComplex& term) {
  if (magnitude(term.c).is_one()) return term.c.is_negative() ? -term.z : term.z;
  return term;
}

// Terms are added in the order of their arrival, the reverse of the recipe's.
Complex total(const Sequence<ScaledComplex>& terms, Rounding rounding) {
  const bool products = std::any_of(terms.begin(), terms.end(),
                                    [](const ScaledComplex& term) { return !magnitude(term.c).is_one(); });
  if (products && rounding == Rounding::combination) return combination(terms);
  Complex total;
  for (const ScaledComplex& term : terms) total = total + product(term);
  return total;
}

}  // namespace

Points transposed(const Network& forward, const Sequence<WeightedOutput>& outputs, int inputs) {
  Sequence<Sequence<ScaledComplex>> sent(forward.nodes().size());
  const auto send = [&](NodeId node, const ScaledComplex& weight) { sent[node].push_back(weight); };
  for (const auto& [output, weight] : outputs) {
    if (!output.absent()) send(output.node, output.negative ? -weight : weight);
  }
  Points arrived(inputs);
  for (NodeId id = sent.size() - 1; id >= 0; --id) {
    const Complex sum = total(sent[id], forward.rounding());
    if (sum.p.absent() && sum.q.absent()) continue;
    const Node& node = forward.node(id);
    switch (node.op) {
      case Op::load:
        arrived[node.lanes[0]] = sum;
        break;
      case Op::add:
        send(node.in[0], sum);
        send(node.in[1], sum);
        break;
      case Op::sub:
        send(node.in[0], sum);
        send(node.in[1], -sum);
        break;
      case Op::mul:
        send(node.in[0], node.constants[0] * sum);
        break;
      case Op::combination:
        for (const Term& term : node.terms) send(term.node, term.coefficient * sum);
        break;
      default:
        throw std::logic_error("transposition of an operation that is not linear and scalar");
    }
  }
  return arrived;
}

}  // namespace xfm::gen
