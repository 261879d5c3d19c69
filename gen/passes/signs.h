// Signs of the values of a draft: which of them are made as their negatives, so that no operation starts with
// a minus and as few outputs as possible have to be subtracted from zero.
//
// A difference can be written either way round and a statement with terms of both signs can be turned; a sum
// cannot. Which values to turn is a satisfiability problem, and a lenient one: local search from the recipe's
// own signs (Selman, Kautz and Cohen 1994) ends after a few steps, most often with no minus left.
#pragma once

#include <vector>

#include "gen/passes/binding.h"

namespace xfm::gen::real {

/// For each node whether it is made as its negative. Deterministic.
std::vector<bool> negated_values(const Draft& draft);

}  // namespace xfm::gen::real
