// The interpreter: runs a network as the compiled kernel must, bit for bit in binary32 and binary64, or in
// binary128 for the mathematics alone.
#pragma once

#include <type_traits>

#include "gen/network/network.h"

namespace xfm::gen {

template <class T>
class Interpreter {
 public:
  explicit Interpreter(const Network& network)
      : network_(network) {
    for (NodeId id = 0; id < network.nodes().size(); ++id) values_.emplace_back(network.width(id));
  }

  void run(const T* src, T* dst, T factor) {
    for (NodeId id = 0; id < values_.size(); ++id) {
      for (int l = 0; l < network_.width(id); ++l)
        values_[id][l] = network_.inner(id) ? lane<Inner>(id, l, src, factor) : lane<T>(id, l, src, factor);
    }
    for (const Store& store : network_.stores()) {
      for (int l = 0; l < store.lanes.size(); ++l) {
        if (store.lanes[l] >= 0)
          dst[store.lanes[l]] = store.node < 0 ? T(0) : static_cast<T>(values_[store.node][l]);
      }
    }
  }

 private:
  /// Linear combinations are computed in binary64, or in T where that is wider.
  using Inner = std::conditional_t<std::is_same_v<T, float>, double, T>;

  /// One lane of a node, by an operation on numbers of type A.
  template <class A>
  Inner lane(NodeId id, int l, const T* src, T factor) const {
    const Node& node = network_.node(id);
    const auto in = [&](std::size_t operand) { return static_cast<A>(values_[node.in[operand]][l]); };
    switch (node.op) {
      case Op::load:
        return node.lanes[l] >= 0 ? src[node.lanes[l]] : T(0);
      case Op::permute:
        return content(network_.source(node, l));
      case Op::sign_flip:
        return node.lanes[l] == 1 ? -in(0) : in(0);
      case Op::add:
        return in(0) + in(1);
      case Op::sub:
        return node.lanes.empty() || node.lanes[l] == 1 ? in(0) - in(1) : in(0) + in(1);
      case Op::mul:
        return static_cast<A>(node.constant(l).value) * in(0);
      case Op::twice:
        return in(0) + in(0);
      case Op::minus:
        return A(0) - in(0);
      case Op::factor:
        return static_cast<A>(factor) * in(0);
      case Op::widen:
      case Op::narrow:
        return in(0);
      case Op::combination:
        break;
    }
    return combination(node, l, factor);
  }

  Inner content(const Place& place) const { return values_[place.node][place.lane]; }

  Inner combination(const Node& node, int l, T factor) const {
    Inner total = 0;
    for (int t = 0; t < node.terms.size(); ++t) {
      const Term& term = node.terms[t];
      const Inner product = static_cast<Inner>(term.coefficient.value) * values_[term.node][l];
      total = t == 0 ? product : total + product;
    }
    if (scales(node.finish)) total = static_cast<Inner>(factor) * total;
    if (node.finish == Finish::negated) total = 0 - total;
    return node.finish == Finish::unrounded ? total : static_cast<T>(total);
  }

  const Network& network_;
  Sequence<Sequence<Inner>> values_;
};

template <class T>
void evaluate(const Network& network, const T* src, T* dst, T factor) {
  Interpreter<T>(network).run(src, dst, factor);
}

}  // namespace xfm::gen
