// Scalar programs: what is the same computation, and what is not.
#include "gen/network/program.h"

#include <gtest/gtest.h>

#include <functional>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

using test::integer;
using Formula = std::function<Value(Network&)>;

const auto x = [](Network& n) { return n.load(0); };
const auto y = [](Network& n) { return n.load(1); };

/// A negation that is computed, since a network stores no negative value.
Value negated(Value v) { return v.network->flip_signs(v, {1}); }

/// The program of a scalar network with one output.
Program program(Programs& programs, const Formula& formula, Precision precision = Precision::binary64,
                Rounding rounding = Rounding::each) {
  Network network(1, rounding);
  network.store(formula(network), 0);
  return programs.read(network, precision);
}

bool equal(const Formula& one, const Formula& other, Equality equality,
           Precision precision = Precision::binary64, Rounding rounding = Rounding::each) {
  Programs programs(equality);
  return program(programs, one, precision, rounding) == program(programs, other, precision, rounding);
}

void expect_same_bits(const Formula& one, const Formula& other) {
  EXPECT_TRUE(equal(one, other, Equality::bits));
  EXPECT_TRUE(equal(one, other, Equality::values));
}
/// Zeros may have other signs.
void expect_same_values(const Formula& one, const Formula& other) {
  EXPECT_FALSE(equal(one, other, Equality::bits));
  EXPECT_TRUE(equal(one, other, Equality::values));
}
void expect_different(const Formula& one, const Formula& other) {
  EXPECT_FALSE(equal(one, other, Equality::bits));
  EXPECT_FALSE(equal(one, other, Equality::values));
}

TEST(Program, AdditionCommutes) {
  expect_same_bits([](Network& n) { return x(n) + y(n); },
                   [](Network& n) {
                     const Value b = y(n);
                     return b + x(n);
                   });
}

TEST(Program, OperandsOfADifferenceDoNotChangePlaces) {
  expect_different([](Network& n) { return x(n) - y(n); }, [](Network& n) { return y(n) - x(n); });
  expect_different([](Network& n) { return x(n) - y(n); }, [](Network& n) { return x(n) + y(n); });
}

// Where x = y the difference is +0 and its negative is -0.
TEST(Program, ADifferenceAndItsNegativeDifferInTheSignOfZero) {
  const Formula reversed = [](Network& n) { return y(n) - x(n); };
  expect_same_values([](Network& n) { return negated(x(n) - y(n)); }, reversed);
  expect_same_values([](Network& n) { return negated(x(n) + y(n)); },
                     [](Network& n) { return negated(x(n)) - y(n); });
  expect_same_values([](Network& n) { return n.minus(x(n)); }, [](Network& n) { return negated(x(n)); });
}

TEST(Program, SignsGoThroughProducts) {
  const Constant c = integer(3);
  const Formula expected = [&](Network& n) { return negated(n.mul(c, x(n))); };
  expect_same_bits([&](Network& n) { return n.mul(c, negated(x(n))); }, expected);
  expect_same_bits([&](Network& n) { return n.mul(Sequence<Constant>{-c}, x(n)); }, expected);
  expect_same_bits([&](Network& n) { return negated(n.factor(x(n))); },
                   [&](Network& n) { return n.factor(negated(x(n))); });
}

TEST(Program, AProductByOneIsItsOperand) {
  expect_same_bits([](Network& n) { return n.mul(Sequence<Constant>{integer(1)}, x(n)); }, x);
  expect_same_bits([](Network& n) { return n.mul(Sequence<Constant>{integer(-1)}, x(n)); },
                   [](Network& n) { return negated(x(n)); });
}

// 0 * x is NaN where x is infinite, and -0 where x is negative.
TEST(Program, AProductByZeroIsZeroForFiniteValues) {
  const auto nothing = [](Network& n) { return n.mul(Sequence<Constant>{integer(0)}, y(n)); };
  expect_same_values([&](Network& n) { return x(n) + nothing(n); }, x);
  expect_same_values([&](Network& n) { return x(n) - nothing(n); }, x);
  expect_same_values([&](Network& n) { return n.mul(integer(3), nothing(n)); }, nothing);
}

