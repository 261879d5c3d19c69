// Calls that may fault: a stray access becomes a failure of the test that made the call, under the kernel's
// name, instead of the end of the program.
#pragma once

#include <gtest/gtest.h>

#include <functional>

#include "tools/catalogue.h"

namespace xfm::test {

/// What attempt returns after a fault; no function of the library returns it.
constexpr xfmStatus faulted = 0x0FA17ED;

/// Runs the call and returns its status; a memory fault in it is a test failure.
xfmStatus attempt(const std::function<xfmStatus()>& call);

inline xfmStatus run(const catalogue::Kernel& kernel, const void* src, void* dst, std::int32_t flag) {
  return attempt([&] { return kernel.call(src, dst, flag); });
}

inline xfmStatus run(const catalogue::Generic& generic, const void* src, void* dst, std::int32_t length,
                     std::int32_t flag) {
  return attempt([&] { return generic.call(src, dst, length, flag); });
}

/// Whether the call faults. For tests of the guards themselves.
bool faults(const std::function<void()>& call);

}  // namespace xfm::test
