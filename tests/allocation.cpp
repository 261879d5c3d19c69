// Kernels allocate nothing if the caller provides the work buffer of those that need one. This program
// replaces the allocation functions of the C library, which the core library calls, by ones that count.
#include <cstdlib>

#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"
#include "xfmcore.h"

// The address sanitizer replaces the same functions.
#if defined(__SANITIZE_ADDRESS__)
#define XFM_COUNT_ALLOCATIONS 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define XFM_COUNT_ALLOCATIONS 0
#endif
#endif
#ifndef XFM_COUNT_ALLOCATIONS
#define XFM_COUNT_ALLOCATIONS 1
#endif

namespace {
long allocations = 0;
}

#if XFM_COUNT_ALLOCATIONS
// glibc's own entries stand behind the names that a program may replace.
// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming,readability-inconsistent-declaration-parameter-name)
extern "C" {
void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void* __libc_memalign(std::size_t, std::size_t);

void* malloc(std::size_t size) {
  ++allocations;
  return __libc_malloc(size);
}
void* calloc(std::size_t count, std::size_t size) {
  ++allocations;
  return __libc_calloc(count, size);
}
void* realloc(void* block, std::size_t size) {
  ++allocations;
  return __libc_realloc(block, size);
}
void* aligned_alloc(std::size_t alignment, std::size_t size) {
  ++allocations;
  return __libc_memalign(alignment, size);
}
int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
  ++allocations;
  *block = __libc_memalign(alignment, size);
  return *block == nullptr;
}
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming,readability-inconsistent-declaration-parameter-name)
#endif

namespace xfm::test {
namespace {

/// Counted right around the call, since the rest of a test may allocate.
long allocations_of(const Kernel& kernel, const void* src, void* dst, std::int32_t flag, void* buffer) {
  long count = 0;
  attempt([&] {
    const long before = allocations;
    const xfmStatus status =
        buffer == nullptr ? kernel.call(src, dst, flag) : kernel.call_with_buffer(src, dst, flag, buffer);
    count = allocations - before;
    return status;
  });
  return count;
}

class Allocation : public KernelTest {
 protected:
  void SetUp() override {
    if (!XFM_COUNT_ALLOCATIONS) GTEST_SKIP() << "the address sanitizer owns malloc";
  }
};

TEST_P(Allocation, None) {
  for (int offset = 0; offset < 16; offset += step()) {
    Array src(kernel().precision, kernel().read, offset), dst = output();
    Array buffer(kernel().precision, kernel().buffer_bytes / step());
    void* const work = kernel().buffer_bytes > 0 ? buffer.data() : nullptr;
    random.fill(src, Kind::ordinary);
    for (const std::int32_t flag : {1, 2, 4, 8, 3})
      ASSERT_EQ(allocations_of(kernel(), src.data(), dst.data(), flag, work), 0)
          << "flag " << flag << ", offset " << offset;
  }
}

XFM_FOR_ALL_KERNELS(Allocation);

// The counter sees an allocation of the core library, so that a zero above means something.
TEST(AllocationCounter, SeesTheCoreLibrary) {
  if (!XFM_COUNT_ALLOCATIONS) GTEST_SKIP() << "the address sanitizer owns malloc";
  const long before = allocations;
  void* const block = xfmMalloc(10);
  const long after = allocations;
  xfmFree(block);
  ASSERT_NE(block, nullptr);
  EXPECT_EQ(after, before + 1);
}

}  // namespace
}  // namespace xfm::test
