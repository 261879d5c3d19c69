// An order of operations by recursive bisection (Frigo 1999): the graph is cut in the middle between its
// inputs and its outputs, each half is ordered by itself, and parts that share nothing are ordered one after
// the other. Whatever the number of registers, the values in flight are within a constant factor of the
// fewest.
#pragma once

#include "gen/network/network.h"

namespace xfm::gen {

/// The given nodes of a network, in the order of bisection.
Sequence<NodeId> bisected(const Network& network, const Sequence<NodeId>& nodes);

}  // namespace xfm::gen
