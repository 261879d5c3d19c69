// Constants are the nearest ones, and each has one name.
#include "gen/math/constant.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "tests/bits/nearest.h"

namespace xfm::gen {
namespace {

/// Calls check(a, b) for all fractions of the circle with these denominators. Those above 64 come from Rader
/// spectra, chirps and long transforms.
template <class Check>
void for_each_turn(Check check) {
  for (long b = 1; b <= 64; ++b) {
    for (long a = 0; a < b; ++a) check(a, b);
  }
  for (const long b : {96L, 128L, 59L * 128, 60L * 61, 8192L}) {
    for (long a = 0; a < b; a += 1 + b / 97) check(a, b);
  }
}

TEST(Constant, CosineAndSineAreNearestInBothPrecisions) {
  for_each_turn([](long a, long b) {
    const Constant c = cosine(turn(a, b)), s = sine(turn(a, b));
    ASSERT_EQ(static_cast<double>(c.value), test::cosine<double>(a, b)) << "cos " << a << "/" << b;
    ASSERT_EQ(static_cast<double>(s.value), test::sine<double>(a, b)) << "sin " << a << "/" << b;
    ASSERT_EQ(static_cast<float>(c.value), test::cosine<float>(a, b)) << "cos " << a << "/" << b;
    ASSERT_EQ(static_cast<float>(s.value), test::sine<float>(a, b)) << "sin " << a << "/" << b;
  });
}

// Far beyond binary64, so that sums and products of constants can still be rounded once.
TEST(Constant, AnglesAddInBinary128) {
  for_each_turn([](long a, long b) {
    const ComplexConstant w = root_of_unity(turn(a, b)), v = root_of_unity(turn(1, b)),
                          next = root_of_unity(turn(a + 1, b));
    const Wide re = w.re.value * v.re.value - w.im.value * v.im.value - next.re.value;
    const Wide im = w.re.value * v.im.value + w.im.value * v.re.value - next.im.value;
    ASSERT_LT(static_cast<double>(wide_abs(re) + wide_abs(im)), 1e-32) << a << "/" << b;
  });
}

TEST(Constant, OctantsShareNames) {
  for_each_turn([](long a, long b) {
    const Constant c = cosine(turn(a, b)), s = sine(turn(a, b));
    ASSERT_EQ(cosine(turn(-a, b)), c);
    ASSERT_EQ(sine(turn(-a, b)), -s);
    ASSERT_EQ(cosine(turn(b - 2 * a, 2 * b)), -c);
    ASSERT_EQ(sine(turn(b - 2 * a, 2 * b)), s);
    ASSERT_EQ(sine(turn(b - 4 * a, 4 * b)), c);
    ASSERT_EQ(cosine(turn(b - 4 * a, 4 * b)), s);
    ASSERT_EQ(cosine(turn(3 * a, 3 * b)), c) << "a fraction that is not reduced";
    ASSERT_EQ(cosine(turn(a + 5 * b, b)), c) << "more than a circle";
  });
}

TEST(Constant, OneNameIsOneValue) {
  std::map<std::string, Wide> values;
  std::map<double, std::string> names;
  for_each_turn([&](long a, long b) {
    for (const Constant& c : {cosine(turn(a, b)), sine(turn(a, b))}) {
      ASSERT_TRUE(values.emplace(c.name, c.value).first->second == c.value) << c.name;
      const auto& known = names.emplace(static_cast<double>(c.value), c.name).first->second;
      ASSERT_EQ(known, c.name) << "one value has two names";
    }
  });
}

TEST(Constant, ExactValues) {
  EXPECT_TRUE(cosine(turn(0, 1)).is_one());
  EXPECT_TRUE(sine(turn(1, 4)).is_one());
  EXPECT_TRUE(cosine(turn(1, 4)).is_zero());
  EXPECT_TRUE(sine(turn(1, 2)).is_zero());
  EXPECT_TRUE(cosine(turn(1, 2)).value == -1);
  EXPECT_TRUE(sine(turn(1, 12)).value == Wide(0.5));
  EXPECT_TRUE(cosine(turn(1, 6)).value == Wide(0.5));
  EXPECT_TRUE(cosine(turn(1, 3)).value == Wide(-0.5));
  EXPECT_EQ(cosine(turn(1, 6)), sine(turn(5, 12)));
  EXPECT_EQ(cosine(turn(1, 8)), sine(turn(1, 8)));
  EXPECT_TRUE(cosine(turn(1, 8)).value == wide_sqrt(Wide(0.5)));
}

TEST(Constant, Signs) {
  const Constant c = cosine(turn(1, 5)), zero = cosine(turn(1, 4));
  EXPECT_EQ(-(-c), c);
  EXPECT_TRUE((-c).value == -c.value);
  EXPECT_NE(-c, c);
  EXPECT_EQ(magnitude(-c), c);
  EXPECT_EQ(magnitude(c), c);
  EXPECT_EQ(-zero, zero);
  EXPECT_EQ(constant("eleven", 11).name, "eleven");
}

TEST(Constant, ProductsHaveOneNameInAnyOrder) {
  const Constant a = cosine(turn(1, 5)), b = sine(turn(1, 7)), c = constant("1/12", Wide(1) / 12);
  const Constant product = a * (b * c);
  for (const Constant& other : {(a * b) * c, c * (a * b), (c * b) * a, (b * a) * c, b * (c * a)}) {
    EXPECT_EQ(other, product);
    EXPECT_LT(static_cast<double>(wide_abs(other.value - product.value)), 1e-33);
  }
  EXPECT_EQ(-a * b, -(a * b));
  EXPECT_EQ(-a * -b, a * b);
  EXPECT_NE(a * a, a);
  EXPECT_EQ(a * (a * b), (b * a) * a);
  EXPECT_EQ(a * cosine(turn(0, 1)), a);
  EXPECT_TRUE((a * cosine(turn(1, 4))).is_zero());
}

TEST(Constant, RootOfUnityIsForward) {
  const ComplexConstant w = root_of_unity(turn(1, 4));
  EXPECT_TRUE(w.re.is_zero());
  EXPECT_TRUE(w.im.value == -1);
  EXPECT_TRUE(root_of_unity(turn(0, 7)).is_one());
  EXPECT_FALSE(root_of_unity(turn(1, 7)).is_one());
}

TEST(Constant, TurnsAreReduced) {
  const Turn t = turn(-6, 32);
  EXPECT_EQ(t.num, 13);
  EXPECT_EQ(t.den, 16);
  EXPECT_EQ(turn(64, 64).num, 0);
}

TEST(Constant, WideSquareRoot) {
  EXPECT_TRUE(wide_sqrt(0) == 0);
  for (int n = 1; n <= 64; ++n) {
    const Wide root = wide_sqrt(n);
    EXPECT_LT(static_cast<double>(wide_abs(root * root - n)), n * 1e-33) << n;
    EXPECT_EQ(static_cast<double>(root), std::sqrt(static_cast<double>(n))) << n;
    EXPECT_TRUE(wide_sqrt(Wide(n) * n) == n) << n;
  }
}

}  // namespace
}  // namespace xfm::gen
