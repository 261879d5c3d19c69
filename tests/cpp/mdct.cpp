// The MDCT against its definition in long double, reconstruction, windows, and the two halves apart.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "xfm.hpp"

namespace xfm::test {
namespace {

constexpr long double pi = std::numbers::pi_v<long double>;
constexpr scale scales[] = {scale::forward_by_n, scale::inverse_by_n, scale::by_sqrt_n, scale::none};

/// Not a number is far from everything, since no comparison with it holds.
long double distance(long double a, long double b) { return std::abs(a - b); }

template <class T>
class Mdct : public testing::Test {
 protected:
  static constexpr long double epsilon = std::numeric_limits<T>::epsilon();

  std::vector<T> signal(std::size_t n) {
    std::vector<T> x(n);
    for (T& value : x) value = std::uniform_real_distribution<T>(-1, 1)(random_);
    return x;
  }
  static std::vector<T> sine(std::size_t n) {
    std::vector<T> window(2 * n);
    sine_window<T>(window);
    return window;
  }
  static std::vector<T> kaiser_bessel(std::size_t n, double alpha) {
    std::vector<T> window(2 * n);
    kaiser_bessel_derived_window<T>(window, alpha);
    return window;
  }
  /// By the definition, without a factor.
  static std::vector<long double> direct(std::span<const T> frame, std::span<const T> window) {
    const std::size_t n = frame.size() / 2;
    std::vector<long double> result(n);
    for (std::size_t k = 0; k < n; ++k)
      for (std::size_t i = 0; i < 2 * n; ++i) {
        // A multiple of pi/4N, reduced while it is an integer.
        const std::size_t turns = ((2 * i + 1 + n) * (2 * k + 1)) % (8 * n);
        result[k] += static_cast<long double>(window[i]) * static_cast<long double>(frame[i]) *
                     std::cos(pi * static_cast<long double>(turns) / static_cast<long double>(4 * n));
      }
    return result;
  }

