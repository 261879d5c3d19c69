// The Hartley kernels (Bracewell 1983), made of the real transforms.
#pragma once

#include "gen/kernel.h"

namespace xfm::hartley {

/// By the length's row, or by another plan.
gen::Design design(int length, gen::Precision precision, const std::string& plan);

}  // namespace xfm::hartley
