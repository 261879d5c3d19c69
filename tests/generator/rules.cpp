// The table of rules, and what follows from it: which trees are refused, and the lengths of the others.
#include "gen/algorithms/rules.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

using test::error_of;

TEST(Rules, AreComplete) {
  std::set<std::string_view> names;
  for (const Rule& rule : rules()) {
    EXPECT_TRUE(names.insert(rule.name).second) << rule.name << " is there twice";
    EXPECT_FALSE(rule.children.empty()) << rule.name;
    EXPECT_FALSE(rule.formula.empty()) << rule.name;
    EXPECT_FALSE(rule.source.empty()) << rule.name;
    EXPECT_NE(rule.applicable, nullptr) << rule.name;
    EXPECT_NE(rule.length, nullptr) << rule.name;
    EXPECT_TRUE(rule.on_points != nullptr || rule.on_lines != nullptr) << rule.name;
  }
}

struct Example {
  const char* tree;
  int length;
};
const Example examples[] = {
    {"13", 13},
    {"D(9)", 9},
    {"D(7,1,3,2,0)", 7},
    {"2,2", 4},
    {"PFA(2,3,5)", 30},
    {"PFA*(SR(8),3)", 24},
    {"3 x 5", 15},
    {"CT(4,2,3)", 24},
    {"3 * 3", 9},
    {"SR(32)", 32},
    {"F(3 x 2,3 * 2)", 12},
    {"R(PFA(2,3))", 7},
    {"R(3,PFA(2,3))", 7},
    {"R(2,2 * 2,2)", 5},
    {"R(2,3 x 2 * 2,3 x 2,3 * 2)", 13},
    {"RS(PFA(4,3))", 13},
    {"B(PFA(4,3),PFA(3,4))", 5},
};

TEST(Rules, EachHasAnExampleOfItsLength) {
  std::set<std::string_view> unseen;
  for (const Rule& rule : rules()) unseen.insert(rule.name);
  for (const auto& [text, length] : examples) {
    const Tree tree = parse_tree(text);
    EXPECT_EQ(length_of(tree), length) << text;
    EXPECT_NO_THROW(check_length(tree, length)) << text;
    unseen.erase(rule_of(tree).name);
  }
  EXPECT_TRUE(unseen.empty()) << *unseen.begin() << " has no example";
}

TEST(Rules, RefuseOtherArgumentsByName) {
  const auto error = [](const char* text) { return error_of([&] { parse_tree(text); }); };
  EXPECT_EQ(error("X(3)"), "no rule X");
  EXPECT_EQ(error("CT(2,X(3))"), "no rule X");
  EXPECT_EQ(error("0"), "0 is not a number above 0");
  EXPECT_EQ(error("D(8)"), "D(8) is not D(n[, order of the bins]), n odd");
  EXPECT_EQ(error("D(7,1,2)"), "D(7,1,2) is not D(n[, order of the bins]), n odd");
  EXPECT_EQ(error("2,3"), "2,3 is not 2,2");
  EXPECT_EQ(error("PFA(2,4)"), "PFA(2,4) is not PFA(a,b,..) coprime");
  EXPECT_EQ(error("PFA*(3)"), "PFA*(3) is not PFA*(a,b) coprime");
  EXPECT_EQ(error("3 x 6"), "3 x 6 is not a x b coprime");
  EXPECT_EQ(error("CT(6)"), "CT(6) is not CT(a,b,..)");
  EXPECT_EQ(error("SR(12)"), "SR(12) is not SR(2^k)");
  EXPECT_EQ(error("F(3,4 * 2)"), "F(3,4 * 2) is not F(even bins, odd bins)");
  EXPECT_EQ(error("R(8)"), "R(8) is not R([root,] forward[, inverse[, skew]])");
  EXPECT_EQ(error("R(2 * 3,12)"), "R(2 * 3,12) is not R([root,] forward[, inverse[, skew]])");
  EXPECT_EQ(error("RS(4,3)"), "RS(4,3) is not RS(tree)");
  EXPECT_EQ(error("B(8,9)"), "B(8,9) is not B(forward, inverse)");
}

