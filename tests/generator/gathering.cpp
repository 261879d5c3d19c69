// Gathering elements into lanes: its cost, and that every element arrives.
#include "gen/packing/lanes.h"

#include <gtest/gtest.h>

#include <complex>
#include <random>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

using test::count;
using test::integers;
using Number = std::complex<double>;
using Numbers = Sequence<Number>;

/// The n-th number that the registers hold.
Number number(int n) { return {1.0 + n, 1000.0 - 3 * n}; }

/// The lanes of the value.
Numbers values(const Complex& z) {
  Sequence<double> src(200);
  for (int n = 0; n < 100; ++n) {
    src[n] = number(n).real();
    src[100 + n] = number(n).imag();
  }
  const auto re = test::lanes_of(*z.p.network, z.p, src), im = test::lanes_of(*z.q.network, z.q, src);
  Numbers result;
  for (int l = 0; l < re.size(); ++l) result.emplace_back(re[l], im[l]);
  return result;
}

/// Planar registers: node j holds the numbers 4j to 4j + 3; number n is the scalars n and 100 + n of src.
class Gathering : public testing::Test {
 protected:
  /// The elements held by the lanes of `nodes` registers.
  Sequence<Elements> spread(int nodes) {
    Sequence<Elements> elements;
    for (int j = 0; j < nodes; ++j) {
      const int n = 4 * j, im = 100 + n;
      const Complex z{network.load({n, n + 1, n + 2, n + 3}), network.load({im, im + 1, im + 2, im + 3})};
      elements.push_back(lanes.scatter(z, 4, Form::planar));
    }
    return elements;
  }

  Network network{4};
  Lanes lanes{network, baseline()};
};

TEST_F(Gathering, ATransposition) {
  const Sequence<Elements> columns = spread(4);
  Points rows;
  for (int l = 0; l < 4; ++l)
    rows.push_back(lanes.gather({columns[0][l], columns[1][l], columns[2][l], columns[3][l]}, Form::planar));
  EXPECT_EQ(count(network, Op::permute), 2 * 8) << "eight for the real parts, eight for the imaginary parts";
  EXPECT_EQ(count(network, Op::mul) + count(network, Op::sign_flip), 0);
  for (int l = 0; l < 4; ++l) {
    EXPECT_EQ(values(rows[l]), (Numbers{number(l), number(4 + l), number(8 + l), number(12 + l)}));
  }
}

TEST_F(Gathering, WhatIsInPlaceCostsNothing) {
  const Sequence<Elements> registers = spread(1);
  const Complex z = lanes.gather(registers[0], Form::planar);
  EXPECT_EQ(z.p.node, registers[0][0].re.value.node);
  EXPECT_EQ(z.q.node, registers[0][0].im.value.node);
  EXPECT_EQ(count(network, Op::permute), 0);
}

TEST_F(Gathering, QuarterTurnsAreNoProducts) {
  const Sequence<Elements> registers = spread(1);
  Elements turned;
  const ComplexConstant quarters[] = {integers(1, 0), integers(0, -1), integers(-1, 0), integers(0, 1)};
  for (int l = 0; l < 4; ++l) turned.push_back(weighted(registers[0][l], quarters[l]));
  const Complex z = lanes.gather(turned, Form::planar);
  EXPECT_EQ(count(network, Op::mul), 0);
  EXPECT_EQ(count(network, Op::add) + count(network, Op::sub), 0);
  const Number i(0, 1);
  EXPECT_EQ(values(z), (Numbers{number(0), -i * number(1), -number(2), i * number(3)}));
}

TEST_F(Gathering, OneQuarterTurnForAllIsFree) {
  const Sequence<Elements> registers = spread(1);
  Elements turned;
  for (const Element& e : registers[0]) turned.push_back(weighted(e, integers(0, -1)));
  const Complex z = lanes.gather(turned, Form::planar);
  EXPECT_EQ(network.nodes().size(), 2) << "the two loads";
  EXPECT_EQ(z.p, (Value{&network, registers[0][0].im.value.node, false}));
  EXPECT_EQ(z.q, -(Value{&network, registers[0][0].re.value.node, false}));
}

// Random places, repetitions, signs and weights. All numbers are integers, so everything is exact.
TEST_F(Gathering, AnyElementsArrive) {
  std::mt19937 random(1);
  const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  for (int round = 0; round < 300; ++round) {
    Network fresh(4);
    Lanes packing(fresh, baseline());
    Elements all, chosen;
    for (int j = 0; j < 3; ++j) {
      const int n = 4 * j, im = 100 + n;
      const Complex z{fresh.load({n, n + 1, n + 2, n + 3}), fresh.load({im, im + 1, im + 2, im + 3})};
      const auto elements = packing.scatter(z, 4, Form::planar);
      all.insert(all.end(), elements.begin(), elements.end());
    }
    Numbers expected;
    const int instances = 1 + below(4);
    for (int l = 0; l < instances; ++l) {
      const int n = below(12), re = below(5) - 2, im = below(5) - 2;
      const bool negative = below(2) == 1;
      Element e = all[n];
      e.re.value.negative = e.im.value.negative = negative;
      chosen.push_back(weighted(e, integers(re, im)));
      expected.push_back((negative ? -number(n) : number(n)) * Number(re, im));
    }
    Complex z = packing.gather(chosen, Form::planar);
    const Value zero = fresh.load({99, 99, 99, 99});  // stands for a half that is zero by structure
    const bool empty[] = {z.p.absent(), z.q.absent()};
    if (empty[0]) z.p = zero;
    if (empty[1]) z.q = zero;
    Numbers got = values(z);
    got.resize(static_cast<std::size_t>(instances));
    for (Number& v : got) v = {empty[0] ? 0 : v.real(), empty[1] ? 0 : v.imag()};
    ASSERT_EQ(got, expected) << "round " << round;
  }
}

}  // namespace
}  // namespace xfm::gen
