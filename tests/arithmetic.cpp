// How kernels treat unusual values and the control bits of the caller.
#include <xmmintrin.h>

#include <cmath>
#include <limits>

#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

constexpr unsigned exception_flags = 0x3f, flush_bits = 0x8040, all_masked = 0x1f80;

/// Restores the control register, even if a test stops early.
class ControlRegister {
 public:
  explicit ControlRegister(unsigned value) : before_(_mm_getcsr()) { _mm_setcsr(value); }
  ~ControlRegister() { _mm_setcsr(before_); }
  ControlRegister(const ControlRegister&) = delete;
  ControlRegister& operator=(const ControlRegister&) = delete;
  static unsigned control_bits() { return _mm_getcsr() & ~exception_flags; }

 private:
  unsigned before_;
};

class Arithmetic : public KernelTest {
 protected:
  /// Outputs that depend on the input scalar must not be finite, whatever the other inputs are.
  void expect_flow(double poisonous, bool nan);
  static double least_subnormal() { return kernel().precision == Precision::binary32 ? 0x1p-149 : 0x1p-1074; }
};

TEST_P(Arithmetic, KeepsTheControlBits) {
  const Array src = random_input(Kind::wide);
  Array dst = output(), shifted(kernel().precision, kernel().written, step());
  for (const unsigned rounding : {0x0000U, 0x2000U, 0x4000U, 0x6000U}) {
    for (const unsigned flush : {0x0000U, 0x0040U, 0x8000U, flush_bits}) {
      for (const std::int32_t flag : {1, 2, 4, 8, 3}) {
        const ControlRegister control(all_masked | rounding | flush);
        static_cast<void>(run(kernel(), src.data(), dst.data(), flag));
        ASSERT_EQ(ControlRegister::control_bits(), all_masked | rounding | flush);
        static_cast<void>(run(kernel(), src.data(), shifted.data(), flag));
        ASSERT_EQ(ControlRegister::control_bits(), all_masked | rounding | flush);
      }
    }
  }
}

void Arithmetic::expect_flow(double poisonous, bool nan) {
  const auto reference = definition(kernel());
  const int apart = kernel().read > 1000 ? 7 : 1;  // a prime: every lane, block and column is hit
  for (int in = 0; in < kernel().read; in += apart) {
    Array src = random_input();
    src.set(in, poisonous);
    const Array dst = separate(src, XFM_SCALE_BY_SQRT_N);
    for (int out = 0; out < kernel().written; ++out) {
      if (reference->entry(out, in) == 0) continue;
      ASSERT_FALSE(nan ? !std::isnan(dst[out]) : std::isfinite(dst[out]))
          << "output scalar " << out << " is " << dst[out] << " for " << poisonous << " at input scalar "
          << in;
    }
  }
}

TEST_P(Arithmetic, NanFlows) { expect_flow(std::numeric_limits<double>::quiet_NaN(), true); }

TEST_P(Arithmetic, InfinityFlows) {
  expect_flow(std::numeric_limits<double>::infinity(), false);
  expect_flow(-std::numeric_limits<double>::infinity(), false);
}

TEST_P(Arithmetic, FiniteStaysFinite) {
  for (const Kind kind : kinds) {
    for (const std::int32_t flag : flags) {
      const Array dst = separate(random_input(kind), flag);
      for (int out = 0; out < dst.count(); ++out)
        ASSERT_TRUE(std::isfinite(dst[out]))
            << to_string(kind) << " data, scalar " << out << ", flag " << flag;
    }
  }
}

TEST_P(Arithmetic, ZeroGivesZero) {
  Array src(kernel().precision, kernel().read);
  src.fill(0.0);
  for (const std::int32_t flag : flags) {
    const Array dst = separate(src, flag);
    for (int out = 0; out < dst.count(); ++out) ASSERT_EQ(dst[out], 0.0) << "scalar " << out;
  }
}

// Nothing is flushed: sums of subnormal numbers are exact, and a product is off by half the least one.
TEST_P(Arithmetic, SubnormalNumbersCount) {
  const auto reference = definition(kernel());
  const Array src = random_input(Kind::subnormal);
  const std::vector<Wide> expected = transform(*reference, src, kernel().written);
  const Array dst = separate(src, XFM_SCALE_NONE);
  const double allowed =
      relative_bound(kernel().precision) * magnitude(*reference, src) + kernel().points * least_subnormal();
  for (int out = 0; out < dst.count(); ++out) {
    const auto error = static_cast<double>(Wide{dst[out]} - expected[static_cast<std::size_t>(out)]);
    ASSERT_LE(std::abs(error), allowed) << "scalar " << out << " is " << dst[out];
  }
}

XFM_FOR_ALL_KERNELS(Arithmetic);

}  // namespace
}  // namespace xfm::test
