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

const catalogue::Target* target_of(const std::string& library) {
  for (const catalogue::Target& target : catalogue::targets()) {
    std::error_code missing;
    if (std::filesystem::equivalent(target.library, library, missing)) return &target;
  }
  return nullptr;
}

const catalogue::Target& target_under_test() {
  static const catalogue::Target* const target = target_of(library_file());
  if (target == nullptr) throw std::runtime_error(library_file() + " is not of this build");
  return *target;
}

}  // namespace xfm::test
