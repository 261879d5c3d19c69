// The kernels of this build against those on record. XFM_GOLDEN_UPDATE=1 renews the record instead.
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>

#include "gen/network/check.h"
#include "tests/bits/generated.h"
#include "tests/golden/digest.h"
#include "tests/golden/table.h"

namespace xfm::test {
namespace {

const Row headings = {"kernel",   "tree",      "adds",  "mults",  "packed_adds", "packed_mults",
                      "shuffles", "exchanges", "loads", "stores", "digest"};

/// What only a network tells stays open.
Row row_by_hand(const catalogue::Kernel& kernel) {
  Row row = {kernel.name, kernel.tree};
  for (const int number : {kernel.adds, kernel.mults, kernel.add_instructions, kernel.mult_instructions})
    row.push_back(std::to_string(number));
  for (int open = 0; open < 4; ++open) row.emplace_back("-");
  row.push_back(digest(kernel));
  return row;
}

Row row(const catalogue::Kernel& kernel) {
  const gen::Counts counts = gen::count(*generated(kernel).network);
  Row row = {kernel.name, kernel.tree};
  for (const int number : {counts.adds, counts.mults, counts.add_nodes, counts.mult_nodes, counts.shuffles,
                           counts.exchanges, counts.loads, counts.stores})
    row.push_back(std::to_string(number));
  row.push_back(digest(kernel));
  return row;
}

TEST(Golden, KernelsAreAsRecorded) {
  std::set<std::string> by_generator;
  for (const catalogue::Kernel& kernel : generated_kernels()) by_generator.insert(kernel.name);
  Table built;
  for (const catalogue::Kernel& kernel : catalogue::kernels())
    built.push_back(by_generator.contains(kernel.name) ? row(kernel) : row_by_hand(kernel));
  if (std::getenv("XFM_GOLDEN_UPDATE") != nullptr) write_table(XFM_GOLDEN_TABLE, headings, built);
  const std::string changed = difference(read_table(XFM_GOLDEN_TABLE), built);
  EXPECT_TRUE(changed.empty()) << "Not as on record; if that is meant, build the target \"golden\":\n"
                               << changed;
}

// A digest that is the same for everything would record nothing.
TEST(Golden, DigestsTellLengthsApart) {
  std::map<std::string, std::string> seen;
  for (const catalogue::Kernel& kernel : catalogue::kernels()) {
    const std::string of = std::string(kernel.family) + kernel.type + digest(kernel);
    const auto [other, fresh] = seen.emplace(of, kernel.name);
    EXPECT_TRUE(fresh) << kernel.name << " gives what " << other->second << " gives";
  }
}

}  // namespace
}  // namespace xfm::test
