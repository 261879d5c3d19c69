// Transforms as networks: every rule of a tree against the definition in binary128, on real and on complex
// sequences.
#include "gen/algorithms/transform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "gen/math/number.h"
#include "tests/generator/small_networks.h"
#include "tests/support/reference.h"

namespace xfm::gen {
namespace {

Wide part(Network& network, Value v, const Sequence<Wide>& src) {
  return v.absent() ? Wide(0) : test::lanes_of(network, v, src)[0];
}

double distance(Wide got, Wide expected) { return std::abs(static_cast<double>(got - expected)); }

/// The greatest difference of the bins of unit vectors from exp(-2 pi i n (k + offset/2)/N). Sample n is
/// real, or has its imaginary part in input N + n.
double error_of(Network& network, const Points& bins, int length, int offset, bool real) {
  double error = 0;
  for (int unit = 0; unit < (real ? length : 2 * length); ++unit) {
    Sequence<Wide> src(2 * length);
    src[unit] = 1;
    const int n = unit % length;
    for (int k = 0; k < bins.size(); ++k) {
      const long turns = static_cast<long>(n) * (2 * k + offset);
      const auto parts = static_cast<unsigned long>(2 * length);
      const Wide c = test::cosine(turns, parts), s = test::sine(turns, parts);
      const Wide re = unit < length ? c : s, im = unit < length ? -s : c;
      error = std::max(error, distance(part(network, bins[k].p, src), re));
      error = std::max(error, distance(part(network, bins[k].q, src), im));
    }
  }
  return error;
}

Points points(Network& network, int length, bool real) {
  Points x;
  for (int n = 0; n < length; ++n) x.push_back({network.load(n), real ? Value{} : network.load(length + n)});
  return x;
}

/// What trees of one network leave open.
Choices choices() {
  return {.root =
              [](int prime) {
                return Root{smallest_primitive_root(prime), 1};
              },
          .five = [](bool, int, bool) { return Five::six_products; }};
}

void expect_definition(const char* text, Rounding rounding) {
  for (const bool real : {true, false}) {
    Network network(1, rounding);
    const Tree tree = parse_tree(text);
    const int length = length_of(tree);
    const Points bins = Transform(rounding, choices()).run(tree, points(network, length, real));
    ASSERT_EQ(bins.size(), length) << text;
    EXPECT_LT(error_of(network, bins, length, 0, real), 1e-30) << text << (real ? ", real" : ", complex");
  }
}

TEST(Transform, IsTheDefinition) {
  for (const char* text : {"1",
                           "2",
                           "3",
                           "2,2",
                           "5",
                           "7",
                           "11",
                           "D(7)",
                           "D(7, 1, 3, 2, 0)",
                           "3 x 5",
                           "5 x 2 * 2",
                           "2 x 3 * 3",
                           "3 * 3",
                           "2 * 2",
                           "2 * 2 * 2",
                           "(2 * 2) * 2",
                           "3 * 2",
                           "5 * 5",
                           "PFA(3,2,5)",
                           "CT(2,2,2)",
                           "F(3, 3)",
                           "F(3 x 2, 3 * 2)",
                           "R(2, 3 x 2 * 2, 3 x 2, 3 * 2)",
                           "R(2, 3 x 2 * 2, 3 x 2)",
                           "R(3, (2 * 2) * (2 * 2), 2 * (2 * 2))"})
    expect_definition(text, Rounding::combination);
}

TEST(Transform, OfOperationsRoundedEachIsTheDefinition) {
  for (const char* text : {"2",
                           "3",
                           "2,2",
                           "5",
                           "7",
                           "D(9)",
                           "SR(4)",
                           "SR(8)",
                           "SR(16)",
                           "SR(32)",
                           "PFA(3,5)",
                           "PFA(2,5,3)",
                           "PFA*(4,3)",
                           "PFA*(SR(8),3)",
                           "CT(3,3)",
                           "CT(4,CT(2,3))",
                           "RS(PFA(2,3))",
                           "RS(PFA*(4,3))",
                           "RS(SR(16))",
                           "PFA(RS(PFA(2,3)),2)"})
    expect_definition(text, Rounding::each);
}

TEST(Transform, FiveHasFourForms) {
  for (const Five form : {Five::outer_first, Five::inner_first, Five::six_products, Five::five_products}) {
    Network network(1);
    const Points bins = dft5(points(network, 5, false), form);
    EXPECT_LT(error_of(network, bins, 5, 0, false), 1e-30) << static_cast<int>(form);
  }
}

TEST(Transform, SequencesOfValuesHaveNoOtherRules) {
  const auto run = [](const char* text) {
    Network network(1);
    const Tree tree = parse_tree(text);
    return test::error_of(
        [&] { Transform(Rounding::each, choices()).run(tree, points(network, length_of(tree), true)); });
  };
  EXPECT_EQ(run("B(PFA(4,3),PFA(4,3))"), "B(PFA(4,3),PFA(4,3)) cannot transform a sequence of values");
  EXPECT_EQ(run("R(PFA(2,3))"), "R(PFA(2,3)) cannot transform a sequence of values");
  EXPECT_EQ(run("R(3,PFA(2,3))"), "R(3,PFA(2,3)) cannot transform a sequence of values");
  EXPECT_EQ(run("6"), "no block of length 6");
}

TEST(SkewTransform, IsTheDefinition) {
  for (const char* text :
       {"2", "3", "7", "3 x 5", "3 * 3", "2 * 2", "2 * (2 * 2)", "2 * (2 * (2 * 2))", "3 * 2", "3 x 2",
        "2 x 3", "5 x 2 * 2", "2 x (5 x 3)", "3 * (3 x 2)", "(2 * 2) * 2"}) {
    const Tree tree = parse_tree(text);
    Network network(1, Rounding::combination);
    const int length = length_of(tree);
    const Points bins = Transform(Rounding::combination, choices()).skew(tree, points(network, length, true));
    ASSERT_EQ(bins.size(), length) << text;
    EXPECT_LT(error_of(network, bins, length, 1, true), 1e-30) << text;
  }
}

TEST(SkewTransform, NamesATreeThatHasNone) {
  Network network(1, Rounding::combination);
  EXPECT_EQ(test::error_of(
                [&] { Transform(Rounding::combination).skew(parse_tree("2,2"), points(network, 4, true)); }),
            "no skew transform 2,2");
}

}  // namespace
}  // namespace xfm::gen
