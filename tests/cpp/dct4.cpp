// The DCT-IV as a class: the results of C, its life, and the lengths that it refuses.
#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "xfm.hpp"

namespace xfm::test {
namespace {

template <class T>
class Dct4 : public testing::Test {
 protected:
  static std::vector<T> samples(std::size_t n) {
    std::vector<T> x(n);
    for (std::size_t i = 0; i < n; ++i) x[i] = static_cast<T>((i * i * 31 + 7 * i) % 101) / T{50} - 1;
    return x;
  }
  static std::vector<T> by_c(const std::vector<T>& x) {
    std::vector<T> y(x.size());
    if constexpr (std::is_same_v<T, float>) {
      xfmDCT4State_32f* state = nullptr;
      EXPECT_EQ(xfmDCT4InitAlloc_32f(&state, static_cast<std::int32_t>(x.size())), xfmStsOk);
      EXPECT_EQ(xfmDCT4_32f(x.data(), y.data(), state), xfmStsOk);
      EXPECT_EQ(xfmDCT4Free_32f(state), xfmStsOk);
    } else {
      xfmDCT4State_64f* state = nullptr;
      EXPECT_EQ(xfmDCT4InitAlloc_64f(&state, static_cast<std::int32_t>(x.size())), xfmStsOk);
      EXPECT_EQ(xfmDCT4_64f(x.data(), y.data(), state), xfmStsOk);
      EXPECT_EQ(xfmDCT4Free_64f(state), xfmStsOk);
    }
    return y;
  }
};
using Samples = testing::Types<float, double>;
TYPED_TEST_SUITE(Dct4, Samples);

TYPED_TEST(Dct4, HasTheBitsOfC) {
  for (std::size_t n = 2; n <= 1 << 14; n *= 2) {
    const auto x = this->samples(n);
    const auto expected = this->by_c(x);
    dct4<TypeParam> transform(n);
    ASSERT_EQ(transform.outcome(), status::ok) << n;
    ASSERT_EQ(transform.length(), n);
    std::vector<TypeParam> y(n), in_place = x;
    ASSERT_EQ(transform(x, y), status::ok);
    ASSERT_EQ(transform(in_place), status::ok);
    EXPECT_EQ(y, expected) << n;
    EXPECT_EQ(in_place, expected) << n;
  }
}

TYPED_TEST(Dct4, MovesAndLeavesNothing) {
  const auto x = this->samples(256);
  const auto expected = this->by_c(x);
  std::vector<TypeParam> y(256);
  dct4<TypeParam> first(256);
  dct4<TypeParam> second(std::move(first));
  EXPECT_FALSE(first);
  EXPECT_EQ(first.length(), 0U);
  EXPECT_EQ(first(x, y), status::bad_state);
  EXPECT_EQ(second(x, y), status::ok);
  EXPECT_EQ(y, expected);
  dct4<TypeParam> third(8);
  third = std::move(second);
  EXPECT_FALSE(second);
  y.assign(256, 0);
  EXPECT_EQ(third(x, y), status::ok);
  EXPECT_EQ(y, expected);
  EXPECT_EQ(dct4<TypeParam>().outcome(), status::bad_state);
}

// The C function accepts many of these, and computes something else.
TYPED_TEST(Dct4, RefusesAllButPowersOfTwo) {
  std::vector<std::size_t> lengths = {0,
                                      1,
                                      3,
                                      6,
                                      100,
                                      std::size_t{1} << 29,
                                      (std::size_t{1} << 29) + 1,
                                      std::size_t{1} << 30,
                                      (std::size_t{1} << 30) + 1,
                                      std::size_t{1} << 32,
                                      (std::size_t{1} << 32) + 16,
                                      ~std::size_t{0}};
  for (int k = 1; k <= 26; ++k) lengths.push_back((std::size_t{1} << k) + 1);
  lengths.push_back(2 * dct4<TypeParam>::max_length);
  for (const std::size_t n : lengths) {
    dct4<TypeParam> transform(n);
    EXPECT_EQ(transform.outcome(), status::bad_size) << n;
    EXPECT_FALSE(transform) << n;
    EXPECT_EQ(transform.length(), 0U);
    EXPECT_THROW(check(dct4<TypeParam>(n)), error);
  }
}

TYPED_TEST(Dct4, RefusesOtherSizes) {
  auto transform = check(dct4<TypeParam>(16));
  std::vector<TypeParam> right(16), wrong(15);
  EXPECT_EQ(transform(right, wrong), status::bad_size);
  EXPECT_EQ(transform(wrong, right), status::bad_size);
  EXPECT_EQ(transform(wrong), status::bad_size);
}

}  // namespace
}  // namespace xfm::test
