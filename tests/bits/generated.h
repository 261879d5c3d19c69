// From a kernel of the catalogue to what the generator makes of its row.
#pragma once

#include <vector>

#include "gen/kernel.h"
#include "tools/catalogue.h"

namespace xfm::test {

/// The kernel with its network, by the row; throws where the list of families does not know it.
gen::Kernel generated(const catalogue::Kernel& kernel);

/// Those that the generator writes; the others are written by hand.
std::vector<catalogue::Kernel> generated_kernels();

}  // namespace xfm::test
