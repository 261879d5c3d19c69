// The factor: which one a flag selects, to the bit, and that it is the last multiplication of every output.
#include <optional>
#include <string>

#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

class Factor : public KernelTest {
 protected:
  /// A chirp carries an impulse through rounded constants; what the unscaled output 0 of these kernels is
  /// then.
  static std::optional<double> impulse_of_chirp() {
    if (std::string(kernel().type) != "32fc") return std::nullopt;
    if (kernel().length == 47) return 0x1.fffffep-1;
    if (kernel().length == 59) return 1;
    return std::nullopt;
  }
};

// Not folded into any constant: the unscaled output times the factor, rounded once.
TEST_P(Factor, IsTheLastProduct) {
  for (const Kind kind : kinds) {
    const Array src = random_input(kind);
    const Array unscaled = separate(src, XFM_SCALE_NONE);
    for (const std::int32_t flag : flags) {
      Array expected = output();
      // Two binary32 factors have an exact product in binary64, so that this rounds once in either precision.
      for (int i = 0; i < expected.count(); ++i) expected.set(i, unscaled[i] * factor(kernel(), flag));
      ASSERT_TRUE(same_bits(separate(src, flag), expected)) << to_string(kind) << " data, flag " << flag;
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

// The first column of the matrix holds zeros and ones in most families: the factor comes through by itself.
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