TEST(CheckLength, AChirpServesShorterOddLengths) {
  const auto error = [](const char* text, int length) {
    return error_of([&] { check_length(parse_tree(text), length); });
  };
  EXPECT_EQ(error("3 x 5", 15), "no error");
  EXPECT_EQ(error("3 x 5", 13), "tree 3 x 5 cannot transform length 13");
  for (const int length : {1, 3, 5}) EXPECT_EQ(error("B(12,12)", length), "no error") << length;
  for (const int length : {2, 4, 6, 7})
    EXPECT_EQ(error("B(12,12)", length), "tree B(12,12) cannot transform length " + std::to_string(length));
}

TEST(RaderArguments, InTheirFourShapes) {
  const Tree one = parse_tree("R(12)"), two = parse_tree("R(2,12)"), three = parse_tree("R(2,12,6)"),
             four = parse_tree("R(2,12,6,3 x 2)");
  const auto in_one = rader_arguments(one), in_two = rader_arguments(two), in_three = rader_arguments(three),
             in_four = rader_arguments(four);
  EXPECT_EQ(in_one.root, std::nullopt);
  EXPECT_EQ(in_one.there, &one.args[0]);
  EXPECT_EQ(in_one.back, nullptr);
  EXPECT_EQ(in_one.skew, nullptr);
  EXPECT_EQ(in_two.root, 2);
  EXPECT_EQ(in_two.there, &two.args[1]);
  EXPECT_EQ(in_two.back, nullptr);
  EXPECT_EQ(in_two.skew, nullptr);
  EXPECT_EQ(in_three.root, 2);
  EXPECT_EQ(in_three.there, &three.args[1]);
  EXPECT_EQ(in_three.back, &three.args[2]);
  EXPECT_EQ(in_three.skew, &three.args[2]) << "one tree serves both ways back";
  EXPECT_EQ(in_four.back, &four.args[2]);
  EXPECT_EQ(in_four.skew, &four.args[3]);
}

TEST(SpelledOut, NumbersBecomeTreesDownToTheBlocks) {
  const auto spelled = [](const char* text) {
    return to_string(spelled_out(parse_tree(text), [](int number) -> std::string {
      return number == 7 ? "RS(6)" : number == 6 ? "PFA(2,3)" : "";
    }));
  };
  EXPECT_EQ(spelled("7"), "RS(PFA(2,3))");
  EXPECT_EQ(spelled("PFA(7,3)"), "PFA(RS(PFA(2,3)),3)");
  EXPECT_EQ(spelled("CT(6,6)"), "CT(PFA(2,3),PFA(2,3))");
  EXPECT_EQ(spelled("R(6)"), "R(PFA(2,3))");
  EXPECT_EQ(spelled("R(6,6)"), "R(6,PFA(2,3))") << "a root is no length";
  for (const char* block : {"D(7)", "D(7,1,3,2,0)", "2,2", "SR(8)", "5"}) EXPECT_EQ(spelled(block), block);
}

TEST(UsesRule, AnywhereInTheTree) {
  const Tree tree = parse_tree("PFA(CT(4,2),RS(PFA(2,3)))");
  for (const char* rule : {"PFA", "CT", "RS", ""}) EXPECT_TRUE(uses_rule(tree, rule)) << rule;
  for (const char* rule : {"R", "B", "D"}) EXPECT_FALSE(uses_rule(tree, rule)) << rule;
}

TEST(Stages, AreNestedToTheRight) {
  const Tree tree = parse_tree("CT(4,2,3)");
  EXPECT_EQ(to_string(rest_of(tree)), "CT(2,3)");
  EXPECT_EQ(to_string(rest_of(rest_of(tree))), "3");
}

}  // namespace
}  // namespace xfm::gen
