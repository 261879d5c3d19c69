// The interpreter rounds as a processor does in the kernel's precision.
#include "gen/network/interpreter.h"

#include <gtest/gtest.h>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

template <class T>
Sequence<T> run(const Network& network, const Sequence<T>& src, int written) {
  return test::evaluate<T>(network, src, written);
}

TEST(Evaluate, OneRoundingAnOperation) {
  Network network(1);
  const Value x = network.load(0), y = network.load(1);
  const Constant third = constant("1/3", Wide(1) / 3);
  test::store(network, network.mul(third, x) + y, 0);
  test::store(network, x - y, 1);
  const float x32 = 1.7F, y32 = 0x1.000002p-13F, third32 = 1.0F / 3.0F;
  const double x64 = 1.7, y64 = 0x1.0000000000001p-30, third64 = 1.0 / 3.0;
  const float product32 = third32 * x32;
  const double product64 = third64 * x64;
  EXPECT_EQ(run<float>(network, {x32, y32}, 2), (Sequence<float>{product32 + y32, x32 - y32}));
  EXPECT_EQ(run<double>(network, {x64, y64}, 2), (Sequence<double>{product64 + y64, x64 - y64}));
  EXPECT_TRUE(run<Wide>(network, {1, 0}, 2)[0] == Wide(1) / 3);
}

// In binary32, summed term by term, these products give 0; in binary64 a remainder of the first one is left.
TEST(Evaluate, LinearCombinationsRoundOnce) {
  const float x = 1 + 0x1p-12F;
  const Constant c = constant("c", Wide(x)), one{"1", 1};
  const float square = x * x, rest = static_cast<float>(double{x} * double{x} - double{square});
  ASSERT_NE(rest, 0.0F);
  for (const auto& [rounding, expected] :
       {std::pair{Rounding::each, 0.0F}, std::pair{Rounding::combination, rest}}) {
    Network network(1, rounding);
    const Value a = network.load(0), b = network.load(1);
    test::store(network, network.sum(Products{{c, a}, {-one, b}}), 0);
    EXPECT_EQ(run<float>(network, {x, square}, 1)[0], expected);
  }
}

TEST(Evaluate, Lanes) {
  Network network(4);
  const Value a = network.load({0, 1, 2, 3}), b = network.load({4, 5, -1, -1});
  test::store(network, network.permute(a, b, {3, 0, 5, 4}), 0);
  test::store(network, network.flip_signs(a, {1, 0, 1, 0}), 4);
  test::store(network, b, 8);
  const Constant two = constant("two", 2), zero{"0", 0}, one{"1", 1};
  test::store(network, network.mul(Sequence<Constant>{two, zero, -one, one}, a), 12);
  EXPECT_EQ(run<float>(network, {1, 2, 3, 4, 5, 6}, 16),
            (Sequence<float>{4, 1, 6, 5, -1, 2, -3, 4, 5, 6, 0, 0, 2, 0, -3, 4}));
}

TEST(Evaluate, Pairs) {
  Network network(2);
  const Value a = network.load({0, 1});
  test::store(network, network.flip_signs(test::with_parts_exchanged(a), {1, 0}), 0);
  EXPECT_EQ(run<double>(network, {3, 4}, 2), (Sequence<double>{-4, 3})) << "i times 3 + 4i";
}

TEST(Evaluate, FactorComesLast) {
  Network network(1);
  network.store(network.factor(network.load(0) + network.load(1)), 1);
  const float src[] = {0.1F, 0.2F};
  float dst[] = {7, 7};
  evaluate(network, src, dst, 0.3F);
  EXPECT_EQ(dst[0], 7) << "no store writes this scalar";
  EXPECT_EQ(dst[1], 0.3F * (0.1F + 0.2F));
}

}  // namespace
}  // namespace xfm::gen
