#include "tests/support/library.h"

#include <dlfcn.h>

#include <filesystem>
#include <stdexcept>

#include "xfm.h"

namespace xfm::test {

std::string library_file() {
  Dl_info found = {};
  if (dladdr(reinterpret_cast<const void*>(&xfmGetLibVersion), &found) == 0)
    throw std::runtime_error("xfmGetLibVersion lies in no loaded file");
  return std::filesystem::canonical(found.dli_fname).string();
}

}  // namespace xfm::test
