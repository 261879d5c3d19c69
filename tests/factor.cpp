// The factor: which one a flag selects, to the bit, and that it multiplies every output last.
#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "tests/support/kernel_test.h"
#include "tests/support/layout.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

class Factor : public KernelTest {
 protected:
  /// Whether output i can be the unscaled one times the factor.
  static bool is_scaled(int i, double scaled, double unscaled, double factor);

  /// Output 0 of an impulse, unscaled, in kernels whose chirp takes it through rounded constants.
  static std::optional<double> impulse_of_chirp() {
    if (std::string(kernel().type) != "32fc") return std::nullopt;
    if (kernel().length == 47) return 0x1.fffffep-1;
    if (kernel().length == 59) return 1;
    return std::nullopt;
  }
};

/// The product of two binary32 numbers is exact in binary64, so this rounds once in either precision. Where
/// the factor multiplies a value that is still binary64, only the result is rounded to binary32: the value
/// may then be any that rounds to the unscaled output.
bool Factor::is_scaled(int i, double scaled, double unscaled, double factor) {
  const auto product = [&](double value) { return rounded(kernel().precision, value * factor); };
  if (!may_scale_before_narrowing(kernel(), i)) {
    const double expected = product(unscaled);
    // An output that is negated after the factor is 0 minus the product: +0 if the product underflows.
    return scaled == expected && (std::signbit(scaled) == std::signbit(expected) || real_family(kernel()));
  }
  const auto narrow = static_cast<float>(unscaled);
  const auto edge = [&](float to) { return product((unscaled + std::nextafter(narrow, to)) / 2); };
  constexpr float infinite = std::numeric_limits<float>::infinity();
  return edge(-infinite) <= scaled && scaled <= edge(infinite);
}

// Not folded into any constant: the unscaled output times the factor, rounded once.
TEST_P(Factor, IsTheLastProduct) {
  for (const Kind kind : kinds) {
    const Array src = random_input(kind);
    const Array unscaled = separate(src, XFM_SCALE_NONE);
    for (const std::int32_t flag : flags) {
      const Array scaled = separate(src, flag);
      for (int i = 0; i < scaled.count(); ++i)
        ASSERT_TRUE(is_scaled(i, scaled[i], unscaled[i], factor(kernel(), flag)))
            << to_string(kind) << " data, flag " << flag << ", scalar " << i << " is " << scaled[i] << " for "
            << unscaled[i];
    }
  }
}

TEST_P(Factor, FlagsOfTheSameFactorAgree) {
  const Array src = random_input(Kind::wide);
  for (const std::int32_t one : flags) {
    for (const std::int32_t other : flags) {
      if (factor(kernel(), one) != factor(kernel(), other)) continue;
      ASSERT_TRUE(same_bits(separate(src, one), separate(src, other))) << "flags " << one << " and " << other;
    }
  }
}

// The first column of the matrix is zeros and ones in most families: the outputs are 0 and the factor itself.
TEST_P(Factor, IsTheOutputOfAnImpulse) {
  Array src(kernel().precision, kernel().read);
  src.fill(0.0);
  src.set(0, 1.0);
  if (const auto chirp = impulse_of_chirp()) {
    EXPECT_EQ(separate(src, XFM_SCALE_NONE)[0], *chirp);
    return;
  }
  const auto reference = definition(kernel());
  for (const std::int32_t flag : flags) {
    const Array dst = separate(src, flag);
    for (int out = 0; out < kernel().written; ++out) {
      const Wide entry = reference->entry(out, 0);
      if (entry != 0 && entry != 1) continue;
      ASSERT_EQ(dst[out], static_cast<double>(entry) * factor(kernel(), flag))
          << "scalar " << out << ", flag " << flag;
    }
  }
}

XFM_FOR_ALL_KERNELS(Factor);

}  // namespace
}  // namespace xfm::test
