// The analysis on networks whose bounds can be worked out by hand.
#include <cmath>
#include <numbers>

#include "gen/bounds/bounds.h"
#include "gen/bounds/spectral_norm.h"
#include "gen/math/random.h"
#include "src/wht/recipe/bounds.h"
#include "tests/generator/small_networks.h"

#include <gtest/gtest.h>

namespace xfm::test {
namespace {

using gen::Bound;
using gen::Factor;
using gen::Network;
using gen::Precision;
using gen::Value;

constexpr Precision precisions[] = {Precision::binary32, Precision::binary64};
constexpr double near = 1e-6;

/// Of the first output.
Bound bound(const Network& network, Precision precision, const gen::Sequence<gen::Wide>& exact,
            Factor factor = Factor::one) {
  return gen::bounds(network, precision, {exact}, factor)[0];
}

TEST(Analysis, SumOfTwo) {
  for (const Precision precision : precisions) {
    Network network(1);
    network.store(network.load(0) + network.load(1), 0);
    const Bound one = bound(network, precision, {1, 1});
    EXPECT_NEAR(one.norm, std::sqrt(2), near);
    EXPECT_NEAR(one.unit, 2, near);
    EXPECT_EQ(one.underflow, 0);
  }
}

TEST(Analysis, SumsOneAfterTheOther) {
  Network network(1);
  network.store(network.load(0) - network.load(1) + network.load(2), 0);
  const Bound one = bound(network, Precision::binary64, {1, -1, 1});
  EXPECT_NEAR(one.norm, std::sqrt(2) + std::sqrt(3), near);
  EXPECT_NEAR(one.unit, 2 + 3, near);
}

// Both sums have their worst inputs at once, but these are longer by sqrt(2).
TEST(Analysis, SumsBesideEachOther) {
  Network network(1);
  const Value a = network.load(0) + network.load(1), b = network.load(2) + network.load(3);
  network.store(a + b, 0);
  const Bound one = bound(network, Precision::binary64, {1, 1, 1, 1});
  EXPECT_NEAR(one.norm, 2 + 2, near);
  EXPECT_NEAR(one.unit, 4 + 4, near);
}

// A rounding that later operations enlarge.
TEST(Analysis, GainsEnlarge) {
  Network network(1);
  const Value sum = network.load(0) + network.load(1);
  network.store(network.mul(integer(8), sum), 0);
  EXPECT_NEAR(bound(network, Precision::binary64, {8, 8}).norm, 8 * std::sqrt(2), near);
}

TEST(Analysis, ConstantsAreOffAndTheirProductsRound) {
  const gen::Wide third = gen::Wide(1) / 3;
  for (const Precision precision : precisions) {
    Network network(1);
    network.store(network.mul(gen::constant("third", third), network.load(0)), 0);
    const double u = gen::unit_roundoff(precision);
    const double off = std::abs(static_cast<double>(gen::Wide(rounded(third, precision)) - third)) / u;
    const Bound one = bound(network, precision, {third});
    EXPECT_GT(off, 0.1);
    EXPECT_NEAR(one.norm, 1.0 / 3 + off, near);
    EXPECT_NEAR(one.underflow, 1, near);
  }
}

TEST(Analysis, PowersOfTwoAreExactUnlessTheyUnderflow) {
  Network network(1);
  network.store(network.twice(network.mul(gen::constant("half", 0.5), network.load(0))), 0);
  const Bound one = bound(network, Precision::binary32, {1});
  EXPECT_NEAR(one.norm, 0, near);
  EXPECT_NEAR(one.underflow, 2, near);
}

// Three roundings in binary64, and one to binary32.
TEST(Analysis, LinearCombinationsRoundOnce) {
  Network network(1, gen::Rounding::combination);
  const gen::Constant third = gen::constant("third", gen::Wide(1) / 3);
  const Network::Product products[] = {{third, network.load(0)}, {integer(1), network.load(1)}};
  network.store(network.sum(products), 0);
  const Bound one = bound(network, Precision::binary32, {third.value, 1});
  EXPECT_NEAR(one.norm, std::sqrt(1 + 1.0 / 9), near);
  EXPECT_NEAR(one.underflow, 1, near);
}

TEST(Analysis, FactorsRound) {
  Network network(1);
  network.store(network.factor(network.load(0) + network.load(1)), 0);
  const double plain = bound(network, Precision::binary32, {1, 1}).norm;
  const Bound scaled = bound(network, Precision::binary32, {1, 1}, Factor::any);
  EXPECT_NEAR(scaled.norm - plain, 3 * std::sqrt(2), near);  // the product, and a factor off by 2 u
  EXPECT_NEAR(scaled.underflow, 1, near);
}

TEST(Analysis, StoredZerosAreExact) {
  Network network(1);
  network.store_zero(0);
  network.store(network.load(0) + network.load(1), 1);
  network.store_zero(2);
  const auto all = gen::bounds(network, Precision::binary32, {{0, 0}, {1, 1}, {0, 0}}, Factor::any);
  ASSERT_EQ(all.size(), 3);
  for (const int zero : {0, 2}) {
    EXPECT_EQ(all[zero].norm, 0);
    EXPECT_EQ(all[zero].unit, 0);
    EXPECT_EQ(all[zero].underflow, 0);
  }
}

TEST(Analysis, AnotherTransformIsRefused) {
  Network network(1);
  network.store(network.load(0) + network.load(1), 0);
  EXPECT_EQ(error_of([&] {
              bound(network, Precision::binary64, {1, gen::Wide(1) + gen::Wide(0x1p-40)});
            }),
            "output 0 is not that of the transform");
}

// Second order: the bound of a chain of sums exceeds n u by about n^2 u^2 / 2.
TEST(Analysis, SecondOrderCounts) {
  Network network(1);
  Value total = network.load(0);
  const int n = 400;
  for (int i = 0; i < n; ++i) total = total + network.mul(gen::constant("small", 0x1p-60), network.load(1));
  network.store(total, 0);
  gen::Sequence<gen::Wide> exact = {1, gen::Wide(n) * gen::Wide(0x1p-60)};
  const double norm = bound(network, Precision::binary32, exact).norm;
  EXPECT_GT(norm, n + n * (n - 1) / 2 * 0x1p-24 * 0.9);
  EXPECT_LT(norm, n + n * n * 0x1p-24);
}

/// The butterflies of an order.
void make_hadamard(Network& network, int order) {
  gen::Sequence<Value> values = gen::tabulated(1 << order, [&](int i) { return network.load(i); });
  for (int distance = 1; distance < 1 << order; distance *= 2) {
    for (int i = 0; i < 1 << order; ++i) {
      if ((i & distance) != 0) continue;
      const Value a = values[i], b = values[i + distance];
      values[i] = a + b;
      values[i + distance] = a - b;
    }
  }
  for (int i = 0; i < 1 << order; ++i)
    network.store(values[i].negative ? network.minus(-values[i]) : values[i], i);
}

TEST(Analysis, AgreesWithTheInductionOfWalshHadamard) {
  for (int order = 1; order <= 6; ++order) {
    Network network(1);
    make_hadamard(network, order);
    gen::Matrix exact;
    for (int k = 0; k < 1 << order; ++k) {
      exact.push_back(gen::tabulated(1 << order, [&](int i) {
        return gen::Wide(__builtin_popcount(static_cast<unsigned>(i & k)) % 2 == 0 ? 1 : -1);
      }));
    }
    const Bound analysed = greatest(gen::bounds(network, Precision::binary64, exact, Factor::one));
    const Bound induced = wht::bound(order, Precision::binary64, Factor::one);
    EXPECT_NEAR(analysed.norm / induced.norm, 1, near) << order;
    EXPECT_NEAR(analysed.unit / induced.unit, 1, near) << order;
  }
}

TEST(Analysis, WorstSignsAgreeInEverySum) {
  Network network(1);
  const Value a = network.load(0) - network.load(1), b = network.load(2) + network.load(3);
  network.store(a - b, 0);
  const gen::ErrorAnalysis analysis(network, Precision::binary32, 4, 1);
  EXPECT_EQ(analysis.worst_signs(0, {1, 1, -1, -1}), (gen::Sequence<double>{1, -1, -1, -1}));
}

using Rows = gen::Sequence<gen::Sequence<double>>;

TEST(SpectralNorm, OfKnownMatrices) {
  EXPECT_DOUBLE_EQ(gen::spectral_norm_bound(Rows{{3, 0}, {0, -4}, {0, 0}}), 4);
  EXPECT_DOUBLE_EQ(gen::spectral_norm_bound(Rows{{1, 1}, {1, -1}}), std::numbers::sqrt2);
  EXPECT_DOUBLE_EQ(gen::spectral_norm_bound(Rows(5, gen::Sequence<double>(7, 1.0))), std::sqrt(35));
}

/// |A x| of the x that repeated products by A^T A lead to.
double reached_by_power_iteration(const Rows& rows) {
  gen::Sequence<double> x(rows[0].size(), 1.0);
  double norm = 0;
  for (int round = 0; round < 1000; ++round) {
    gen::Sequence<double> next(x.size());
    double squares = 0, length = 0;
    for (const auto& row : rows) {
      double dot = 0;
      for (int i = 0; i < x.size(); ++i) dot += row[i] * x[i];
      for (int i = 0; i < x.size(); ++i) next[i] += dot * row[i];
      squares += dot * dot;
    }
    norm = std::sqrt(squares);
    for (const double v : next) length += v * v;
    for (double& v : next) v /= std::sqrt(length);
    x = next;
  }
  return norm;
}

TEST(SpectralNorm, IsBoundedClosely) {
  gen::Random random(7);
  for (const int height : {3, 20, 60}) {
    Rows rows(height, gen::Sequence<double>(20));
    for (auto& row : rows) {
      for (double& v : row) v = random.below(2001) - 1000;
    }
    const double reached = reached_by_power_iteration(rows), bounded = gen::spectral_norm_bound(rows);
    EXPECT_GE(bounded, reached * (1 - 1e-12)) << height;
    EXPECT_LE(bounded, reached * 1.15) << height;
  }
}

}  // namespace
}  // namespace xfm::test