TEST(Program, NothingIsReassociated) {
  const auto z = [](Network& n) { return n.load(2); };
  expect_different([&](Network& n) { return (x(n) + y(n)) + z(n); },
                   [&](Network& n) { return x(n) + (y(n) + z(n)); });
  expect_different([](Network& n) { return n.mul(integer(3), n.mul(integer(5), x(n))); },
                   [](Network& n) { return n.mul(integer(15), x(n)); });
  expect_different([](Network& n) { return n.twice(x(n)); },
                   [](Network& n) { return n.mul(integer(2), x(n)); });
  expect_same_bits([](Network& n) { return n.twice(x(n)); }, [](Network& n) { return x(n) + x(n); });
}

TEST(Program, ConstantsAreEqualIfTheyRoundAlike) {
  const Constant c = constant("c", 3), same = constant("as c", 3),
                 near = constant("near", Wide(3) + Wide(0x1p-30));
  const auto times = [](const Constant& by) { return [&](Network& n) { return n.mul(by, x(n)); }; };
  expect_same_bits(times(c), times(same));
  EXPECT_FALSE(equal(times(c), times(near), Equality::bits, Precision::binary64));
  EXPECT_TRUE(equal(times(c), times(near), Equality::bits, Precision::binary32));
}

TEST(Program, PrecisionsAreNotEqual) {
  const Formula sum = [](Network& n) { return x(n) + y(n); };
  Programs programs(Equality::bits);
  EXPECT_NE(program(programs, sum, Precision::binary32), program(programs, sum, Precision::binary64));
}

// A linear combination rounds each of its operations in binary64, and then its sum to the kernel's precision.
TEST(Program, LinearCombinationsAreSeparateOperationsInBinary64) {
  const Constant c = constant("c", Wide(1) / 3);
  const Formula combination = [&](Network& n) { return n.sum(Products{{integer(1), x(n)}, {-c, y(n)}}); };
  for (const Precision precision : {Precision::binary32, Precision::binary64}) {
    Programs programs(Equality::bits);
    const Program once = program(programs, combination, precision, Rounding::combination);
    const Program each = program(programs, combination, precision, Rounding::each);
    EXPECT_EQ(once == each, precision == Precision::binary64);
  }
}

TEST(Program, FinishesOfLinearCombinations) {
  const auto combination = [](Finish finish) {
    return [=](Network& n) { return n.sum(Products{{integer(3), x(n)}, {integer(5), y(n)}}, finish); };
  };
  const Formula plain = combination(Finish::none);
  const auto same = [](const Formula& one, const Formula& other, Precision precision) {
    return equal(one, other, Equality::bits, precision, Rounding::combination);
  };
  const Formula scaled = [&](Network& n) { return n.factor(plain(n)); };
  const Formula negated_after = [&](Network& n) { return n.minus(n.factor(plain(n))); };
  EXPECT_TRUE(same(combination(Finish::scaled), scaled, Precision::binary64));
  EXPECT_FALSE(same(combination(Finish::scaled), scaled, Precision::binary32)) << "rounded once, not twice";
  EXPECT_TRUE(same(combination(Finish::negated), negated_after, Precision::binary64));
  EXPECT_TRUE(same(combination(Finish::unrounded), plain, Precision::binary64));
  EXPECT_FALSE(same(combination(Finish::unrounded), plain, Precision::binary32));
}

/// Two complex numbers times i, added and multiplied lane by lane.
void four_lanes(Network& network) {
  const Value a = network.load({0, 1, 2, 3}), b = network.load({4, 5, 6, 7});
  const Value turned = network.flip_signs(network.permute(b, b, {1, 0, 3, 2}), {1, 0, 1, 0});
  const Value product = network.mul(Sequence<Constant>{integer(1), integer(3), integer(5), integer(7)}, a);
  network.store(network.factor(product + turned), {0, 1, 2, 3});
}

TEST(Program, LanesVanish) {
  Network packed(4), scalar(1);
  four_lanes(packed);
  const auto input = [&](int n) { return scalar.load(n); };
  test::store(scalar, input(0) - input(5), 0);
  test::store(scalar, scalar.mul(integer(3), input(1)) + input(4), 1);
  test::store(scalar, scalar.mul(integer(5), input(2)) - input(7), 2);
  test::store(scalar, input(6) + scalar.mul(integer(7), input(3)), 3);
  Programs programs(Equality::bits);
  const Program one = programs.read(packed, Precision::binary32);
  EXPECT_EQ(one, programs.read(scalar, Precision::binary32));
  EXPECT_EQ(one.size(), 4);
}

