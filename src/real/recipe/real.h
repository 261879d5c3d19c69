// The real kernels: forward and inverse, one draft per length, bound to the three packed layouts of a real
// sequence's spectrum.
#pragma once

#include "gen/kernel.h"
#include "gen/targets/target.h"

namespace xfm::real {

using gen::Direction;

enum class Layout { ccs, pack, perm };

/// "CCS", "Pack", "Perm".
const char* name_of(Layout layout);

/// By the length's row, or by another tree.
gen::Design design(int length, gen::Precision precision, Direction direction, Layout layout,
                   const std::string& tree);

}  // namespace xfm::real
