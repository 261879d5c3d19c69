// The costs of a network: the operations that the rows of the tables bound, and the instructions of the code.
#pragma once

#include "gen/network/network.h"

namespace xfm::gen {

/// Real operations without the factor multiplications, and the instructions that perform them.
struct Counts {
  int adds = 0, mults = 0;            ///< lanes that carry data: idle and trivial lanes do not count
  int add_nodes = 0, mult_nodes = 0;  ///< instructions; mult_nodes includes the factor multiplications
  int permutations = 0, loads = 0, stores = 0;
};
Counts count(const Network& network);

}  // namespace xfm::gen
