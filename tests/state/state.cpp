// No function of the libraries leaves the processor in another state than it found: control words, flags,
// saved registers, the stack pointer, upper halves of vector registers. Only status bits may be added.
#include <gtest/gtest.h>

#include "tests/binary/tools.h"
#include "tests/state/survey.h"
#include "tests/support/library.h"

namespace xfm::test {
namespace {

TEST(State, IsKeptByEveryCall) {
  for (const std::string& what : survey().wrong) ADD_FAILURE() << what;
}

// 1,193 functions and those of batches: none is left out.
TEST(State, EveryFunctionIsCalled) {
  std::set<std::string> exported;
  for (const Symbol& symbol : dynamic_symbols(library_file()))
    if (symbol.kind == 'T') exported.insert(symbol.name);
  EXPECT_EQ(survey().functions, exported);
  EXPECT_EQ(exported.size(), 1193U);
  EXPECT_EQ(survey().batches.size(), 20U);
}

// The core and the C library may rely on an aligned stack.
TEST(State, StackIsAlignedAtCalls) {
  EXPECT_GT(survey().callees.calls, 10000);
  EXPECT_EQ(survey().callees.misaligned, 0);
}

}  // namespace
}  // namespace xfm::test
