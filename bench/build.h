// What was measured: compiler, options and processor; and which builds are not worth measuring.
#pragma once

#include <string>

namespace xfm::bench {

struct Build {
  std::string compiler;
  std::string configuration;  ///< "Release"
  std::string flags;          ///< of everything
  std::string kernel_flags;   ///< of the kernels in addition
  std::string processor;
};

Build this_build();

/// Why this build must not be measured, or nothing.
std::string objection();

}  // namespace xfm::bench
