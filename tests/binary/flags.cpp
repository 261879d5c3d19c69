// The kernels' instructions do not depend on the flags of the project that compiles them.
#include <gtest/gtest.h>

#include <set>

#include "paths.h"
#include "tests/binary/instruction.h"
#include "tests/binary/tools.h"

namespace xfm::test {
namespace {

TEST(Flags, OfAnotherProjectAddNoInstructions) {
  for (const auto& [target, library] : paths::flagged_libraries) {
    SCOPED_TRACE(library);
    int instructions = 0;
    std::set<std::string> unexpected;
    for (const std::string& line :
         lines_of(std::string(paths::objdump) + " -d --no-show-raw-insn '" + library + "'")) {
      const auto instruction = parse_instruction(line);
      if (!instruction) continue;
      ++instructions;
      if (instruction->sort == Sort::unexpected || instruction->level > level_of_target(target))
        unexpected.insert(instruction->text());
    }
    EXPECT_GT(instructions, 1000);
    for (const std::string& text : unexpected) ADD_FAILURE() << text;
  }
}

}  // namespace
}  // namespace xfm::test
