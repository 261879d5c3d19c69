// Batches of the C++ header: single calls, the places that they refuse, and every function of libxfmmany.
#include <gtest/gtest.h>

#include <limits>
#include <numeric>
#include <vector>

#include "xfm.hpp"
#include "xfm_many.hpp"

namespace xfm::test {
namespace {

constexpr std::size_t count = 11;

template <class E>
std::vector<E> elements(std::size_t n) {
  std::vector<E> x(n);
  for (std::size_t i = 0; i < n; ++i)
    x[i] = static_cast<E>(static_cast<float>((i * i * 37 + 11 * i) % 127) / 64 - 1);
  return x;
}

/// Rows to columns, against single calls.
template <class E>
void expect_single_calls(std::size_t read, std::size_t written, auto batched, auto single) {
  const auto src = elements<E>(count * read);
  std::vector<E> dst(count * written), one(written);
  ASSERT_EQ(batched(rows(src, read), columns(dst, written)), status::ok);
  for (std::size_t t = 0; t < count; ++t) {
    ASSERT_EQ(single(std::span(src).subspan(t * read, read), std::span(one)), status::ok);
    for (std::size_t k = 0; k < written; ++k) ASSERT_EQ(dst[k * count + t], one[k]) << t << ", " << k;
  }
}

template <class T>
class Batch : public testing::Test {
 protected:
  template <layout Layout>
  static void expect_real(std::size_t n) {
    const std::size_t packed = element_count(Layout, n);
    expect_single_calls<T>(
        n, packed, [](auto in, auto out) { return dft_forward<Layout>(in, out, scale::by_sqrt_n); },
        [&](auto in, auto out) {
          return dft_forward(in, half_spectrum_view<Layout, T>(out, n), scale::by_sqrt_n);
        });
    expect_single_calls<T>(
        packed, n, [](auto in, auto out) { return dft_inverse<Layout>(in, out, scale::inverse_by_n); },
        [&](auto in, auto out) {
          return dft_inverse(half_spectrum_view<Layout, const T>(in, n), out, scale::inverse_by_n);
        });
  }
};
using Samples = testing::Types<float, double>;
TYPED_TEST_SUITE(Batch, Samples);

TYPED_TEST(Batch, IsSingleCalls) {
  using C = std::complex<TypeParam>;
  const auto forward = [](auto in, auto out) { return dft_forward(in, out, scale::forward_by_n); };
  const auto inverse = [](auto in, auto out) { return dft_inverse(in, out, scale::by_sqrt_n); };
  const auto real = [](auto in, auto out) { return hartley(in, out, scale::by_sqrt_n); };
  const auto signs = [](auto in, auto out) { return wht(in, out, scale::by_sqrt_n); };
  wht_buffer<TypeParam> buffer;
  const auto buffered = [&](auto in, auto out) { return wht(in, out, scale::none, buffer); };
  for (const std::size_t n : {2U, 7U, 12U, 64U}) {
    expect_single_calls<C>(n, n, forward, forward);
    expect_single_calls<C>(n, n, inverse, inverse);
    expect_single_calls<TypeParam>(n, n, real, real);
    this->template expect_real<layout::ccs>(n);
    this->template expect_real<layout::pack>(n);
    this->template expect_real<layout::perm>(n);
  }
  for (const std::size_t n : {2U, 32U, 256U, 2048U}) {
    expect_single_calls<TypeParam>(n, n, signs, signs);
    expect_single_calls<TypeParam>(n, n, buffered, buffered);
  }
}

TYPED_TEST(Batch, OfNoneIsNoError) {
  std::vector<TypeParam> none;
  EXPECT_EQ(hartley(rows(none, 8), rows(none, 8), scale::none), status::ok);
}

TYPED_TEST(Batch, RefusesWhatDoesNotFit) {
  auto x = elements<TypeParam>(64);
  auto y = elements<TypeParam>(72);
  EXPECT_EQ(hartley(rows(x, 8), rows(y, 8), scale::none), status::bad_size);  // 8 and 9 transforms
  EXPECT_EQ(hartley(rows(x, 8), columns(y, 9), scale::none), status::bad_size);
  EXPECT_EQ(hartley(rows(x, 7), rows(x, 7), scale::none), status::bad_size);  // 64 is no multiple of 7
  EXPECT_EQ(hartley(rows(x, 1), rows(x, 1), scale::none), status::bad_size);
  EXPECT_EQ(hartley(rows(x, 0), rows(x, 0), scale::none), status::bad_size);
  auto longer = elements<TypeParam>(65);
  EXPECT_EQ(hartley(rows(longer, 65), rows(longer, 65), scale::none), status::bad_size);
  EXPECT_EQ(wht(rows(y, 6), rows(y, 6), scale::none), status::bad_size);
  EXPECT_EQ(dft_forward<layout::ccs>(rows(x, 8), rows(x, 8), scale::none), status::bad_size);
  EXPECT_EQ(dft_inverse<layout::ccs>(rows(x, 8), rows(x, 8), scale::none), status::bad_size);
}

/// Whether all elements are in memory of this size, one by one.
bool inside(std::ptrdiff_t size, const places& at) {
  for (std::ptrdiff_t t = 0; t < static_cast<std::ptrdiff_t>(at.count); ++t)
    for (std::ptrdiff_t k = 0; k < static_cast<std::ptrdiff_t>(at.length); ++k) {
      const std::ptrdiff_t place = static_cast<std::ptrdiff_t>(at.first) + t * at.distance + k * at.stride;
      if (place < 0 || place >= size) return false;
    }
  return true;
}

TEST(Places, MustBeInsideTheMemory) {
  float memory[12] = {};
  int accepted = 0;
  for (std::size_t size : {1U, 5U, 12U})
    for (std::size_t length : {1U, 2U, 3U})
      for (std::size_t number : {1U, 2U, 4U})
        for (std::ptrdiff_t stride = -5; stride <= 5; ++stride)
          for (std::ptrdiff_t distance = -5; distance <= 5; ++distance)
            for (std::size_t first = 0; first <= 12; ++first) {
              const places at{length, number, stride, distance, first};
              const batch<float> made(std::span<float>(memory).first(size), at);
              ASSERT_EQ(made.length() != 0, inside(static_cast<std::ptrdiff_t>(size), at))
                  << size << ": " << length << ' ' << number << ' ' << stride << ' ' << distance << ' '
                  << first;
              accepted += made.length() != 0;
            }
  EXPECT_GT(accepted, 1000);
}

TEST(Places, DoNotWrapAround) {
  float memory[12] = {};
  using Step = std::numeric_limits<std::ptrdiff_t>;
  using Number = std::numeric_limits<std::size_t>;
  const std::span<float> all(memory);
  for (const std::ptrdiff_t step : {Step::min(), Step::min() + 1, Step::max(), Step::max() / 2 + 1}) {
    EXPECT_EQ(batch<float>(all, {3, 1, step, 0}).length(), 0U);
    EXPECT_EQ(batch<float>(all, {2, 3, 1, step}).length(), 0U);
  }
  EXPECT_EQ(batch<float>(all, {Number::max(), 1, 1, 0}).length(), 0U);
  EXPECT_EQ(batch<float>(all, {2, Number::max(), 1, 1}).length(), 0U);
  EXPECT_EQ(batch<float>(all, {2, 1, 1, 0, Number::max()}).length(), 0U);
}

// Every third sample, backwards.
TEST(Places, OfAnyKind) {
  const auto x = elements<float>(40);
  std::vector<float> y(8), in(8), expected(8);
  for (std::size_t k = 0; k < 8; ++k) in[k] = x[39 - 3 * k];
  ASSERT_EQ(hartley(batch<const float>(x, {8, 1, -3, 0, 39}), rows(y, 8), scale::none), status::ok);
  hartley<8>(std::span<float>(in).first<8>(), std::span<float>(expected).first<8>(), scale::none);
  EXPECT_EQ(y, expected);
}

}  // namespace
}  // namespace xfm::test
