#include "gen/transpose.h"

#include <stdexcept>

namespace xfm::gen {

void Transposition::receive(NodeId node, const Complex& weight) {
  Complex& sum = weights_[static_cast<std::size_t>(node)];
  sum = sum + weight;
}

void Transposition::send(Value output, const Complex& weight) {
  if (!output.absent()) receive(output.node, output.negative ? -weight : weight);
}

std::vector<Complex> Transposition::run(int inputs) {
  std::vector<Complex> arrived(static_cast<std::size_t>(inputs));
  for (NodeId id = static_cast<NodeId>(weights_.size()) - 1; id >= 0; --id) {
    const Complex& weight = weights_[static_cast<std::size_t>(id)];
    if (weight.p.absent() && weight.q.absent()) continue;
    const Node& node = forward_.node(id);
    switch (node.op) {
      case Op::load:
        arrived[static_cast<std::size_t>(node.lanes[0])] = weight;
        break;
      case Op::add:
        receive(node.in[0], weight);
        receive(node.in[1], weight);
        break;
      case Op::sub:
        receive(node.in[0], weight);
        receive(node.in[1], -weight);
        break;
      case Op::mul:
        receive(node.in[0], node.constants[0] * weight);
        break;
      default:
        throw std::logic_error("transposition of an operation that is not linear and scalar");
    }
  }
  return arrived;
}

}  // namespace xfm::gen
