// Kernels on all kinds of data whose sums stay finite, since the bits of infinity minus infinity are open.
#pragma once

#include "tests/bits/data.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {

class FiniteDataTest : public KernelTest {
 protected:
  /// Calls check(src, flag) for some arrays of each kind and all flags, up to the first failure.
  template <class Check>
  void on_finite_data(Check check) {
    constexpr int rounds = 16;
    for (const Data& data : all_data()) {
      if (data.overflows) continue;
      for (int round = 0; round < rounds; ++round) {
        const Array src = draw(data, random, kernel().precision, kernel().read);
        for (const std::int32_t flag : flags)
          ASSERT_NO_FATAL_FAILURE(check(src, flag)) << data.name << " data, round " << round;
      }
    }
  }
};

}  // namespace xfm::test
