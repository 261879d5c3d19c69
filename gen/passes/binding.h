// A real network before it is bound to memory: its loads are numbered samples, its outputs values with signs.
#pragma once

#include <memory>
#include <vector>

#include "gen/kernel.h"
#include "gen/network/network.h"

namespace xfm::gen::real {

struct Draft {
  std::unique_ptr<Network> network = std::make_unique<Network>(1, Rounding::combination);
  std::vector<Value> outputs;
};

/// The nodes that outputs depend on, and how often each is used.
std::vector<int> uses(const Draft& draft);

/// Where the inputs and outputs of a draft stand in memory, by their numbers.
struct Binding {
  std::vector<int> from, to;
  std::vector<int> zeros{};    ///< elements of dst that are zero whatever the data
  bool factor_inside = false;  ///< of the statement, where one makes an output and nothing else
};

/// Measured: plain operations run short of registers, while chains of statements keep each other waiting.
inline Order order(Precision precision) {
  return precision == Precision::binary64 ? Order::bisection : Order::earliest_start;
}

/// The kernel's network, with the values that are turned made as their negatives (signs.h). Every output is
/// multiplied by the factor as its last step; one whose sign is still wrong then is subtracted from zero.
std::unique_ptr<Network> bind(const Draft& draft, const Binding& binding, const std::vector<bool>& turned);

}  // namespace xfm::gen::real
