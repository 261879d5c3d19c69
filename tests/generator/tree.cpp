#include "gen/algorithms/tree.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace xfm::gen {
namespace {

std::string error_of(const std::string& text) {
  try {
    const Tree tree = parse_tree(text);
    return "parsed as " + to_string(tree);
  } catch (const std::invalid_argument& error) {
    return error.what();
  }
}

TEST(Tree, Shape) {
  const Tree tree = parse_tree("PFA*(SR(8),3)");
  EXPECT_FALSE(tree.is_number());
  EXPECT_EQ(tree.rule, "PFA*");
  ASSERT_EQ(tree.args.size(), 2);
  EXPECT_EQ(tree.args[0].rule, "SR");
  ASSERT_EQ(tree.args[0].args.size(), 1);
  EXPECT_EQ(tree.args[0].args[0].number, 8);
  EXPECT_TRUE(tree.args[1].is_number());
  EXPECT_EQ(tree.args[1].number, 3);
}

TEST(Tree, StagesWithoutARule) {
  const Tree tree = parse_tree("2,2");
  EXPECT_EQ(tree.rule, ",");
  EXPECT_EQ(tree.args.size(), 2);
}

TEST(Tree, PrintsWhatItParsed) {
  for (const std::string text : {"7", "2,2", "SR(16)", "PFA(2,5,3)", "CT(CT(4,2),CT(4,2))", "PFA*(4,CT(3,3))",
                                 "RS(PFA*(SR(8),5))", "B(PFA(CT(4,CT(4,2)),3),PFA(3,CT(4,CT(4,2))))"})
    EXPECT_EQ(to_string(parse_tree(text)), text);
}

TEST(Tree, SpacesDoNotCount) {
  EXPECT_EQ(to_string(parse_tree(" R ( 2 , 12 ) ")), "R(2,12)");
  EXPECT_EQ(to_string(parse_tree("2 ,2")), "2,2");
}

TEST(Tree, RunsBindAsWritten) {
  for (const std::string text : {"2 x 3 * 3", "(2 x 3) * 3", "(2 * 2) * 2", "2 * (2 * 2)", "F(3 x 2,3 * 2)"})
    EXPECT_EQ(to_string(parse_tree(text)), text);
}

TEST(Tree, ErrorsNameTheTextAndThePlace) {
  EXPECT_EQ(error_of(""), "tree \"\", position 0: expected a number or a rule");
  EXPECT_EQ(error_of("PFA"), "tree \"PFA\", position 3: expected '('");
  EXPECT_EQ(error_of("PFA()"), "tree \"PFA()\", position 4: expected a number or a rule");
  EXPECT_EQ(error_of("PFA(2,)"), "tree \"PFA(2,)\", position 6: expected a number or a rule");
  EXPECT_EQ(error_of("PFA(2,3"), "tree \"PFA(2,3\", position 7: expected ')'");
  EXPECT_EQ(error_of("PFA(2;3)"), "tree \"PFA(2;3)\", position 5: expected ')'");
  EXPECT_EQ(error_of("PFA(2,3))"), "tree \"PFA(2,3))\", position 8: unexpected text");
  EXPECT_EQ(error_of("2,2)"), "tree \"2,2)\", position 3: unexpected text");
  EXPECT_EQ(error_of("-3"), "tree \"-3\", position 0: expected a number or a rule");
}

}  // namespace
}  // namespace xfm::gen
