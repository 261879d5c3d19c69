// The kernels of the family as rows of the catalogue: all of it follows from the table of passes.
#pragma once

#include <vector>

#include "gen/kernel.h"

namespace xfm::wht {

std::vector<int> orders();

gen::Row row(int order, gen::Precision precision);

}  // namespace xfm::wht
