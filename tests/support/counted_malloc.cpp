#include "tests/support/counted_malloc.h"

#include <cerrno>
#include <cstddef>

namespace xfm::test {
namespace {

Allocations counts;
long until_failure = -1;
bool exhausted = false;

/// Counts a request; whether it is to be served.
[[maybe_unused]] bool serve() {
  ++counts.asked;
  return !exhausted && until_failure-- != 0;
}

[[maybe_unused]] void* given(void* block) {
  if (block != nullptr) ++counts.given;
  return block;
}

}  // namespace

const Allocations& allocations() { return counts; }

void fail_allocation(long number) {
  exhausted = false;
  until_failure = number;
}

void fail_all_allocations() { exhausted = true; }

}  // namespace xfm::test

#if XFM_COUNTS_ALLOCATIONS
// glibc's own entries stand behind the names that a program may replace.
// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming,readability-inconsistent-declaration-parameter-name)
extern "C" {
void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void* __libc_memalign(std::size_t, std::size_t);
void __libc_free(void*);

void* malloc(std::size_t size) {
  return xfm::test::serve() ? xfm::test::given(__libc_malloc(size)) : nullptr;
}
void* calloc(std::size_t count, std::size_t size) {
  return xfm::test::serve() ? xfm::test::given(__libc_calloc(count, size)) : nullptr;
}
void* realloc(void* block, std::size_t size) {
  if (!xfm::test::serve()) return nullptr;
  if (block != nullptr) ++xfm::test::counts.released;
  return xfm::test::given(__libc_realloc(block, size));
}
void* aligned_alloc(std::size_t alignment, std::size_t size) {
  return xfm::test::serve() ? xfm::test::given(__libc_memalign(alignment, size)) : nullptr;
}
int posix_memalign(void** block, std::size_t alignment, std::size_t size) {
  void* const made = aligned_alloc(alignment, size);
  if (made != nullptr) *block = made;
  return made == nullptr ? ENOMEM : 0;
}
void free(void* block) {
  if (block != nullptr) ++xfm::test::counts.released;
  __libc_free(block);
}
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming,readability-inconsistent-declaration-parameter-name)
#endif
