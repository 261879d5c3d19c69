// What a network shares, and that it shares nothing else.
#include "gen/network/network.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

using test::count;

class NetworkTest : public testing::Test {
 protected:
  int size() const { return network.nodes().size(); }

  Network network{1};
  const Value x = network.load(0), y = network.load(1), z = network.load(2);
  const Constant c = constant("c", Wide(3) / 4), d = constant("d", Wide(5) / 4);
};

TEST_F(NetworkTest, ASumIsOneNodeInBothOrders) {
  EXPECT_EQ(x + y, y + x);
  EXPECT_EQ(count(network, Op::add), 1);
}

TEST_F(NetworkTest, ADifferenceAndItsNegativeAreOneNode) {
  const Value first = x - y, reversed = y - x;
  EXPECT_EQ(first.node, reversed.node);
  EXPECT_NE(first.negative, reversed.negative);
  EXPECT_EQ(reversed, -first);
  EXPECT_EQ(count(network, Op::sub), 1);
}

TEST_F(NetworkTest, NegationsAreFree) {
  const Value sum = x + y, difference = x - y;
  EXPECT_EQ(-(-x), x);
  EXPECT_EQ(-x - y, -sum);
  EXPECT_EQ(-x + y, -difference);
  EXPECT_EQ(x - -y, sum);
  EXPECT_EQ(network.sub(x, y), difference);
  EXPECT_EQ(size(), 5);
}

TEST_F(NetworkTest, ProductsShareTheirSigns) {
  const Value product = network.mul(c, x);
  EXPECT_EQ(network.mul(-c, x), -product);
  EXPECT_EQ(network.mul(c, -x), -product);
  EXPECT_EQ(network.mul(-c, -x), product);
  EXPECT_EQ(count(network, Op::mul), 1);
}

TEST_F(NetworkTest, TrivialProductsAreNone) {
  const Constant one{"1", 1}, zero{"0", 0};
  EXPECT_EQ(network.mul(one, x), x);
  EXPECT_EQ(network.mul(-one, x), -x);
  EXPECT_TRUE(network.mul(zero, x).absent());
  EXPECT_EQ(size(), 3);
}

TEST_F(NetworkTest, EqualOperationsAreOneNode) {
  EXPECT_EQ(network.load(0), x);
  EXPECT_EQ(network.permute(x, x, {1, 0}), network.permute(x, x, {1, 0}));
  EXPECT_EQ(network.flip_signs(x, {1, 0, 0, 0}), network.flip_signs(x, {1, 0, 0, 0}));
  EXPECT_EQ(network.permute(x, y, {0, 1, 4, 5}), network.permute(x, y, {0, 1, 4, 5}));
  EXPECT_EQ(network.factor(x), network.factor(x));
  EXPECT_EQ(size(), 7);
}

TEST_F(NetworkTest, DifferentOperationsAreNot) {
  EXPECT_NE(network.flip_signs(x, {1, 0, 0, 0}).node, network.flip_signs(x, {0, 1, 0, 0}).node);
  EXPECT_NE(network.permute(x, y, {0, 1, 4, 5}).node, network.permute(y, x, {0, 1, 4, 5}).node);
  EXPECT_NE(network.permute(x, y, {0, 1, 4, 5}).node, network.permute(x, y, {1, 0, 4, 5}).node);
  EXPECT_NE(network.load(0).node, network.load({0, 1}).node);
  EXPECT_NE((x + y).node, (x - y).node);
}

TEST_F(NetworkTest, NothingIsReassociated) {
  EXPECT_NE((x + y) + z, x + (y + z));
  EXPECT_NE((x - y) - z, x - (y + z));
  EXPECT_NE(network.mul(c, network.mul(d, x)), network.mul(d, network.mul(c, x)));
}

