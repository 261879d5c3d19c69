// The writers of C++ text: a body, and the shell around it (entry tests, factor, twin).
#pragma once

#include <span>
#include <string>

#include "gen/kernel.h"

namespace xfm::gen {

/// One translation unit with these kernels. `include` is the header with the vector vocabulary of packed
/// kernels.
std::string emit_file(std::span<const Kernel> kernels, const std::string& include);

/// A C++ literal with every bit of the value, in the given precision.
std::string literal(Wide value, Precision precision);

}  // namespace xfm::gen
