// In the forward kernels of binary32 the factor follows the value: where an output is a linear combination in
// binary64, the factor multiplies it there and the result is rounded to binary32 once.
#include <set>

#include "tests/support/kernel_test.h"
#include "tests/support/layout.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

class ScaleFollowsTheValue : public KernelTest {
 protected:
  /// The scalars of dst that for some data differ from the rounded product of the rounded unscaled output and
  /// the factor.
  std::set<int> wide_outputs();

  static std::set<int> all_outputs_but(const std::set<int>& bins) {
    const auto all = cells(real_family(kernel())->layout, kernel().length);
    std::set<int> outputs;
    for (int e = 0; e < kernel().written; ++e)
      if (!bins.contains(all[static_cast<std::size_t>(e)].bin)) outputs.insert(e);
    return outputs;
  }
};

// An extra rounding changes about one value in four.
std::set<int> ScaleFollowsTheValue::wide_outputs() {
  std::set<int> found;
  for (int round = 0; round < 150; ++round) {
    const Array src = random_input();
    const Array unscaled = separate(src, XFM_SCALE_NONE);
    for (const std::int32_t flag : {XFM_SCALE_FWD_BY_N, XFM_SCALE_BY_SQRT_N}) {
      const Array scaled = separate(src, flag);
      for (int e = 0; e < kernel().written; ++e)
        if (scaled[e] != rounded(kernel().precision, unscaled[e] * factor(kernel(), flag))) found.insert(e);
    }
  }
  return found;
}

TEST_P(ScaleFollowsTheValue, IntoTheLinearCombination) {
  const std::set<int> wide = wide_outputs();
  bool possible = false;
  for (int e = 0; e < kernel().written; ++e) {
    const bool may = may_scale_before_narrowing(kernel(), e);
    EXPECT_TRUE(may || !wide.contains(e)) << "element " << e;
    possible |= may;
  }
  EXPECT_EQ(!wide.empty(), possible);
}

// A direct block as the only stage, or the last one after a butterfly: every bin that is not a plain sum.
TEST_P(ScaleFollowsTheValue, InAllBinsOfADirectBlock) {
  const int n = kernel().length;
  std::set<int> sums = {0};
  if (n % 2 == 0) sums.insert(n / 2);
  if (std::set{3, 5, 7, 11, 14, 22}.contains(n)) {
    EXPECT_EQ(wide_outputs(), all_outputs_but(sums));
  }
}

std::vector<Kernel> forward_binary32_kernels() {
  std::vector<Kernel> kernels;
  for (const Kernel& kernel : catalogue::kernels()) {
    const RealFamily* const family = real_family(kernel);
    if (family != nullptr && family->forward && kernel.precision == Precision::binary32)
      kernels.push_back(kernel);
  }
  return kernels;
}

INSTANTIATE_TEST_SUITE_P(All, ScaleFollowsTheValue, testing::ValuesIn(forward_binary32_kernels()), ByName());

}  // namespace
}  // namespace xfm::test
