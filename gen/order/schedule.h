// The order in which a kernel's operations are written. It never changes an operation.
#pragma once

#include "gen/network/network.h"

namespace xfm::gen {

/// Which one is best for a kernel depends on its target and on the compiler; tools/orders.def has them.
enum class Order {
  windowed,        ///< the recipe's stages, smoothed by earliest start
  earliest_start,  ///< every operation as soon as possible
  bisection,       ///< few values in flight, whatever the number of registers (bisection.cpp)
};

/// A node to compute, or (node < 0) a store to make.
struct Step {
  NodeId node = -1;
  int store = -1;
};

/// The live operations in this order: loads at their first use, all of them before the first store, and each
/// output finished and stored as soon as its operands are ready and the last load is done.
Sequence<Step> schedule(const Network& network, Order order);

/// The given nodes of a network, in the order of bisection.
Sequence<NodeId> bisected(const Network& network, const Sequence<NodeId>& nodes);

}  // namespace xfm::gen
