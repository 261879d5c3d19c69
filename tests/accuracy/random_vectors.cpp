// Random vectors against the definition in binary128: sums of columns round too. For data of like magnitudes
// every output is right within a few roundings of the sum of all magnitudes, and mostly far closer.
#include <algorithm>
#include <cmath>

#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

class RandomVectors : public KernelTest {};

TEST_P(RandomVectors, MeetTheDefinition) {
  const auto reference = definition(kernel());
  const double rounding = kernel().precision == Precision::binary32 ? 0x1p-24 : 0x1p-53;
  const double bound = std::min(relative_bound(kernel().precision), 4 * rounding);
  const int rounds = kernel().points > 1000 ? 1 : 4;  // a long vector is enough, and slow in binary128
  for (int round = 0; round < rounds; ++round) {
    const Array src = random_input();
    const double magnitudes = magnitude(*reference, src);
    const std::vector<Wide> expected = transform(*reference, src, kernel().written);
    const Array dst = separate(src, XFM_SCALE_NONE);
    for (int out = 0; out < dst.count(); ++out) {
      const auto error = static_cast<double>(Wide{dst[out]} - expected[static_cast<std::size_t>(out)]);
      ASSERT_LE(std::abs(error), bound * magnitudes) << "round " << round << ", scalar " << out;
    }
  }
}

XFM_FOR_ALL_KERNELS(RandomVectors);

}  // namespace
}  // namespace xfm::test
