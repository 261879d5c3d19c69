// Pairing: a network of twice as many lanes that computes the same scalar program.
#pragma once

#include <memory>

#include "gen/network/network.h"

namespace xfm::gen {

/// What instructions cost on wide targets, in tenths of an addition.
struct InstructionCosts {
  int add = 10, product = 8, conversion = 10, shuffle = 8, flip = 3, load = 3, merged_load = 8, store = 6,
      upper_store = 3;
};

/// Packs like operations of a network in pairs (pairs.h). The network must consist of operations on one or
/// two operands (lowered() in passes.h); it may be the result of an earlier pairing, whose permutations are
/// operations like others.
std::unique_ptr<Network> paired(const Network& network, const InstructionCosts& costs);

}  // namespace xfm::gen
