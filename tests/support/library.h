// The library under test: the file that the loader chose for this program.
#pragma once

#include <string>

namespace xfm::test {

/// The real path of the libxfm that this program calls.
std::string library_file();

}  // namespace xfm::test
