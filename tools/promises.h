// What families promise each other: kernels of one length and precision that are the same scalar program.
#pragma once

#include <vector>

#include "gen/kernel.h"

namespace xfm {

/// Checks the kernels of all families of one length. Throws at the first broken promise, naming the two
/// kernels and the first output that differs.
void check_promises(const std::vector<gen::Kernel>& kernels);

/// Throws in the same way if a kernel of a target is not the program of the baseline's.
void check_against_baseline(const gen::Kernel& kernel, const gen::Kernel& of_baseline);

/// The kernel's scalar program in a collection, numbered as its family prescribes.
gen::Program program_of(const gen::Kernel& kernel, gen::Programs& programs);

}  // namespace xfm
