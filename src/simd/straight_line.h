// What straight-line code needs, whatever its registers are.
#pragma once

#include <type_traits>
#include <utility>

/// Marks the functions and lambdas that a body is made of, which the compiler must inline. An unoptimised
/// build does not: its speed does not matter, and forced inlining would make it take minutes.
#ifdef __OPTIMIZE__
#define XFM_INLINE __attribute__((always_inline))
#else
#define XFM_INLINE
#endif

/// A constant register in read-only memory, shared by all kernels of the library.
#define XFM_CONSTANT __attribute__((visibility("hidden"))) const

namespace xfm {

/// step(0), step(1), .. step(count - 1) in this order, each with its number as a constant.
template <int count, class Step>
XFM_INLINE inline void unrolled(const Step& step) {
  [&]<int... i>(std::integer_sequence<int, i...>) XFM_INLINE {
    (step(std::integral_constant<int, i>{}), ...);
  }
  (std::make_integer_sequence<int, count>{});
}

}  // namespace xfm
