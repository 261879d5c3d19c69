#include "gen/network/network.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace xfm::gen {

Sequence<NodeId> operands(const Node& node) {
  Sequence<NodeId> in;
  const auto meet = [&](NodeId id) {
    if (id >= 0 && std::find(in.begin(), in.end(), id) == in.end()) in.push_back(id);
  };
  for (const NodeId id : node.in) meet(id);
  for (const Term& term : node.terms) meet(term.node);
  return in;
}

Place Network::source(const Node& permutation, int lane) const {
  const int pick = permutation.lanes[lane], first = width(permutation.in[0]);
  return pick < first ? Place{permutation.in[0], pick} : Place{permutation.in[1], pick - first};
}

Network::Type Network::type_of(const Node& node) const {
  if (node.op == Op::load) return {node.lanes.size(), false};
  if (node.op == Op::combination) return {1, node.finish == Finish::unrounded};
  const auto [width, inner] = types_[node.in[0]];
  if (node.in[1] >= 0 && inner != types_[node.in[1]].inner)
    throw std::logic_error("an operation on different precisions");
  if (node.op == Op::permute) return {node.lanes.size(), inner};
  return {width, (inner || node.op == Op::widen) && node.op != Op::narrow};
}

Value Network::make(Node node, bool negative) {
  const auto [place, fresh] = known_.try_emplace(node, nodes_.size());
  if (fresh) {
    types_.push_back(type_of(node));
    nodes_.push_back(std::move(node));
  }
  return {this, place->second, negative};
}

Value Network::load(PerLane scalars) { return make({.op = Op::load, .lanes = std::move(scalars)}); }

Value Network::permute(Value a, Value b, PerLane picks) {
  if (a.negative != b.negative) throw std::logic_error("permutation of values with different signs");
  return make({.op = Op::permute, .in = {a.node, b.node}, .lanes = std::move(picks)}, a.negative);
}

Value Network::flip_signs(Value v, PerLane flipped) {
  return make({.op = Op::sign_flip, .in = {v.node, -1}, .lanes = std::move(flipped)}, v.negative);
}

Value Network::add(Value a, Value b) {
  if (a.absent()) return b;
  if (b.absent()) return a;
  if (a.negative != b.negative)
    return a.negative ? difference(b.node, a.node, false) : difference(a.node, b.node, false);
  if (b.node < a.node) std::swap(a, b);  // addition commutes bit for bit: one node for both orders
  return make({.op = Op::add, .in = {a.node, b.node}}, a.negative);
}

// a - b, or -(b - a) if that was written first: a difference and its negative are one node.
Value Network::difference(NodeId a, NodeId b, bool negative) {
  const Node reversed{.op = Op::sub, .in = {b, a}};
  if (known_.contains(reversed)) return make(reversed, !negative);
  return make({.op = Op::sub, .in = {a, b}}, negative);
}

// Marked or not, each lane is written as asked for: a lane's difference is not replaced by a negative.
Value Network::subtract(Value a, Value b, PerLane lanes) {
  return make({.op = Op::sub, .in = {a.node, b.node}, .lanes = std::move(lanes)});
}

Value Network::mul(const Constant& c, Value v) {
  if (v.absent() || c.is_zero()) return {};
  if (c.is_negative()) return mul(-c, -v);
  if (c.is_one()) return v;
  return make({.op = Op::mul, .in = {v.node, -1}, .constants = {c}}, v.negative);
}

Value Network::mul(const Sequence<Constant>& lanes, Value v) {
  if (v.absent()) return {};
  return make({.op = Op::mul, .in = {v.node, -1}, .constants = lanes}, v.negative);
}

Value Network::twice(Value v) { return make({.op = Op::twice, .in = {v.node, -1}}, v.negative); }

Value Network::minus(Value v) { return make({.op = Op::minus, .in = {v.node, -1}}, v.negative); }

Value Network::widen(Value v) { return make({.op = Op::widen, .in = {v.node, -1}}, v.negative); }

Value Network::narrow(Value v) { return make({.op = Op::narrow, .in = {v.node, -1}}, v.negative); }

Value Network::factor(Value v) { return make({.op = Op::factor, .in = {v.node, -1}}, v.negative); }

Value Network::repeat(Node node, Value a, Value b) {
  if (node.op == Op::combination)
    throw std::logic_error("a linear combination cannot be repeated on two operands");
  if (node.op == Op::add) return add(a, b);
  if (node.op == Op::sub && node.lanes.empty()) return sub(a, b);
  if (node.op == Op::permute) return permute(a, b, std::move(node.lanes));
  node.in = {a.node, b.node};
  return make(std::move(node), a.negative);
}

Value Network::sum(std::span<const Product> products, Finish finish) {
  Products terms;
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

void Network::store(Value v, PerLane scalars) {
  if (v.absent()) throw std::logic_error("an output is zero by structure");
  if (v.negative) throw std::logic_error("an output would need a negation");
  stores_.push_back({v.node, std::move(scalars)});
}

// Operands have smaller numbers than the nodes that use them, so one walk down visits all users first.
Sequence<int> uses(const Network& network) {
  Sequence<int> uses(network.nodes().size());
  for (const Store& store : network.stores()) {
    if (store.node >= 0) ++uses[store.node];
  }
  for (const Value& output : network.outputs()) ++uses[output.node];
  for (NodeId id = uses.size() - 1; id >= 0; --id) {
    if (uses[id] == 0) continue;
    for (const NodeId operand : operands(network.node(id))) ++uses[operand];
  }
  return uses;
}

int instructions(const Network& network) {
  const Sequence<int> used = uses(network);
  return network.stores().size() +
         static_cast<int>(std::count_if(used.begin(), used.end(), [](int n) { return n > 0; }));
}

Sequence<Sequence<bool>> live_lanes(const Network& network) {
  Sequence<Sequence<bool>> live;
  for (NodeId id = 0; id < network.nodes().size(); ++id) live.emplace_back(network.width(id));
  for (const Store& store : network.stores()) {
    for (int l = 0; store.node >= 0 && l < store.lanes.size(); ++l) {
      if (store.lanes[l] >= 0) live[store.node][l] = true;
    }
  }
  for (NodeId id = live.size() - 1; id >= 0; --id) {
    const Node& node = network.node(id);
    for (int l = 0; l < network.width(id); ++l) {
      if (!live[id][l]) continue;
      if (node.op == Op::permute) {
        const Place from = network.source(node, l);
        live[from.node][from.lane] = true;
      } else {
        for (const NodeId operand : operands(node)) live[operand][l] = true;
      }
    }
  }
  return live;
}

}  // namespace xfm::gen
