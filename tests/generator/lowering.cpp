// Linear combinations as operations on one or two operands: the same scalar program.
#include "gen/passes/passes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "gen/network/program.h"
#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

constexpr Precision precisions[] = {Precision::binary32, Precision::binary64};

std::string error_of_lowering(const Network& network, Precision precision) {
  return test::error_of([&] {
    Programs programs(Equality::bits);
    check_same(programs.read(*lowered(network, precision), precision), "lowered",
               programs.read(network, precision), "the combination");
  });
}

// A combination a*x + b*y with this finish, stored.
std::string error_of_lowering(int a, int b, Finish finish, Precision precision) {
  Network network(1, Rounding::combination);
  const Value x = network.load(0), y = network.load(1);
  const Network::Product terms[] = {{test::integer(a), x}, {test::integer(b), y}};
  const Value sum = network.sum(terms, finish);
  network.store(finish == Finish::none ? network.factor(sum) : sum, 0);
  return error_of_lowering(network, precision);
}

TEST(Lowering, KeepsTheProgramWhateverTheSigns) {
  for (const Precision precision : precisions) {
    for (const int a : {1, -1, 3, -3}) {
      for (const int b : {1, -1, 5, -5}) {
        for (const Finish finish : {Finish::none, Finish::scaled, Finish::negated})
          EXPECT_EQ(error_of_lowering(a, b, finish, precision), "no error") << a << " " << b;
      }
    }
  }
}

TEST(Lowering, KeepsTheProgramOfUnroundedValues) {
  for (const Precision precision : precisions) {
    Network network(1, Rounding::combination);
    const Value x = network.load(0), y = network.load(1);
    const Network::Product inner[] = {{test::integer(-3), x}, {test::integer(5), y}};
    const Value unrounded = network.sum(inner, Finish::unrounded);
    const Network::Product outer[] = {{test::integer(1), unrounded}, {test::integer(-1), x}};
    network.store(network.sum(outer, Finish::scaled), 0);
    EXPECT_EQ(error_of_lowering(network, precision), "no error");
  }
}

TEST(Lowering, WidensAnOperandOnce) {
  Network network(1, Rounding::combination);
  const Value x = network.load(0), y = network.load(1);
  for (int k = 0; k < 2; ++k) {
    const Network::Product terms[] = {{test::integer(3 + k), x}, {test::integer(7 + k), y}};
    network.store(network.sum(terms, Finish::scaled), k);
  }
  const auto narrow = lowered(network, Precision::binary32), wide = lowered(network, Precision::binary64);
  EXPECT_EQ(test::count(*narrow, Op::widen), 2);
  EXPECT_EQ(test::count(*narrow, Op::narrow), 2);
  EXPECT_EQ(test::count(*wide, Op::widen) + test::count(*wide, Op::narrow), 0);
}

// a - b and b - a are two operations: the negative of one differs from the other in the sign of a zero.
TEST(Lowering, KeepsDifferencesOfBothDirections) {
  Network network(1, Rounding::combination);
  const Value x = network.load(0), y = network.load(1);
  const Network::Product one[] = {{test::integer(1), x}, {test::integer(-1), y}};
  const Network::Product other[] = {{test::integer(1), y}, {test::integer(-1), x}};
  network.store(network.sum(one, Finish::scaled), 0);
  network.store(network.sum(other, Finish::scaled), 1);
  EXPECT_EQ(error_of_lowering(network, Precision::binary64), "no error");
  const auto outputs = test::evaluate<double>(*lowered(network, Precision::binary64), {1, 1}, 2);
  EXPECT_FALSE(std::signbit(outputs[0]) || std::signbit(outputs[1]));
}

}  // namespace
}  // namespace xfm::gen
