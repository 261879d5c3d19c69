// Small networks in tests: their constants, counts of operations, and what they compute.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "gen/network/interpreter.h"

namespace xfm::test {

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

/// Stores the value, not scaled, lane l as scalar first + l of dst.
inline void store(gen::Network& network, gen::Value v, int first) {
  std::array<int, gen::max_lanes> lanes{-1, -1, -1, -1};
  for (int l = 0; l < network.width(); ++l) lanes[static_cast<std::size_t>(l)] = first + l;
  network.store(network.factor(v), lanes);
}

/// The outputs for src with the factor 1; scalars that the network does not write are 0.
template <class T>
std::vector<T> evaluate(const gen::Network& network, const std::vector<T>& src, std::size_t written) {
  std::vector<T> dst(written);
  gen::evaluate(network, src.data(), dst.data(), T(1));
  return dst;
}

/// The lanes of a value for src, its sign included.
template <class T>
std::vector<T> lanes_of(gen::Network& network, gen::Value v, const std::vector<T>& src) {
  const auto width = static_cast<std::size_t>(network.width()), first = width * network.stores().size();
  store(network, v.negative ? -v : v, static_cast<int>(first));
  std::vector<T> dst = evaluate<T>(network, src, first + width);
  dst.erase(dst.begin(), dst.begin() + static_cast<std::ptrdiff_t>(first));
  if (v.negative) std::transform(dst.begin(), dst.end(), dst.begin(), [](T lane) { return -lane; });
  return dst;
}

}  // namespace xfm::test
