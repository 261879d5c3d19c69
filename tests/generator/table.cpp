// The rows of the tables, and the constants of all kernels together.
#include "src/dft/recipe/table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "gen/algorithms/tree.h"
#include "tests/bits/generated.h"
#include "tools/families.h"

namespace xfm {
namespace {

TEST(ComplexTable, EveryTreeHasTheLengthOfItsRow) {
  for (int length = 2; length <= 64; ++length) {
    for (const gen::Precision precision : {gen::Precision::binary32, gen::Precision::binary64}) {
      const dft::Breakdown& breakdown = dft::breakdown(precision, length);
      const gen::Tree tree = gen::parse_tree(breakdown.tree);
      EXPECT_EQ(gen::to_string(tree), breakdown.tree);
      // A chirp has trees of greater length, one for each direction.
      if (tree.rule == "B") {
        for (const gen::Tree& inner : tree.args)
          EXPECT_GE(gen::length_of(inner), 2 * length - 1) << breakdown.tree;
        EXPECT_EQ(gen::length_of(tree.args.front()), gen::length_of(tree.args.back()));
      } else {
        EXPECT_EQ(gen::length_of(tree), length) << breakdown.tree;
      }
    }
  }
}

TEST(ComplexTable, HasNoOtherLengths) {
  EXPECT_THROW(dft::breakdown(gen::Precision::binary32, 1), std::out_of_range);
  EXPECT_THROW(dft::breakdown(gen::Precision::binary32, 65), std::out_of_range);
}

std::string without_spaces(std::string text) {
  std::erase(text, ' ');
  return text;
}

TEST(Families, TheCatalogueHasAllTheirKernels) {
  std::vector<std::string> expected, found;
  for (const Family& family : families()) {
    if (family.by_hand()) continue;
    for (const int length : family.lengths())
      for (const gen::ElementType& type : family.types())
        expected.push_back("xfm" + family.name + "_" + std::to_string(length) + "_" + type.suffix());
  }
  for (const catalogue::Kernel& kernel : test::generated_kernels()) found.push_back(kernel.name);
  std::ranges::sort(expected);
  std::ranges::sort(found);
  EXPECT_EQ(found, expected);
}

TEST(Families, KernelsAreWhatTheFamilySays) {
  for (const catalogue::Kernel& row : test::generated_kernels()) {
    const gen::Kernel& kernel = test::generated(row);
    EXPECT_EQ(kernel.name(), row.name);
    EXPECT_EQ(kernel.length, row.length);
    EXPECT_EQ(without_spaces(gen::to_string(gen::parse_tree(kernel.tree))), without_spaces(kernel.tree));
  }
}

/// The constants of a network: factors of products, and coefficients of linear combinations.
std::vector<gen::Constant> constants_of(const gen::Network& network) {
  std::vector<gen::Constant> all;
  for (const gen::Node& node : network.nodes()) {
    all.insert(all.end(), node.constants.begin(), node.constants.end());
    for (const gen::Term& term : node.terms) all.push_back(term.coefficient);
  }
  return all;
}

TEST(Families, AConstantNameHasOneValueInAllKernels) {
  std::map<std::string, gen::Wide> values;
  bool in_combinations = false;
  for (const catalogue::Kernel& row : test::generated_kernels()) {
    const gen::Kernel& kernel = test::generated(row);
    for (const gen::Constant& c : constants_of(*kernel.network))
      ASSERT_TRUE(values.emplace(c.name, c.value).first->second == c.value)
          << kernel.name() << ": two values of " << c.name;
    for (const gen::Node& node : kernel.network->nodes()) in_combinations |= !node.terms.empty();
  }
  EXPECT_TRUE(in_combinations)
      << "no kernel has a linear combination, so their coefficients were not looked at";
}

}  // namespace
}  // namespace xfm
