// The main program of every suite that calls the library. One program tests any build of it: XFM_LIBRARY
// names the file, and LD_LIBRARY_PATH makes the loader take it. If the two disagree, no test runs. The
// library of a target that this processor cannot run is not called at all: the status 77 stands for a skipped
// test.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "tests/support/library.h"

namespace xfm::test {
namespace {

class NamedLibrary : public testing::Environment {
  void SetUp() override {
    const char* const named = std::getenv("XFM_LIBRARY");
    if (named == nullptr) return;
    std::error_code missing;
    const std::string expected = std::filesystem::canonical(named, missing).string();
    ASSERT_FALSE(missing) << "XFM_LIBRARY names " << named << ": " << missing.message();
    ASSERT_EQ(library_file(), expected) << "the library loaded is not the one that XFM_LIBRARY names";
  }
};

/// The target of the library that XFM_LIBRARY names, if this processor cannot run it.
const catalogue::Target* impossible_target() {
  const char* const named = std::getenv("XFM_LIBRARY");
  const catalogue::Target* const target = named == nullptr ? nullptr : target_of(named);
  return target == nullptr || catalogue::runs_here(*target) ? nullptr : target;
}

}  // namespace
}  // namespace xfm::test

int main(int argc, char** argv) {
  if (const auto* const target = xfm::test::impossible_target()) {
    std::printf("SKIPPED: this processor cannot run %s\n", target->name);
    return 77;
  }
  testing::InitGoogleTest(&argc, argv);
  testing::AddGlobalTestEnvironment(new xfm::test::NamedLibrary);  // GoogleTest deletes it
  return RUN_ALL_TESTS();
}
