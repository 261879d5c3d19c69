// Targets as data, which the build reads too.
#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>

#include "gen/targets/target.h"
#include "tools/catalogue.h"

namespace xfm::gen {
namespace {

TEST(Target, TheBaseline) {
  const Target& target = baseline();
  EXPECT_EQ(target.name, "x86-64");
  EXPECT_EQ(target.lanes(Precision::binary32), 4);
  EXPECT_EQ(target.lanes(Precision::binary64), 2);
}

TEST(Target, IsFoundByItsName) {
  EXPECT_EQ(&target("x86-64"), &baseline());
  for (const Target& known : targets()) EXPECT_EQ(&target(known.name), &known);
  try {
    target("vax");
    FAIL() << "there is a target vax";
  } catch (const std::out_of_range& error) {
    EXPECT_STREQ(error.what(), "no target vax");
  }
}

TEST(Target, TheBuildReadsTheSameDescription) {
  EXPECT_EQ(catalogue::targets().front().name, baseline().name);
  for (const catalogue::Target& built : catalogue::targets()) {
    const std::string flags(target(built.name).compile_flags);
    EXPECT_NE(std::string(built.compile_flags).find(flags), std::string::npos) << built.name;
    EXPECT_EQ(built.forms.size(), catalogue::kernels().size()) << built.name;
  }
}

TEST(Target, PermutationsAllowTheirIdlePicks) {
  for (const Target& target : targets()) {
    std::set<int> widths;
    for (const Permutation& permutation : target.permutations) {
      const int width = permutation.idle.size();
      widths.insert(width);
      ASSERT_EQ(permutation.sources.size(), width) << permutation.name;
      EXPECT_GE(permutation.cost, 1) << permutation.name;
      int choices = 1;
      for (int l = 0; l < width; ++l) {
        EXPECT_TRUE(permutation.allows(l, permutation.idle[l])) << permutation.name << ", lane " << l;
        int picks = 0;
        for (int pick = 0; pick < 64; ++pick) {
          if (!permutation.allows(l, pick)) continue;
          EXPECT_LT(pick, 2 * width) << permutation.name << ", lane " << l;
          ++picks;
        }
        choices *= picks;
      }
      EXPECT_EQ(permutation.fixed(), choices == 1) << permutation.name;
    }
    for (const Precision precision : {Precision::binary32, Precision::binary64})
      EXPECT_TRUE(widths.contains(target.lanes(precision))) << target.name;
  }
}

TEST(Target, PermutationsRiseInCost) {
  for (const Target& target : targets()) {
    for (std::size_t p = 1; p < target.permutations.size(); ++p)
      EXPECT_LE(target.permutations[p - 1].cost, target.permutations[p].cost) << target.name;
  }
}

}  // namespace
}  // namespace xfm::gen
