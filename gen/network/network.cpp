#include "gen/network/network.h"

#include <stdexcept>
#include <utility>

namespace xfm::gen {

Value Network::make(Node node, bool negative) {
  for (const NodeId in : node.in) {
    if (in >= 0 && this->node(in).finish == Finish::unrounded)
      throw std::logic_error("only statements use what stays in binary64");
  }
  const auto [place, fresh] = known_.try_emplace(node, static_cast<NodeId>(nodes_.size()));
  if (fresh) nodes_.push_back(std::move(node));
  return {this, place->second, negative};
}

Value Network::load(std::array<int, max_lanes> scalars) { return make({.op = Op::load, .lanes = scalars}); }

Value Network::shuffle(Value a, Value b, std::array<int, max_lanes> picks) {
  if (a.negative != b.negative) throw std::logic_error("shuffle of values with different signs");
  return make({.op = Op::shuffle, .in = {a.node, b.node}, .lanes = picks}, a.negative);
}

Value Network::exchange(Value v) { return make({.op = Op::exchange, .in = {v.node, -1}}, v.negative); }

Value Network::flip_signs(Value v, std::array<int, max_lanes> turned) {
  return make({.op = Op::sign_flip, .in = {v.node, -1}, .lanes = turned}, v.negative);
}

Value Network::add(Value a, Value b) {
  if (a.absent()) return b;
  if (b.absent()) return a;
  if (a.negative != b.negative)
    return a.negative ? difference(b.node, a.node, false) : difference(a.node, b.node, false);
  if (b.node < a.node) std::swap(a, b);  // addition commutes to the bit: one node for both orders
  return make({.op = Op::add, .in = {a.node, b.node}}, a.negative);
}

// a - b, or the turned b - a if that was written first: a difference and its negative are one node.
Value Network::difference(NodeId a, NodeId b, bool negative) {
  const Node turned{.op = Op::sub, .in = {b, a}};
  if (known_.contains(turned)) return make(turned, !negative);
  return make({.op = Op::sub, .in = {a, b}}, negative);
}

Value Network::mul(const Constant& c, Value v) {
  if (v.absent() || c.is_zero()) return {};
  if (c.is_negative()) return mul(-c, -v);
  if (c.is_one()) return v;
  return make({.op = Op::mul, .in = {v.node, -1}, .constants = {c}}, v.negative);
}

Value Network::mul(const std::vector<Constant>& lanes, Value v) {
  if (v.absent()) return {};
  return make({.op = Op::mul, .in = {v.node, -1}, .constants = lanes}, v.negative);
}

Value Network::twice(Value v) { return make({.op = Op::twice, .in = {v.node, -1}}, v.negative); }

Value Network::minus(Value v) { return make({.op = Op::minus, .in = {v.node, -1}}, v.negative); }

Value Network::factor(Value v) { return make({.op = Op::factor, .in = {v.node, -1}}, v.negative); }

Value Network::repeat(const Node& node, Value a, Value b) {
  switch (node.op) {
    case Op::load:
      return load(node.lanes);
    case Op::shuffle:
      return shuffle(a, b, node.lanes);
    case Op::exchange:
      return exchange(a);
    case Op::sign_flip:
      return flip_signs(a, node.lanes);
    case Op::add:
      return add(a, b);
    case Op::sub:
      return sub(a, b);
    case Op::mul:
      return node.constants.size() == 1 ? mul(node.constants[0], a) : mul(node.constants, a);
    case Op::twice:
      return twice(a);
    case Op::factor:
      return factor(a);
    case Op::minus:
      return minus(a);
    case Op::combination:
      break;
  }
  throw std::logic_error("a statement is not repeated on two operands");
}

Value Network::sum(std::span<const Product> products, Finish finish) {
  std::vector<Product> terms;
  for (const Product& p : products) {
    if (!p.v.absent() && !p.c.is_zero()) terms.push_back(p);
  }
  if (rounding_ == Rounding::each) {
    Value total;
    for (const Product& p : terms) total = total + mul(p.c, p.v);
    return total;
  }
  if (terms.empty()) return {};
  Node node{.op = Op::combination, .finish = finish};
  for (const Product& p : terms) node.terms.push_back({p.v.negative ? -p.c : p.c, p.v.node});
  return make(std::move(node));
}

void Network::store(Value v, std::array<int, max_lanes> scalars) {
  if (v.absent()) throw std::logic_error("an output is zero by structure");
  if (v.negative) throw std::logic_error("an output would need a negation");
  stores_.push_back({v.node, scalars});
}

}  // namespace xfm::gen
