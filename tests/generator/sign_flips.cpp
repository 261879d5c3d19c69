// Sign flips that constants can absorb disappear, and no bit changes.
#include "gen/passes/passes.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

class Flips : public testing::Test {
 protected:
  Value exchanged(Value v) { return network.permute(v, v, {1, 0, 7, 6}); }
  Value flipped(Value v) { return network.flip_signs(v, {1, 0, 1, 0}); }

  /// The number of flips left. The outputs must be those of the network, bit for bit.
  int left(int written) const {
    const auto result = absorb_sign_flips(network);
    const Sequence<float> src = {0.1F, -0.7F, 1.3F, 0, 2.9F, -3.1F, -0.0F, 5.7F};
    const auto before = test::evaluate<float>(network, src, written),
               after = test::evaluate<float>(*result, src, written);
    for (int i = 0; i < written; ++i) {
      EXPECT_EQ(before[i], after[i]) << "scalar " << i;
      EXPECT_EQ(std::signbit(before[i]), std::signbit(after[i])) << "scalar " << i;
    }
    return test::count(*result, Op::sign_flip);
  }

  Network network{4};
  const Value x = network.load({0, 1, 2, 3}), y = network.load({4, 5, 6, 7});
  const Constant c = cosine(turn(1, 7)), d = cosine(turn(2, 7));
};

TEST_F(Flips, OfAProduct) {
  const Value u = flipped(network.mul(c, x));
  test::store(network, y + u, 0);
  test::store(network, y - u, 4);
  EXPECT_EQ(left(8), 0);
}

TEST_F(Flips, BehindAnExchange) {
  test::store(network, y + flipped(exchanged(network.mul(c, x))), 0);
  EXPECT_EQ(left(4), 0);
}

TEST_F(Flips, OfASumOfProducts) {
  test::store(network, y + flipped(exchanged(network.mul(c, x) - network.mul(d, y))), 0);
  EXPECT_EQ(left(4), 0);
}

TEST_F(Flips, OfLaneConstants) {
  const Sequence<Constant> lanes{c, -d, d, -c};
  test::store(network, y + flipped(exchanged(network.mul(lanes, x))), 0);
  EXPECT_EQ(left(4), 0);
}

TEST_F(Flips, StayWhereThereIsNoProduct) {
  test::store(network, y + flipped(exchanged(network.mul(c, x) - y)), 0);
  EXPECT_EQ(left(4), 1);
}

TEST_F(Flips, StayWhereTheProductIsUsedBesides) {
  const Value product = network.mul(c, x);
  test::store(network, y + flipped(product), 0);
  test::store(network, y + product, 4);
  EXPECT_EQ(left(8), 1);
}

TEST_F(Flips, StayWhereALaneGoesToTwoSigns) {
  const Value product = network.mul(c, x), spread = network.permute(product, product, {0, 0, 4, 4});
  test::store(network, y + flipped(spread), 0);
  EXPECT_EQ(left(4), 1);
}

TEST_F(Flips, ZerosStayZeros) {
  test::store(network, y + flipped(network.mul(c, x)), 0);
  network.store_zero(4);
  const auto result = absorb_sign_flips(network);
  ASSERT_EQ(result->stores().size(), 2);
  EXPECT_LT(result->stores()[1].node, 0);
  EXPECT_EQ(result->stores()[1].lanes, PerLane{4});
  EXPECT_EQ(left(5), 0);
}

}  // namespace
}  // namespace xfm::gen
