// The transpose of a network computes the transposed matrix.
#include "gen/algorithms/transposition.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>

#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

/// How the outputs depend on the inputs: a row of coefficients for each output, by unit vectors.
Sequence<Sequence<double>> matrix(Network& network, const Sequence<Value>& outputs, int inputs) {
  Sequence<Sequence<double>> rows(outputs.size(), Sequence<double>(inputs));
  for (int k = 0; k < outputs.size(); ++k) {
    for (int n = 0; n < inputs; ++n) {
      Sequence<double> unit(inputs);
      unit[n] = 1;
      if (!outputs[k].absent()) rows[k][n] = test::lanes_of(network, outputs[k], unit)[0];
    }
  }
  return rows;
}

// Integers throughout, so that the matrices are exact.
TEST(Transposition, OfRandomNetworks) {
  std::mt19937 random(1);
  const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  constexpr int inputs = 4, outputs = 3;
  for (int round = 0; round < 100; ++round) {
    Network network(1);
    Sequence<Value> values;
    for (int n = 0; n < inputs; ++n) values.push_back(network.load(n));
    for (int n = 1; n < inputs; ++n) values.push_back(values.back() + values[n]);
    for (int n = 0; n < 12; ++n) {
      const Value a = values[below(values.size())], b = values[below(values.size())];
      const int op = below(3);
      values.push_back(op == 0 ? a + b : op == 1 ? a - b : network.mul(constant("two", 2), a));
    }
    const Sequence<Value> chosen = {values.back(), values[inputs + 2], -values[values.size() - 2]};

    Network other(1);
    Sequence<WeightedOutput> weights;
    for (int k = 0; k < outputs; ++k)
      weights.push_back({chosen[k], {other.load(k), other.load(outputs + k)}});
    Sequence<Value> arrived[2];
    for (const Complex& z : transposed(network, weights, inputs)) {
      arrived[0].push_back(z.p);
      arrived[1].push_back(z.q);
    }
    const auto forward = matrix(network, chosen, inputs);
    for (const int half : {0, 1}) {
      const auto backward = matrix(other, arrived[half], 2 * outputs);
      for (int n = 0; n < inputs; ++n) {
        for (int k = 0; k < outputs; ++k) {
          ASSERT_EQ(backward[n][half * outputs + k], forward[k][n]) << "round " << round;
          ASSERT_EQ(backward[n][(1 - half) * outputs + k], 0) << "the halves mix in round " << round;
        }
      }
    }
  }
}

TEST(Transposition, AbsentOutputsSendNothing) {
  Network network(1);
  const Value x = network.load(0);
  Network other(1);
  const auto arrived = transposed(network, {{Value{}, {other.load(0), {}}}, {x, {other.load(1), {}}}}, 2);
  ASSERT_EQ(arrived.size(), 2);
  EXPECT_EQ(arrived[0].p, other.load(1));
  EXPECT_TRUE(arrived[0].q.absent());
  EXPECT_TRUE(arrived[1].p.absent());
}

TEST(Transposition, OnlyOfScalarNetworks) {
  Network network(2);
  const Value v = network.flip_signs(network.load({0, 1}), {1, 0});
  Network other(2);
  EXPECT_THROW(transposed(network, {{v, {other.load({0, 1}), {}}}}, 1), std::logic_error);
}

}  // namespace
}  // namespace xfm::gen
