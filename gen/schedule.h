// The order in which a kernel's operations are written down. Never changes an operation.
#pragma once

#include <vector>

#include "gen/network.h"

namespace xfm::gen {

/// A node to compute, or (node < 0) a store to make.
struct Step {
  NodeId node = -1;
  int store = -1;
};

/// The live operations in the order of the recipe's stages, smoothed by when an operation can start: loads at
/// their first use, and each output finished and stored as soon as its operands are there and the last load
/// is done. Measured: this order spills least of those tried, and is up to a tenth faster than the recipe's
/// alone.
std::vector<Step> schedule(const Network& network);

/// The operands of a node, present ones only.
std::vector<NodeId> operands(const Node& node);

}  // namespace xfm::gen
