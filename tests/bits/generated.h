// What the generator makes of the rows: the kernels of the catalogue with their networks, each made once a
// process, when it is first asked for. Making all of them takes longer than most tests.
#pragma once

#include <vector>

#include "gen/kernel.h"
#include "tools/catalogue.h"

namespace xfm::test {

/// The kernel that the generator makes of the row; throws if no family has it.
const gen::Kernel& generated(const catalogue::Kernel& kernel);

/// The kernels that the generator writes. The others are written by hand.
const std::vector<catalogue::Kernel>& generated_kernels();

}  // namespace xfm::test
