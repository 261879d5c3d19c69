// The interpreter: computes a network lane by lane, in one arithmetic or another. In numbers it runs a
// network as the compiled kernel must, bit for bit in binary32 and binary64, or in binary128 for the
// mathematics alone. In operations it writes down what is computed (program.h).
#pragma once

#include <type_traits>

#include "gen/network/network.h"

namespace xfm::gen {

/// Computes the lanes of all nodes. An arithmetic has a Scalar with a unary minus, operations on scalars, and
/// the arithmetic of linear combinations, inner().
template <class Arithmetic>
class Interpreter {
 public:
  using Scalar = typename Arithmetic::Scalar;

  Interpreter(const Network& network, const Arithmetic& arithmetic)
      : network_(network), arithmetic_(arithmetic), values_(network.nodes().size()) {
    for (NodeId id = 0; id < values_.size(); ++id) {
      for (int l = 0; l < network.width(id); ++l) values_[id].push_back(lane(id, l));
    }
  }

  /// Calls write(place in memory, scalar) for each lane that is stored, except for stores of zero.
  template <class Write>
  void each_output(Write write) const {
    for (const Store& store : network_.stores()) {
      for (int l = 0; store.node >= 0 && l < store.lanes.size(); ++l) {
        if (store.lanes[l] >= 0) write(store.lanes[l], values_[store.node][l]);
      }
    }
  }

 private:
  Scalar lane(NodeId id, int l) const {
    const Node& node = network_.node(id);
    return network_.inner(id) ? operation(arithmetic_.inner(), node, l) : operation(arithmetic_, node, l);
  }

  template <class By>
  Scalar operation(const By& by, const Node& node, int l) const {
    const auto in = [&](std::size_t operand) { return values_[node.in[operand]][l]; };
    switch (node.op) {
      case Op::load:
        return node.lanes[l] >= 0 ? by.input(node.lanes[l]) : by.zero();
      case Op::permute: {
        const Place from = network_.source(node, l);
        return values_[from.node][from.lane];
      }
      case Op::sign_flip:
        return node.lanes[l] == 1 ? -in(0) : in(0);
      case Op::add:
        return by.add(in(0), in(1));
      case Op::sub:
        return by.add(in(0), node.subtracts(l) ? -in(1) : in(1));
      case Op::mul:
        return by.mul(node.constant(l), in(0));
      case Op::twice:
        return by.add(in(0), in(0));
      case Op::minus:
        return by.add(by.zero(), -in(0));
      case Op::factor:
        return by.scale(in(0));
      case Op::widen:
        return in(0);
      case Op::narrow:
        return by.rounded(in(0));
      default:
        return combination(node, l);
    }
  }

  Scalar combination(const Node& node, int l) const {
    const auto inner = arithmetic_.inner();
    Scalar total{};
    for (int t = 0; t < node.terms.size(); ++t) {
      const Scalar product = inner.mul(node.terms[t].coefficient, values_[node.terms[t].node][l]);
      total = t == 0 ? product : inner.add(total, product);
    }
    if (scales(node.finish)) total = inner.scale(total);
    if (node.finish == Finish::negated) total = inner.add(inner.zero(), -total);
    return node.finish == Finish::unrounded ? total : arithmetic_.rounded(total);
  }

  const Network& network_;
  const Arithmetic arithmetic_;
  Sequence<Sequence<Scalar>> values_;
};

/// Numbers of the precision T. Linear combinations are computed in binary64, or in T where that is wider.
template <class T>
struct Numbers {
  using Scalar = std::conditional_t<std::is_same_v<T, float>, double, T>;

  const T* src;
  T factor;

  Scalar input(int place) const { return src[place]; }
  Scalar zero() const { return 0; }
  Scalar add(Scalar a, Scalar b) const { return static_cast<T>(a) + static_cast<T>(b); }
  Scalar mul(const Constant& c, Scalar a) const { return static_cast<T>(c.value) * static_cast<T>(a); }
  Scalar scale(Scalar a) const { return factor * static_cast<T>(a); }
  Scalar rounded(Scalar a) const { return static_cast<T>(a); }
  Numbers<Scalar> inner() const { return {nullptr, factor}; }
};

template <class T>
void evaluate(const Network& network, const T* src, T* dst, T factor) {
  for (const Store& store : network.stores()) {
    if (store.node < 0) dst[store.lanes[0]] = 0;
  }
  Interpreter(network, Numbers<T>{src, factor}).each_output([&](int place, auto value) {
    dst[place] = static_cast<T>(value);
  });
}

}  // namespace xfm::gen
