// What the calls with a length at run time refuse, and what becomes of a refusal.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "xfm.hpp"

namespace xfm::test {
namespace {

constexpr std::size_t unserved[] = {0, 1, 65, 66, 128, std::size_t{1} << 14};

template <class T>
class Refusals : public testing::Test {};
using Samples = testing::Types<float, double>;
TYPED_TEST_SUITE(Refusals, Samples);

TYPED_TEST(Refusals, LengthsThatAreNotServed) {
  using C = std::complex<TypeParam>;
  for (const std::size_t n : unserved) {
    std::vector<C> z(n);
    std::vector<TypeParam> x(n);
    ccs<TypeParam> spectrum(n);
    EXPECT_EQ(dft_forward(z, z, scale::none), status::bad_size) << n;
    EXPECT_EQ(dft_inverse(z, z, scale::none), status::bad_size) << n;
    EXPECT_EQ(dft_forward(x, spectrum, scale::none), status::bad_size) << n;
    EXPECT_EQ(dft_inverse(spectrum, x, scale::none), status::bad_size) << n;
    EXPECT_EQ(hartley(x, x, scale::none), status::bad_size) << n;
  }
  for (const std::size_t n : {0U, 1U, 3U, 12U, 1U << 14}) {
    std::vector<TypeParam> x(n);
    EXPECT_EQ(wht(x, x, scale::none), status::bad_size) << n;
  }
}

// Only the size of such a span is looked at.
TYPED_TEST(Refusals, LengthsBeyond32Bits) {
  TypeParam x = 0;
  std::complex<TypeParam> z = 0;
  constexpr std::size_t wraps_to_8 = (std::size_t{1} << 32) + 8;
  const std::span<TypeParam> samples(&x, wraps_to_8);
  const std::span<std::complex<TypeParam>> numbers(&z, wraps_to_8);
  EXPECT_EQ(dft_forward(numbers, numbers, scale::none), status::bad_size);
  EXPECT_EQ(hartley(samples, samples, scale::none), status::bad_size);
  EXPECT_EQ(wht(std::span<TypeParam>(&x, std::size_t{1} << 40),
                std::span<TypeParam>(&x, std::size_t{1} << 40), scale::none),
            status::bad_size);
}

TYPED_TEST(Refusals, SizesThatDoNotFit) {
  using C = std::complex<TypeParam>;
  std::vector<C> z(8), longer_z(9);
  std::vector<TypeParam> x(8), longer_x(16);
  pack<TypeParam> spectrum(9);
  EXPECT_EQ(dft_forward(z, longer_z, scale::none), status::bad_size);
  EXPECT_EQ(dft_inverse(longer_z, z, scale::none), status::bad_size);
  EXPECT_EQ(dft_forward(x, spectrum, scale::none), status::bad_size);
  EXPECT_EQ(dft_inverse(spectrum, x, scale::none), status::bad_size);
  EXPECT_EQ(hartley(x, longer_x, scale::none), status::bad_size);
  EXPECT_EQ(wht(longer_x, x, scale::none), status::bad_size);
}

TEST(Status, ANumberCastToAScaleIsRefused) {
  std::vector<float> x(8);
  EXPECT_EQ(hartley(x, x, scale{3}), status::bad_scale);
}

TEST(Status, CheckThrowsAllButOk) {
  EXPECT_NO_THROW(check(status::ok));
  for (const status result : {status::bad_state, status::bad_size, status::no_memory, status::bad_scale}) {
    try {
      check(result);
      ADD_FAILURE() << to_string(result);
    } catch (const error& thrown) {
      EXPECT_EQ(thrown.code(), result);
      EXPECT_EQ(thrown.what(), std::string(to_string(result)));
    }
  }
  EXPECT_STREQ(to_string(status{1}), "unknown status");
}

TEST(Status, CallsAreNoexcept) {
  std::array<float, 8> x{};
  EXPECT_TRUE(noexcept(hartley<8>(x, x, scale::none)));
  EXPECT_TRUE(noexcept(hartley(x, x, scale::none)));
  EXPECT_TRUE(noexcept(dct4<float>(8)));
  EXPECT_TRUE(noexcept(mdct<float>(x, scale::none)));
}

}  // namespace
}  // namespace xfm::test
