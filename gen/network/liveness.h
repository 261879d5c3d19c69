// Liveness: how often each node of a network is used, and which of its lanes some output depends on.
#pragma once

#include "gen/network/network.h"

namespace xfm::gen {

/// For each node the number of live nodes and outputs that use it; 0 for a dead one.
Sequence<int> uses(const Network& network);

/// The same for a network whose outputs are these values, before it is bound to memory.
Sequence<int> uses(const Network& network, const Sequence<Value>& outputs);

/// Live nodes and stores: the instructions of a kernel, except register copies and spills.
int instructions(const Network& network);

/// For each node the lanes that some store depends on.
Sequence<Sequence<bool>> live_lanes(const Network& network);

}  // namespace xfm::gen