  std::mt19937 random_{1};
};
using Samples = testing::Types<float, double>;
TYPED_TEST_SUITE(Mdct, Samples);

long double forward_factor(scale factor, std::size_t n) {
  const auto size = static_cast<long double>(n);
  if (factor == scale::forward_by_n) return 2 / size;
  return factor == scale::by_sqrt_n ? std::sqrt(2 / size) : 1;
}

TYPED_TEST(Mdct, IsItsDefinition) {
  for (std::size_t n = 2; n <= 256; n *= 2) {
    for (const scale factor : scales) {
      const auto window = this->kaiser_bessel(n, 4), frame = this->signal(2 * n);
      auto transform = check(mdct<TypeParam>(window, factor));
      std::vector<TypeParam> coefficients(n);
      ASSERT_EQ(transform.forward(frame, coefficients), status::ok);
      const auto expected = this->direct(frame, window);
      const long double s = forward_factor(factor, n),
                        bound = 8 * TestFixture::epsilon * static_cast<long double>(n);
      for (std::size_t k = 0; k < n; ++k)
        ASSERT_LE(distance(static_cast<long double>(coefficients[k]) / s, expected[k]), bound)
            << n << ", bin " << k;
    }
  }
}

// Frame by frame; the first block comes out after the second frame.
TYPED_TEST(Mdct, ReconstructsTheSignal) {
  for (const std::size_t n : {2U, 4U, 64U, 1024U}) {
    for (const auto& window : {this->sine(n), this->kaiser_bessel(n, 4), this->kaiser_bessel(n, 0.5)}) {
      for (const scale factor : {scale::forward_by_n, scale::inverse_by_n, scale::by_sqrt_n}) {
        auto transform = check(mdct<TypeParam>(window, factor));
        const auto x = this->signal(6 * n);
        std::vector<TypeParam> coefficients(n), block(n);
        for (std::size_t t = 0; t < 5; ++t) {
          ASSERT_EQ(transform.forward(std::span(x).subspan(t * n, 2 * n), coefficients), status::ok);
          ASSERT_EQ(transform.inverse(coefficients, block), status::ok);
          for (std::size_t i = 0; t > 0 && i < n; ++i)
            ASSERT_LE(distance(block[i], x[t * n + i]), 20 * std::numeric_limits<TypeParam>::epsilon())
                << n << ", " << i;
        }
      }
    }
  }
}

// With no factor the two directions multiply by N/2.
TYPED_TEST(Mdct, WithoutAFactor) {
  constexpr std::size_t n = 32;
  auto none = check(mdct<TypeParam>(this->sine(n), scale::none));
  auto inverse = check(mdct<TypeParam>(this->sine(n), scale::inverse_by_n));
  const auto coefficients = this->signal(n);
  std::vector<TypeParam> a(n), b(n);
  ASSERT_EQ(none.inverse(coefficients, a), status::ok);
  ASSERT_EQ(inverse.inverse(coefficients, b), status::ok);
  for (std::size_t i = 0; i < n; ++i) EXPECT_EQ(a[i], b[i] * (n / 2));  // a power of two
}

TYPED_TEST(Mdct, InverseInPlaceAndReset) {
  constexpr std::size_t n = 16;
  auto transform = check(mdct<TypeParam>(this->sine(n), scale::by_sqrt_n));
  const auto coefficients = this->signal(n);
  std::vector<TypeParam> fresh(n), later(n), in_place = coefficients;
  ASSERT_EQ(transform.inverse(coefficients, fresh), status::ok);
  ASSERT_EQ(transform.inverse(coefficients, later), status::ok);
  EXPECT_NE(fresh, later);
  transform.reset();
  ASSERT_EQ(transform.inverse(in_place, in_place), status::ok);
  EXPECT_EQ(in_place, fresh);
}

// The condition of Princen and Bradley, and symmetry.
TYPED_TEST(Mdct, WindowsSatisfyTheCondition) {
  for (std::size_t n = 1; n <= 2048; n = 2 * n + n % 3) {
    for (const auto& window : {this->sine(n), this->kaiser_bessel(n, 0), this->kaiser_bessel(n, 4),
                               this->kaiser_bessel(n, 30), this->kaiser_bessel(n, 200)}) {
      for (std::size_t i = 0; i < n; ++i) {
        const long double a = window[i], b = window[n + i];
        ASSERT_LE(distance(a * a + b * b, 1.0L), 2 * TestFixture::epsilon) << n << ", " << i;
        ASSERT_EQ(window[i], window[2 * n - 1 - i]) << n << ", " << i;
        ASSERT_GE(window[i], 0);
      }
    }
  }
}

// The Bessel function is that of the standard library, in long double.
TYPED_TEST(Mdct, KaiserBesselDerivedWindowIsItsDefinition) {
  for (const std::size_t n : {2U, 7U, 128U}) {
    for (const double alpha : {0.0, 1.0, 4.0, 6.0, 20.0}) {
      std::vector<long double> kaiser(n + 1);
      for (std::size_t k = 0; k <= n; ++k) {
        const long double place = 2.0L * static_cast<long double>(k) / static_cast<long double>(n) - 1;
        kaiser[k] =
            std::cyl_bessel_il(0, pi * static_cast<long double>(alpha) * std::sqrt(1 - place * place));
      }
      long double sum = 0, running = 0;
      for (const long double value : kaiser) sum += value;
      const auto window = this->kaiser_bessel(n, alpha);
      for (std::size_t k = 0; k < n; ++k) {
        running += kaiser[k];
        const long double expected = std::sqrt(running / sum);
        ASSERT_LE(distance(window[k], expected), expected * (TestFixture::epsilon + 1e-13L))
            << n << ", " << alpha << ", " << k;
      }
    }
  }
}

TYPED_TEST(Mdct, SineWindowIsItsDefinition) {
  const auto window = this->sine(100);
  for (std::size_t i = 0; i < 200; ++i)
    EXPECT_LE(distance(window[i], std::sin(pi / 200 * (static_cast<long double>(i) + 0.5L))),
              TestFixture::epsilon);
}

// In their own words: the frame (a, b, c, d) in quarters, small integers and a window of powers of two.
TYPED_TEST(Mdct, FoldsAndUnfoldsQuarters) {
  const std::vector<TypeParam> frame = {1, 2, 3, 5, 7, 11, 13, 17}, ones(8, 1);
  std::vector<TypeParam> folded(4), unfolded(8);
  ASSERT_EQ(fold<TypeParam>(frame, ones, folded), status::ok);
  EXPECT_EQ(folded, (std::vector<TypeParam>{-11 - 13, -7 - 17, 1 - 5, 2 - 3}));
  ASSERT_EQ(unfold<TypeParam>(std::vector<TypeParam>{1, 2, 3, 5}, ones, unfolded), status::ok);
  EXPECT_EQ(unfolded, (std::vector<TypeParam>{3, 5, -5, -3, -2, -1, -1, -2}));

  const std::vector<TypeParam> window = {1, 2, 4, 8, 16, 32, 64, 128};
  ASSERT_EQ(fold<TypeParam>(frame, window, folded), status::ok);
  EXPECT_EQ(folded,
            (std::vector<TypeParam>{-32 * 11 - 64 * 13, -16 * 7 - 128 * 17, 1 - 8 * 5, 2 * 2 - 4 * 3}));
  ASSERT_EQ(unfold<TypeParam>(std::vector<TypeParam>{1, 2, 3, 5}, window, unfolded), status::ok);
  EXPECT_EQ(unfolded, (std::vector<TypeParam>{3, 10, -20, -24, -32, -32, -64, -256}));
}

TYPED_TEST(Mdct, RefusesWrongSizes) {
  std::vector<TypeParam> n(8), twice(16), odd(3), six(6);
  EXPECT_EQ(fold<TypeParam>(twice, twice, n), status::ok);
  EXPECT_EQ(fold<TypeParam>(n, twice, n), status::bad_size);
  EXPECT_EQ(fold<TypeParam>(twice, n, n), status::bad_size);
  EXPECT_EQ(fold<TypeParam>(six, six, odd), status::bad_size);
  EXPECT_EQ(unfold<TypeParam>(n, twice, n), status::bad_size);
  EXPECT_EQ(unfold<TypeParam>(n, n, twice), status::bad_size);
  EXPECT_EQ(unfold<TypeParam>(odd, six, six), status::bad_size);

  auto transform = check(mdct<TypeParam>(this->sine(8), scale::none));
  EXPECT_EQ(transform.length(), 8U);
  EXPECT_EQ(transform.forward(twice, twice), status::bad_size);
  EXPECT_EQ(transform.forward(n, n), status::bad_size);
  EXPECT_EQ(transform.inverse(twice, n), status::bad_size);
  EXPECT_EQ(transform.inverse(n, twice), status::bad_size);
  for (const std::size_t size : {0U, 1U, 2U, 5U, 6U, 66U, 17U})
    EXPECT_EQ(mdct<TypeParam>(std::vector<TypeParam>(size), scale::none).outcome(), status::bad_size) << size;
}

TYPED_TEST(Mdct, Moves) {
  auto first = check(mdct<TypeParam>(this->sine(8), scale::none));
  const auto second = std::move(first);
  std::vector<TypeParam> n(8), twice(16);
  EXPECT_FALSE(first);
  EXPECT_EQ(first.outcome(), status::bad_state);
  EXPECT_EQ(first.length(), 0U);
  EXPECT_EQ(first.forward(twice, n), status::bad_state);
  EXPECT_EQ(first.inverse(n, n), status::bad_state);
  first.reset();
  EXPECT_EQ(second.length(), 8U);
}

}  // namespace
}  // namespace xfm::test
