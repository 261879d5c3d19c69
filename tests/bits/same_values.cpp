#include "tests/bits/same_values.h"

#include <cmath>
#include <cstdio>

namespace xfm::test {
namespace {

bool same(double a, double b, Zeros zeros) {
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
  if (a != b) return false;
  return std::signbit(a) == std::signbit(b) || zeros == Zeros::alike;
}

}  // namespace

testing::AssertionResult same_values(const Array& got, const Array& expected, Zeros zeros) {
  if (got.precision() != expected.precision() || got.count() != expected.count())
    return testing::AssertionFailure() << "arrays of different shapes";
  for (int i = 0; i < got.count(); ++i) {
    if (same(got[i], expected[i], zeros)) continue;
    char text[128];
    std::snprintf(text, sizeof text, "scalar %d is %a, expected %a", i, got[i], expected[i]);
    return testing::AssertionFailure()
           << text << " (" << ulp_distance(got.precision(), got[i], expected[i]) << " steps apart)";
  }
  return testing::AssertionSuccess();
}

}  // namespace xfm::test
