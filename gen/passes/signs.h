// Signs of the values of a draft: which of them are computed as their negatives, so that no operation starts
// with a minus and as few outputs as possible have to be subtracted from zero.
//
// A difference can be written either way round, and a linear combination with terms of both signs can be
// negated; a sum cannot. Which values to negate is a satisfiability problem, but an easy one: local search
// from the recipe's own signs (Selman, Kautz and Cohen 1994) ends after a few steps, usually with no minus
// left.
#pragma once

#include "gen/network/draft.h"

namespace xfm::gen {

/// For each node whether its negative is computed. Deterministic.
Sequence<bool> negated_values(const Draft& draft);

}  // namespace xfm::gen
