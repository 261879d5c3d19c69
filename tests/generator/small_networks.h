// Small networks in tests: their constants, counts of operations, and what they compute.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>

#include "gen/network/interpreter.h"

namespace xfm::test {

/// What a call throws, or "no error".
template <class Call>
std::string error_of(Call call) {
  try {
    call();
    return "no error";
  } catch (const std::exception& error) {
    return error.what();
  }
}

/// Nodes of the operation, dead ones included.
inline int count(const gen::Network& network, gen::Op op) {
  return static_cast<int>(std::count_if(network.nodes().begin(), network.nodes().end(),
                                        [op](const gen::Node& node) { return node.op == op; }));
}

/// Constants that keep the arithmetic of a test exact.
inline gen::Constant integer(int n) {
  return n == 0   ? gen::Constant{"0", 0}
         : n == 1 ? gen::Constant{"1", 1}
         : n < 0  ? -integer(-n)
                  : gen::constant(std::to_string(n), n);
}
inline gen::ComplexConstant integers(int re, int im) { return {integer(re), integer(im)}; }

/// The parts of complex numbers that stand side by side, exchanged.
inline gen::Value with_parts_exchanged(gen::Value v) {
  gen::PerLane picks;
  for (int l = 0; l < v.network->width(); ++l) picks.push_back(l ^ 1);
  return v.network->permute(v, v, picks);
}

/// Stores the value, not scaled, lane l as scalar first + l of dst.
inline void store(gen::Network& network, gen::Value v, int first) {
  gen::PerLane lanes;
  for (int l = 0; l < network.width(); ++l) lanes.push_back(first + l);
  network.store(network.factor(v), lanes);
}

/// The outputs for src with the factor 1; scalars that the network does not write are 0.
template <class T>
gen::Sequence<T> evaluate(const gen::Network& network, const gen::Sequence<T>& src, int written) {
  gen::Sequence<T> dst(written);
  gen::evaluate(network, src.data(), dst.data(), T(1));
  return dst;
}

/// The lanes of a value for src, its sign included.
template <class T>
gen::Sequence<T> lanes_of(gen::Network& network, gen::Value v, const gen::Sequence<T>& src) {
  const int width = network.width(), first = width * network.stores().size();
  store(network, v.negative ? -v : v, first);
  gen::Sequence<T> dst = evaluate<T>(network, src, first + width);
  dst.erase(dst.begin(), dst.begin() + first);
  if (v.negative) std::transform(dst.begin(), dst.end(), dst.begin(), [](T lane) { return -lane; });
  return dst;
}

}  // namespace xfm::test
