// The library file of batches: its exports, and the instructions of its kernels.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>

#include "paths.h"
#include "tests/binary/disassembly.h"
#include "tests/binary/tools.h"
#include "tests/support/library.h"
#include "tools/many_catalogue.h"
#include "xfm_many.h"

namespace xfm::test {
namespace {

using Names = std::set<std::string>;

/// The libxfmmany that this program calls.
std::string library_of_batches() {
  Dl_info found = {};
  if (dladdr(reinterpret_cast<const void*>(&xfmManyHartley_32f), &found) == 0)
    throw std::runtime_error("xfmManyHartley_32f lies in no loaded file");
  return std::filesystem::canonical(found.dli_fname).string();
}

Names exported() {
  Names names;
  for (const Symbol& symbol : dynamic_symbols(library_of_batches()))
    if (symbol.kind != 'U' && symbol.kind != 'w' && symbol.kind != 'v') names.insert(symbol.name);
  return names;
}

TEST(ManyLibrary, IsThatOfTheTarget) {
  EXPECT_EQ(std::filesystem::path(library_of_batches()).parent_path(),
            std::filesystem::path(library_file()).parent_path());
}

TEST(ManyLibrary, ExportsTheFunctionsOfTheList) {
  Names names;
  for (const catalogue::Batch& batch : catalogue::batches()) names.insert(batch.name);
  EXPECT_EQ(exported(), names);
  EXPECT_EQ(names.size(), 20U);
}

TEST(ManyLibrary, ExportsTheFunctionsOfTheHeader) {
  std::ifstream file(paths::header_of_batches);
  const std::string text{std::istreambuf_iterator<char>(file), {}};
  const std::regex declaration("xfmStatus (xfmMany\\w+)\\(");
  Names names;
  for (std::sregex_iterator at(text.begin(), text.end(), declaration), end; at != end; ++at)
    names.insert((*at)[1]);
  EXPECT_EQ(exported(), names);
}

/// Every function of the library's own: kernels, and what leads to them.
Names functions_of_batches() {
  Names names;
  for (const Symbol& symbol : symbols(library_of_batches())) {
    const bool function = symbol.kind == 't' || symbol.kind == 'T' || symbol.kind == 'W';
    if (function && symbol.name.find("any") != std::string::npos) names.insert(symbol.name);
  }
  return names;
}

/// For strides and counts, which only batches have.
bool is_of_strides(const Instruction& instruction) {
  static const Names known = {"addq", "dec", "decq", "imul", "inc", "neg", "negq", "subq"};
  return known.contains(instruction.mnemonic);
}

TEST(ManyCode, StaysWithinTheTarget) {
  const Disassembly code(library_of_batches());
  const int level = level_of_target(target_under_test().name);
  const Names names = functions_of_batches();
  EXPECT_GT(names.size(), 400U);
  Names beyond, dirty, unexpected;
  for (const std::string& name : names) {
    if (!code.has(name)) continue;
    const bool kernel = name.find("4body") != std::string::npos;
    const Body body = trace(code, name, "");
    for (const Instruction* instruction : body.instructions) {
      if (instruction->level > level) beyond.insert(name + ": " + instruction->text());
      if (instruction->mnemonic.find("fm") != std::string::npos && instruction->mnemonic[0] == 'v')
        unexpected.insert(instruction->mnemonic);
      if (kernel && instruction->sort == Sort::unexpected && !is_of_strides(*instruction))
        unexpected.insert(instruction->mnemonic);
    }
    for (const std::string& exit : body.dirty_exits) dirty.insert(name + ": " + exit);
  }
  for (const std::string& text : beyond) ADD_FAILURE() << text << " is beyond the target";
  for (const std::string& text : unexpected) ADD_FAILURE() << text << " is of no use to a kernel";
  for (const std::string& text : dirty) ADD_FAILURE() << text << " leaves upper halves in use";
}

}  // namespace
}  // namespace xfm::test
