// The rivals: for each family of kernels a transform of another library that gives the same result.
#pragma once

#include <string>
#include <vector>

#include "bench/arrays.h"
#include "bench/contestant.h"
#include "tools/catalogue.h"

namespace xfm::bench {

/// The rival of a kernel, planned for these arrays (planning overwrites them), or null if the family has
/// none.
ContestantPtr make_rival(const catalogue::Kernel& kernel, Arrays& arrays);

/// One more contestant beside a kernel.
struct NamedContestant {
  std::string name;
  ContestantPtr contestant;
};

/// Further contestants of a family, on the same arrays.
std::vector<NamedContestant> further_rivals(const catalogue::Kernel& kernel, Arrays& arrays);

/// Name and version of the rival library.
std::string rival_version();

}  // namespace xfm::bench
