// The complex DFT family: from a length, a precision and a direction to the design of a kernel.
#pragma once

#include "gen/kernel.h"
#include "gen/targets/target.h"

namespace xfm::dft {

using gen::Direction;

/// By the length's row, or by another tree of the same length.
gen::Design design(int length, gen::Precision precision, Direction direction, const std::string& tree,
                   const gen::Target& target);

}  // namespace xfm::dft
