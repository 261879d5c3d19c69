// What was measured: target, compiler, options and processor; and which builds are not worth measuring.
#pragma once

#include <string>

#include "tools/catalogue.h"

namespace xfm::bench {

struct Build {
  std::string target;
  std::string compiler;
  std::string configuration;  ///< "Release"
  std::string flags;          ///< of everything
  std::string kernel_flags;   ///< of the kernels in addition
  std::string processor;
};

Build this_build(const catalogue::Target& target);

/// Load average of the last minute. Work on a core that shares its units with ours slows every batch alike,
/// so no statistic can reveal it: figures of a run under load deserve a second look.
double load();

/// Why this build must not be measured; empty if it may be.
std::string objection();

}  // namespace xfm::bench
