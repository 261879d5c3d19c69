// The C library's allocation functions, replaced by ones that count and that can fail. The core and the C++
// library call them. They are linked only where a program asks for them: xfm_test_counted_malloc.
#pragma once

// Sanitizers replace the same functions.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define XFM_COUNTS_ALLOCATIONS 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer) || __has_feature(memory_sanitizer)
#define XFM_COUNTS_ALLOCATIONS 0
#endif
#endif
#ifndef XFM_COUNTS_ALLOCATIONS
#define XFM_COUNTS_ALLOCATIONS 1
#endif

namespace xfm::test {

struct Allocations {
  long asked = 0;     ///< failed ones included
  long given = 0;     ///< blocks
  long released = 0;  ///< blocks
};

/// So far.
const Allocations& allocations();

/// The allocation with this number fails, where 0 is the next one. Negative: none does.
void fail_allocation(long number);
/// All of them fail, until fail_allocation() says otherwise.
void fail_all_allocations();

}  // namespace xfm::test
