// The library under test: the file that the loader chose for this program.
#pragma once

#include <string>

#include "tools/catalogue.h"

namespace xfm::test {

/// The real path of the libxfm that this program calls.
std::string library_file();

/// The target that a library is built for, or null if the file is not of this build.
const catalogue::Target* target_of(const std::string& library);

/// The target of the libxfm that this program calls; throws if the file is not of this build.
const catalogue::Target& target_under_test();

}  // namespace xfm::test
