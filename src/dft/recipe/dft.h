// The complex DFT family: from a length, a precision and a direction to a finished kernel.
#pragma once

#include <string>
#include <vector>

#include "gen/kernel.h"
#include "src/dft/recipe/rules.h"

namespace xfm::dft {

/// Lengths that have a row.
std::vector<int> lengths();

/// The kernel of the length's row, or of another tree of the same length. All checks are made: the transform
/// against its definition, one read an input, one lane exchange an output pair, and the row's costs unless
/// another tree is tried; the first that fails throws.
gen::Kernel make_kernel(int length, gen::Precision precision, Direction direction,
                        const std::string& tree = "");

}  // namespace xfm::dft
