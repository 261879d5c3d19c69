// The interpreter: runs a network as the compiled kernel must, bit for bit in binary32 and binary64, or in
// binary128 for the mathematics alone.
#pragma once

#include <array>
#include <vector>

#include "gen/network/network.h"

namespace xfm::gen {

template <class T>
class Interpreter {
 public:
  explicit Interpreter(const Network& network) : network_(network), values_(network.nodes().size()) {}

  void run(const T* src, T* dst, T factor) {
    for (std::size_t id = 0; id < values_.size(); ++id)
      values_[id] = compute(network_.nodes()[id], src, factor);
    for (const Store& store : network_.stores()) {
      for (std::size_t l = 0; l < max_lanes; ++l) {
        if (store.lanes[l] >= 0)
          dst[store.lanes[l]] = store.node < 0 ? T(0) : static_cast<T>(at(store.node)[l]);
      }
    }
  }

 private:
  /// Statements compute in binary64, or in T where that is wider.
  using Inner = std::conditional_t<std::is_same_v<T, float>, double, T>;
  using Lanes = std::array<Inner, max_lanes>;

  const Lanes& at(NodeId id) const { return values_[static_cast<std::size_t>(id)]; }

  Lanes compute(const Node& node, const T* src, T factor) const {
    Lanes result{};
    for (std::size_t l = 0; l < static_cast<std::size_t>(network_.width()); ++l)
      result[l] = node.op == Op::combination ? combination(node, factor) : lane(node, l, src, factor);
    return result;
  }

  T lane(const Node& node, std::size_t l, const T* src, T factor) const {
    const auto in = [&](std::size_t operand) { return static_cast<T>(at(node.in[operand])[l]); };
    switch (node.op) {
      case Op::load:
        return node.lanes[l] >= 0 ? src[node.lanes[l]] : T(0);
      case Op::shuffle: {
        const auto pick = static_cast<std::size_t>(node.lanes[l]);
        return static_cast<T>(at(node.in[pick / max_lanes])[pick % max_lanes]);
      }
      case Op::exchange:
        return static_cast<T>(at(node.in[0])[1 - l]);
      case Op::sign_flip:
        return node.lanes[l] == 1 ? -in(0) : in(0);
      case Op::add:
        return in(0) + in(1);
      case Op::sub:
        return in(0) - in(1);
      case Op::mul:
        return static_cast<T>(node.constants[node.constants.size() == 1 ? 0 : l].value) * in(0);
      case Op::twice:
        return in(0) + in(0);
      case Op::minus:
        return T(0) - in(0);
      case Op::combination:
        break;
      case Op::factor:
        return factor * in(0);
    }
    return T(0);
  }

  // A linear combination, rounded once unless it is kept.
  Inner combination(const Node& node, T factor) const {
    Inner total = 0;
    for (std::size_t t = 0; t < node.terms.size(); ++t) {
      const Term& term = node.terms[t];
      const Inner product = static_cast<Inner>(term.coefficient.value) * at(term.node)[0];
      total = t == 0 ? product : total + product;
    }
    if (scales(node.finish)) total = static_cast<Inner>(factor) * total;
    if (node.finish == Finish::negated) total = 0 - total;
    return node.finish == Finish::unrounded ? total : static_cast<T>(total);
  }

  const Network& network_;
  std::vector<Lanes> values_;
};

template <class T>
void evaluate(const Network& network, const T* src, T* dst, T factor) {
  Interpreter<T>(network).run(src, dst, factor);
}

}  // namespace xfm::gen
