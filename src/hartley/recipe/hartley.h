// The Hartley kernels (Bracewell 1983), made of the real transforms.
#pragma once

#include <string>
#include <vector>

#include "gen/kernel.h"

namespace xfm::hartley {

/// The lengths that have a row.
std::vector<int> lengths();

/// The kernel of a length by its row, or by another plan.
gen::Kernel make_kernel(int length, gen::Precision precision, const std::string& plan);

}  // namespace xfm::hartley
