// What the public header says of the families: shapes, units and scale, alignment, aliasing, errors, sources.
#pragma once

#include <string>

#include "src/dft/recipe/dft.h"
#include "src/real/recipe/real.h"

namespace xfm {

/// Doxygen text of a family.
std::string documentation(dft::Direction direction);
std::string documentation(real::Direction direction, real::Layout layout);
std::string hartley_documentation();
std::string walsh_hadamard_documentation();

}  // namespace xfm
