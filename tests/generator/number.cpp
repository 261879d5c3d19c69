#include "gen/math/number.h"

#include <gtest/gtest.h>

#include <numeric>
#include <set>
#include <stdexcept>

namespace xfm::gen {
namespace {

constexpr int longest = 64;

TEST(Number, ModuloIsNeverNegative) {
  for (int n = 1; n <= longest; ++n) {
    for (int a = -3 * n; a <= 3 * n; ++a) {
      const int r = modulo(a, n);
      ASSERT_TRUE(0 <= r && r < n) << a << " modulo " << n;
      ASSERT_EQ((a - r) % n, 0) << a << " modulo " << n;
    }
  }
}

TEST(Number, Inverses) {
  for (int n = 1; n <= 2 * longest; ++n) {
    for (int a = 1; a <= n; ++a) {
      if (std::gcd(a, n) == 1) {
        ASSERT_EQ(modulo(1LL * a * inverse_modulo(a, n), n), 1 % n) << a << " modulo " << n;
      } else {
        ASSERT_THROW(inverse_modulo(a, n), std::invalid_argument) << a << " modulo " << n;
      }
    }
  }
}

TEST(Number, Powers) {
  for (int n = 1; n <= longest; ++n) {
    for (int base = 0; base < n; ++base) {
      int expected = 1 % n;
      for (int exponent = 0; exponent < 10; ++exponent, expected = expected * base % n)
        ASSERT_EQ(power_modulo(base, exponent, n), expected) << base << "^" << exponent << " modulo " << n;
    }
  }
}

TEST(Number, Primes) {
  std::set<int> composite = {0, 1};
  for (int a = 2; a <= longest; ++a) {
    for (int b = 2; b <= longest; ++b) composite.insert(a * b);
  }
  for (int n = 0; n <= longest; ++n) EXPECT_EQ(is_prime(n), !composite.contains(n)) << n;
}

TEST(Number, SmallestPrimitiveRoots) {
  const std::pair<int, int> known[] = {{3, 2},  {5, 2},  {7, 3},  {11, 2}, {13, 2}, {17, 3},
                                       {19, 2}, {23, 5}, {29, 2}, {31, 3}, {37, 2}, {41, 6},
                                       {43, 3}, {47, 5}, {53, 2}, {59, 2}, {61, 2}};
  for (const auto& [p, g] : known) {
    EXPECT_EQ(smallest_primitive_root(p), g) << p;
    std::set<int> powers;
    for (int q = 0; q < p - 1; ++q) powers.insert(power_modulo(g, q, p));
    EXPECT_EQ(powers.size(), static_cast<std::size_t>(p - 1)) << p;
  }
}

/// Calls check(map) for both index maps of every product up to the longest length.
template <class Check>
void for_each_map(Check check) {
  for (int a = 1; a <= longest; ++a) {
    for (int b = 1; a * b <= longest; ++b) {
      check(TwoStages{a, b, false});
      if (std::gcd(a, b) == 1) check(TwoStages{a, b, true});
    }
  }
}

TEST(TwoStages, IndexMapsArePermutations) {
  for_each_map([](const TwoStages& map) {
    std::set<int> inputs, outputs;
    for (int i = 0; i < map.a; ++i) {
      for (int j = 0; j < map.b; ++j) {
        inputs.insert(map.input(i, j));
        outputs.insert(map.output(i, j));
      }
    }
    for (const auto& image : {inputs, outputs}) {
      ASSERT_EQ(image.size(), static_cast<std::size_t>(map.a * map.b)) << map.a << " by " << map.b;
      ASSERT_EQ(*image.begin(), 0);
      ASSERT_EQ(*image.rbegin(), map.a * map.b - 1);
    }
  });
}

// exp(-2 pi i n k/N) is the product of a factor of the columns, the twiddle, and a factor of the rows.
TEST(TwoStages, ExponentsAdd) {
  for_each_map([](const TwoStages& map) {
    const int a = map.a, b = map.b;
    for (int m = 0; m < a; ++m) {
      for (int c = 0; c < b; ++c) {
        for (int k1 = 0; k1 < a; ++k1) {
          for (int k2 = 0; k2 < b; ++k2) {
            ASSERT_EQ(modulo(1LL * map.input(m, c) * map.output(k1, k2), a * b),
                      modulo(1LL * b * m * k1 + map.twiddle(c, k1) + a * c * k2, a * b))
                << a << " by " << b;
          }
        }
      }
    }
  });
}

}  // namespace
}  // namespace xfm::gen
