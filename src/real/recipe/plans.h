// From the rows to plans: every length spelled out down to its blocks, in the order from samples to bins.
#pragma once

#include "gen/algorithms/tree.h"
#include "gen/math/constant.h"
#include "src/real/recipe/table.h"

namespace xfm::real {

using gen::Direction;

/// The plan of a row's tree, or of any other tree of that length. The plan of an inverse tree is the one
/// whose network, transposed, runs the tree's stages in their order.
gen::Tree plan(Direction direction, const gen::Tree& tree);

/// The same, by the length's row.
gen::Tree plan(Direction direction, int length);

/// The plan with its blocks of one length in another order of bins.
gen::Tree reordered(const gen::Tree& plan, const BlockOrder& order);

}  // namespace xfm::real
