// From the rows to plans: every length spelled out down to its blocks, in the order from samples to bins.
#pragma once

#include "gen/algorithms/tree.h"
#include "gen/math/constant.h"
#include "src/real/recipe/table.h"

namespace xfm::real {

using gen::Direction;

/// The plan of a row's tree, or of any other tree of that length. The plan of an inverse tree is the one
/// whose network, transposed, does the tree's stages in their order.
gen::Tree plan(Direction direction, const gen::Tree& tree);

/// The same, by the length's row.
gen::Tree plan(Direction direction, int length);

/// The plan with the blocks of a length in another order of their sums.
gen::Tree reordered(const gen::Tree& plan, const BlockOrder& order);

}  // namespace xfm::real
