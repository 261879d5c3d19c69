// The real kernels: forward and inverse, one network a length, bound to the three layouts.
#pragma once

#include <string>
#include <vector>

#include "gen/kernel.h"
#include "src/real/recipe/layouts.h"
#include "src/real/recipe/plans.h"

namespace xfm::real {

/// The lengths that have a row.
std::vector<int> lengths();

/// "DFTFwd_RToCCS", "DFTInv_CCSToR", ...
std::string family_name(Direction direction, Layout layout);

/// The kernel of a length by its row, or by another tree.
gen::Kernel make_kernel(int length, gen::Precision precision, Direction direction, Layout layout,
                        const std::string& tree);

}  // namespace xfm::real
