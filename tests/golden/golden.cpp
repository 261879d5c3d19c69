// The kernels of this build against the record of them. XFM_GOLDEN_UPDATE=1 renews the record first.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>

#include "gen/network/check.h"
#include "tests/bits/generated.h"
#include "tests/golden/digest.h"
#include "tests/golden/table.h"
#include "tools/promises.h"

namespace xfm::test {
namespace {

const Row headings = {"kernel",       "tree",  "adds",   "mults",   "packed_adds", "packed_mults",
                      "permutations", "loads", "stores", "program", "digest"};

std::string program_digest(const gen::Kernel& kernel) {
  gen::Programs programs(gen::Equality::bits);
  return fmt::format("{:016x}", programs.digest(program_of(kernel, programs)));
}

/// Columns between the tree and the digest of the outputs, which comes last: from the network, or, where a
/// kernel is written by hand, from the catalogue as far as it goes. All but that digest are the baseline's.
std::vector<std::string> of_network(const catalogue::Kernel& kernel) {
  const gen::Kernel& made = generated(kernel);
  const gen::Counts counts = gen::count(*made.network);
  std::vector<std::string> cells;
  for (const int number : {counts.adds, counts.mults, counts.add_nodes, counts.mult_nodes,
                           counts.permutations, counts.loads, counts.stores})
    cells.push_back(std::to_string(number));
  cells.push_back(program_digest(made));
  return cells;
}

std::vector<std::string> by_hand(const catalogue::Kernel& kernel) {
  const catalogue::Form& form = catalogue::form(catalogue::targets().front(), kernel);
  std::vector<std::string> cells;
  for (const int number : {kernel.adds, kernel.mults, form.add_instructions, form.mult_instructions})
    cells.push_back(std::to_string(number));
  cells.resize(headings.size() - 3, "-");
  return cells;
}

TEST(Golden, KernelsAreAsRecorded) {
  std::set<std::string> by_generator;
  for (const catalogue::Kernel& kernel : generated_kernels()) by_generator.insert(kernel.name);
  Table built;
  for (const catalogue::Kernel& kernel : catalogue::kernels()) {
    Row row = {kernel.name, kernel.tree};
    const auto cells = by_generator.contains(kernel.name) ? of_network(kernel) : by_hand(kernel);
    row.insert(row.end(), cells.begin(), cells.end());
    row.push_back(digest(kernel));
    ASSERT_EQ(row.size(), headings.size());
    built.push_back(row);
  }
  if (std::getenv("XFM_GOLDEN_UPDATE") != nullptr) write_table(XFM_GOLDEN_TABLE, headings, built);
  const std::string changed = difference(read_table(XFM_GOLDEN_TABLE), built);
  EXPECT_TRUE(changed.empty()) << "Not as recorded; if this is intended, build the target \"golden\":\n"
                               << changed;
}

// A digest that never changed would record nothing.
TEST(Golden, DigestsOfTwoLengthsDiffer) {
  std::map<std::string, std::string> seen;
  for (const catalogue::Kernel& kernel : catalogue::kernels()) {
    const std::string of = std::string(kernel.family) + kernel.type + digest(kernel);
    const auto [other, fresh] = seen.emplace(of, kernel.name);
    EXPECT_TRUE(fresh) << kernel.name << " has the outputs of " << other->second;
  }
}

}  // namespace
}  // namespace xfm::test
