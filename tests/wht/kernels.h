// The kernels of the family as test parameters, and the tables that describe them.
#pragma once

#include <string_view>
#include <vector>

#include "tests/support/kernel_test.h"

namespace xfm::test {

constexpr int first_order_with_buffer = 8;

inline std::vector<Kernel> walsh_hadamard_kernels() {
  std::vector<Kernel> found;
  for (const Kernel& kernel : catalogue::kernels())
    if (std::string_view(kernel.family) == "WHT") found.push_back(kernel);
  return found;
}

/// Of the orders 1 to 13, in binary32 and in binary64.
constexpr std::uint32_t buffer_sizes[2][13] = {
    {0, 0, 0, 0, 0, 0, 0, 1024, 2048, 4096, 8192, 18432, 34816},
    {0, 0, 0, 0, 0, 0, 0, 2048, 4096, 8192, 18432, 34816, 73728},
};

inline std::uint32_t buffer_size(const Kernel& kernel) {
  return buffer_sizes[kernel.precision == Precision::binary64][kernel.length - 1];
}

inline xfmStatus run(const Kernel& kernel, const void* src, void* dst, std::int32_t flag, void* buffer) {
  return attempt([&] { return kernel.call_with_buffer(src, dst, flag, buffer); });
}

}  // namespace xfm::test

#define XFM_FOR_WALSH_HADAMARD_KERNELS(suite)                                                  \
  INSTANTIATE_TEST_SUITE_P(All, suite, testing::ValuesIn(xfm::test::walsh_hadamard_kernels()), \
                           xfm::test::ByName())
