// Pairs p + i*q whose halves may be absent.
#include "gen/network/complex.h"

#include <gtest/gtest.h>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

using test::count;

class ComplexTest : public testing::Test {
 protected:
  Network network{1};
  const Complex z{network.load(0), network.load(1)}, real{network.load(2), {}};
};

bool same(const Complex& a, const Complex& b) { return a.p == b.p && a.q == b.q; }

TEST_F(ComplexTest, TurnsAreFree) {
  EXPECT_TRUE(same(times_i(z), {-z.q, z.p}));
  EXPECT_TRUE(same(times_i(times_i(z)), -z));
  EXPECT_TRUE(same(conjugate(z), {z.p, -z.q}));
  EXPECT_TRUE(same(exchanged(z), {z.q, z.p}));
  EXPECT_TRUE(real.is_real());
  EXPECT_FALSE(times_i(real).is_real());
  for (int quarter = 0; quarter < 4; ++quarter) {
    Complex expected = z;
    for (int i = 0; i < quarter; ++i) expected = -times_i(expected);
    EXPECT_TRUE(same(root_of_unity(turn(quarter, 4)) * z, expected)) << quarter << " quarters";
  }
  EXPECT_EQ(network.nodes().size(), 3);
}

TEST_F(ComplexTest, AbsentHalvesCostNothing) {
  const Complex sum = z + real;
  EXPECT_EQ(sum.q, z.q);
  EXPECT_EQ(count(network, Op::add), 1);
  const Complex product = root_of_unity(turn(1, 5)) * real;
  EXPECT_FALSE(product.q.absent());
  EXPECT_EQ(count(network, Op::mul), 2);
  EXPECT_EQ(count(network, Op::add), 1);
}

// |cos| = |sin| at an eighth: two products are enough.
TEST_F(ComplexTest, EighthsShareProducts) {
  const Complex product = root_of_unity(turn(1, 8)) * z;
  EXPECT_EQ(count(network, Op::mul), 2);
  EXPECT_NE(product.p.node, product.q.node);
}

TEST_F(ComplexTest, Product) {
  const ComplexConstant w{constant("three", 3), constant("minus five", -5)};
  const Complex product = w * z;
  const Sequence<double> src = {2, 7, 0};
  EXPECT_EQ(test::lanes_of(network, product.p, src)[0], 3 * 2 + 5 * 7);
  EXPECT_EQ(test::lanes_of(network, product.q, src)[0], 3 * 7 - 5 * 2);
}

TEST_F(ComplexTest, SumsGoFromLeftToRight) {
  const Constant c = constant("c", 3);
  const Complex expected = (z - Complex(c * real)) + Complex(c * z);
  EXPECT_TRUE(same(sum({z, -(c * real), c * z}), expected));
}

}  // namespace
}  // namespace xfm::gen
