// What one family promises of another: kernels of a length and precision that are one scalar program.
#pragma once

#include <vector>

#include "gen/kernel.h"

namespace xfm {

/// Throws, by the names of two kernels and of the first output that differs, if one of these kernels, which
/// are those of all families of a length, breaks a promise.
void check_promises(const std::vector<gen::Kernel>& kernels);

/// Throws likewise if a kernel of a target is not the program of the baseline's.
void check_against_baseline(const gen::Kernel& kernel, const gen::Kernel& of_baseline);

/// The kernel's scalar program in a collection, numbered as the family says.
gen::Program program_of(const gen::Kernel& kernel, gen::Programs& programs);

}  // namespace xfm