TEST_F(NetworkTest, NothingIsSimplified) {
  EXPECT_EQ(network.node((x - x).node).op, Op::sub);
  EXPECT_EQ(network.node((x + x).node).op, Op::add);
  EXPECT_EQ(network.node(((x + y) - y).node).op, Op::sub);
  EXPECT_NE(network.mul(c, x + y), network.mul(c, x) + network.mul(c, y));
}

TEST_F(NetworkTest, NothingMergesByValue) {
  const Constant same = constant("same as c", c.value);
  EXPECT_NE(network.mul(c, x).node, network.mul(same, x).node);
  EXPECT_NE(network.mul(c, x).node, network.mul(Sequence<Constant>{c, c, c, c}, x).node);
}

TEST_F(NetworkTest, LaneConstantsKeepTheirTrivialLanes) {
  const Constant one{"1", 1}, zero{"0", 0};
  const Value v = network.mul(Sequence<Constant>{one, zero, -one, c}, x);
  ASSERT_EQ(network.node(v.node).op, Op::mul);
  EXPECT_EQ(network.node(v.node).constants, (Sequence<Constant>{one, zero, -one, c}));
}

TEST_F(NetworkTest, AbsentValuesCostNothing) {
  const Value none;
  EXPECT_TRUE(none.absent());
  EXPECT_EQ(x + none, x);
  EXPECT_EQ(none + x, x);
  EXPECT_EQ(x - none, x);
  EXPECT_EQ(none - x, -x);
  EXPECT_TRUE((none + none).absent());
  EXPECT_TRUE((none - none).absent());
  EXPECT_TRUE((-none).absent());
  EXPECT_TRUE(network.mul(c, none).absent());
  EXPECT_EQ(size(), 3);
}

TEST_F(NetworkTest, SumsGoFromLeftToRight) {
  const Products products = {{Constant{"1", 1}, x}, {-c, y}, {d, z}};
  EXPECT_EQ(network.sum(products), (x - network.mul(c, y)) + network.mul(d, z));
}

TEST_F(NetworkTest, OutputsArePlain) {
  const Value sum = x + y;
  network.store(sum, 0);
  EXPECT_EQ(network.stores().size(), 1);
  EXPECT_THROW(network.store(-sum, 1), std::logic_error);
  EXPECT_THROW(network.store(Value{}, 1), std::logic_error);
  EXPECT_EQ(network.stores().size(), 1);
}

TEST_F(NetworkTest, OperationsOnLanesKeepTheSign) {
  EXPECT_EQ(network.permute(-x, -x, {1, 0}), -network.permute(x, x, {1, 0}));
  EXPECT_EQ(network.flip_signs(-x, {1, 0, 0, 0}), -network.flip_signs(x, {1, 0, 0, 0}));
  EXPECT_EQ(network.permute(-x, -y, {0, 1, 4, 5}), -network.permute(x, y, {0, 1, 4, 5}));
  EXPECT_EQ(network.factor(-x), -network.factor(x));
  EXPECT_THROW(network.permute(x, -y, {0, 1, 4, 5}), std::logic_error);
}

// A linear combination rounds once: it is one node, and shares no product with another.
TEST(LinearCombinations, ShareNothing) {
  Network network(1, Rounding::combination);
  const Value x = network.load(0), y = network.load(1);
  const Constant one{"1", 1}, zero{"0", 0}, c = constant("c", 3);
  const Value plus = network.sum(Products{{one, x}, {c, y}});
  const Value minus = network.sum(Products{{one, x}, {-c, y}});
  EXPECT_EQ(count(network, Op::combination), 2);
  EXPECT_EQ(count(network, Op::mul), 0);
  EXPECT_NE(plus.node, minus.node);
  EXPECT_EQ(network.sum(Products{{one, x}, {c, -y}}), minus) << "signs go into the terms";
  EXPECT_EQ(network.sum(Products{{one, x}, {zero, x}, {c, y}, {c, Value{}}}), plus);
  EXPECT_TRUE(network.sum(Products{{zero, x}}).absent());
}

}  // namespace
}  // namespace xfm::gen
