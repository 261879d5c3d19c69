// The real kernels: forward and inverse, one draft per length, bound to the three layouts.
#pragma once

#include "gen/kernel.h"
#include "src/real/recipe/layouts.h"
#include "src/real/recipe/plans.h"

namespace xfm::real {

/// By the length's row, or by another tree.
gen::Design design(int length, gen::Precision precision, Direction direction, Layout layout,
                   const std::string& tree);

}  // namespace xfm::real
