// The order in which a kernel's operations are written down. Never changes an operation.
#pragma once

#include <vector>

#include "gen/kernel.h"

namespace xfm::gen {

/// A node to compute, or (node < 0) a store to make.
struct Step {
  NodeId node = -1;
  int store = -1;
};

/// The live operations in an order: loads at their first use, and each output finished and stored as soon as
/// its operands are there and the last load is done.
///
/// Measured: windows are best for most packed kernels, up to a tenth faster than the recipe's order alone.
/// Scalar kernels of statements, which are long chains of conversions, are fastest with everything as early
/// as it can be; for those of plain operations bisection halves the spills of large lengths.
std::vector<Step> schedule(const Network& network, Order order = Order::windowed);

/// The operands of a node, present ones only.
std::vector<NodeId> operands(const Node& node);

}  // namespace xfm::gen
