// The rows of the tables, and the constants that all kernels together name.
#include "src/dft/recipe/table.h"

#include <gtest/gtest.h>

#include <map>

#include "gen/algorithms/tree.h"
#include "src/dft/recipe/rules.h"
#include "tools/families.h"

namespace xfm {
namespace {

TEST(ComplexTable, EveryTreeHasTheLengthOfItsRow) {
  for (const dft::Row& row : dft::table()) {
    for (const dft::Breakdown& breakdown : {row.binary32, row.binary64}) {
      const gen::Tree tree = gen::parse_tree(breakdown.tree);
      EXPECT_EQ(gen::to_string(tree), breakdown.tree);
      // A chirp has trees of greater length, there and back.
      if (tree.rule == "B") {
        for (const gen::Tree& inner : tree.args)
          EXPECT_GE(dft::length_of(inner), 2 * row.length - 1) << breakdown.tree;
        EXPECT_EQ(dft::length_of(tree.args.front()), dft::length_of(tree.args.back()));
      } else {
        EXPECT_EQ(dft::length_of(tree), row.length) << breakdown.tree;
      }
    }
  }
}

TEST(ComplexTable, LengthsRise) {
  int last = 1;
  for (const dft::Row& row : dft::table()) {
    EXPECT_GT(row.length, last);
    EXPECT_EQ(dft::row(row.length).binary32.tree, row.binary32.tree);
    last = row.length;
  }
  EXPECT_THROW(dft::row(1), std::out_of_range);
  EXPECT_THROW(dft::row(last + 1), std::out_of_range);
}

TEST(Families, LengthsRiseWithinTheirLimits) {
  for (const Family& family : families()) {
    ASSERT_FALSE(family.lengths.empty()) << family.name;
    int last = family.lowest - 1;
    for (const int length : family.lengths) {
      EXPECT_GT(length, last) << family.name;
      last = length;
    }
    EXPECT_LE(last, family.highest) << family.name;
  }
}

std::string without_spaces(std::string text) {
  std::erase(text, ' ');
  return text;
}

TEST(Families, KernelsAreWhatTheFamilySays) {
  std::map<std::string, gen::Wide> values;
  for (const Family& family : families()) {
    if (family.by_hand()) continue;
    for (const gen::ElementType& type : family.types) {
      for (const int length : family.lengths) {
        const gen::Kernel kernel = family.make(length, type.precision, "");
        EXPECT_EQ(kernel.name, "xfm" + family.name + "_" + std::to_string(length) + "_" + type.suffix());
        EXPECT_EQ(kernel.length, length);
        EXPECT_EQ(without_spaces(gen::to_string(gen::parse_tree(kernel.tree))), without_spaces(kernel.tree));
        for (const gen::Node& node : kernel.network->nodes()) {
          for (const gen::Constant& c : node.constants)
            ASSERT_TRUE(values.emplace(c.name, c.value).first->second == c.value)
                << kernel.name << ": two values of " << c.name;
        }
      }
    }
  }
}

}  // namespace
}  // namespace xfm
