// The Hartley kernels (Bracewell 1983), made of the real transforms.
#pragma once

#include "gen/kernel.h"

namespace xfm::hartley {

/// The network of a length's row, or of another plan, before it is bound to memory.
std::unique_ptr<gen::Network> draft(int length, const std::string& plan = "");

/// By the length's row, or by another plan.
gen::Design design(int length, gen::Precision precision, const std::string& plan);

}  // namespace xfm::hartley
