// Pairing: a network of twice as many lanes that computes the same scalar program.
#pragma once

#include <map>
#include <memory>

#include "gen/network/program.h"
#include "gen/packing/pairs.h"

namespace xfm::gen {

/// What instructions cost on wide targets, in tenths of an addition.
struct InstructionCosts {
  int add = 10, product = 8, conversion = 10, shuffle = 8, flip = 3, load = 3, merged_load = 8, store = 6,
      upper_store = 3;
};

/// Makes networks in pairs. Kernels that differ only in their addresses in memory are searched once.
class Pairing {
 public:
  /// Packs like operations in pairs (pairs.h). The network must consist of operations on one or two operands
  /// (lowered() in passes.h); it may be the result of an earlier pairing, whose permutations are operations
  /// like others. Memory is numbered as in the scalar program, so that layouts of one spectrum look alike.
  std::unique_ptr<Network> run(const Network& network, const Numbering& numbering,
                               const InstructionCosts& costs);

 private:
  std::map<Sequence<int>, Sequence<Pair>> known_;  // by the graph, as numbers
};

}  // namespace xfm::gen
