// The main program of every suite that calls the library. One program tests any build of it: XFM_LIBRARY
// names the file, and LD_LIBRARY_PATH makes the loader take it. If the two disagree, no test runs.
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace xfm::test

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  testing::AddGlobalTestEnvironment(new xfm::test::NamedLibrary);  // GoogleTest deletes it
  return RUN_ALL_TESTS();
}