TEST(Program, IdleLanesOfALoadAreZeros) {
  Network network(4);
  network.store(network.load({0, 1, -1, -1}), {0, 1, 2, 3});
  Programs programs(Equality::bits);
  EXPECT_EQ(programs.text(programs.read(network, Precision::binary32)), "y0 = x0\ny1 = x1\ny2 = 0\ny3 = 0\n");
}

TEST(Program, InputsAndOutputsAreNumbered) {
  Network natural(1), exchanged(1);
  test::store(natural, natural.load(0) - natural.load(1), 0);
  test::store(natural, natural.load(0), 1);
  natural.store_zero(2);
  test::store(exchanged, exchanged.load(1), 0);
  test::store(exchanged, exchanged.load(1) - exchanged.load(0), 2);
  Programs programs(Equality::bits);
  const Program expected = programs.read(natural, Precision::binary64);
  EXPECT_NE(programs.read(exchanged, Precision::binary64), expected);
  EXPECT_EQ(programs.read(exchanged, Precision::binary64, {.inputs = {1, 0}, .outputs = {1, 2, 0}}), expected)
      << "and zeros are no outputs";
}

TEST(Program, TheDigestDependsOnTheProgramAlone) {
  Network packed(4), other(1);
  four_lanes(packed);
  test::store(other, other.load(1) - other.load(0), 0);
  Programs fresh(Equality::bits), used(Equality::bits);
  const std::uint64_t digest = fresh.digest(fresh.read(packed, Precision::binary32));
  const std::uint64_t digest_of_other = used.digest(used.read(other, Precision::binary32));
  EXPECT_EQ(used.digest(used.read(packed, Precision::binary32)), digest) << "what was read before counts";
  EXPECT_NE(digest_of_other, digest);
  EXPECT_NE(used.digest(used.read(packed, Precision::binary64)), digest);

  const auto of = [](const Formula& formula) {
    Programs programs(Equality::bits);
    return programs.digest(program(programs, formula));
  };
  const Formula sum = [](Network& n) { return x(n) + n.mul(integer(3), y(n)); };
  const Formula in_another_order = [](Network& n) {
    const Value product = n.mul(integer(3), y(n));
    return product + x(n);
  };
  EXPECT_EQ(of(in_another_order), of(sum));
  EXPECT_NE(of([&](Network& n) { return negated(sum(n)); }), of(sum));
  EXPECT_NE(of([](Network& n) { return x(n) - n.mul(integer(3), y(n)); }), of(sum));
  EXPECT_NE(of([](Network& n) { return y(n) + n.mul(integer(3), x(n)); }), of(sum));
}

TEST(CheckSame, NamesTheFirstOutputThatDiffers) {
  Network one(1), other(1);
  for (Network* const network : {&one, &other}) {
    test::store(*network, x(*network) + y(*network), 0);
    test::store(*network, network == &one ? x(*network) - y(*network) : y(*network) - x(*network), 1);
    test::store(*network, network == &one ? x(*network) : y(*network), 2);
  }
  Programs programs(Equality::values);
  const Program a = programs.read(one, Precision::binary64), b = programs.read(other, Precision::binary64);
  EXPECT_EQ(test::error_of([&] { check_same(a, "one", a, "itself"); }), "no error");
  EXPECT_EQ(test::error_of([&] { check_same(a, "one", b, "other"); }),
            "one: output 1 is not computed as in other");
  test::store(other, x(other), 3);
  const Program longer = programs.read(other, Precision::binary64);
  EXPECT_EQ(test::error_of([&] { check_same(a, "one", longer, "longer"); }),
            "one: the number of outputs is not that of longer");
}

TEST(Program, Text) {
  Network network(1, Rounding::combination);
  const Value difference = x(network) - y(network);
  const Value once = network.sum(Products{{constant("1.5", 1.5), difference}}, Finish::scaled);
  test::store(network, difference, 0);
  network.store(once, 1);
  network.store_zero(2);
  network.store(network.minus(once), 3);
  Programs programs(Equality::bits);
  EXPECT_EQ(programs.text(programs.read(network, Precision::binary32)),
            "t0 = x0 - x1\n"
            "t1 = s * t0\n"
            "y0 = t1\n"
            "t2 = 0x1.8p+0 * t0  (binary64)\n"
            "t3 = s * t2  (binary64)\n"
            "t4 = round t3\n"
            "y1 = t4\n"
            "t5 = 0 - t4\n"
            "y3 = t5\n");
}

}  // namespace
}  // namespace xfm::gen
