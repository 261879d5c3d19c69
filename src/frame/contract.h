// What every kernel does before its body runs: the entry tests in their fixed order, and the lookup of the
// factor by the flag.
#pragma once

#include <cstdint>

#include "xfm.h"

/// The body of a packed kernel: inlined into two functions, one for aligned and one for unaligned memory.
#define XFM_BODY __attribute__((always_inline)) static inline

/// The unaligned variant of a packed kernel: a function of its own, neither exported nor merged into its
/// caller.
#define XFM_UNALIGNED_VARIANT __attribute__((noinline, visibility("hidden")))

namespace xfm {

/// The row of a flag in a kernel's factors. The valid flags are 1, 2, 4 and 8, in the rows 0, 1, 3 and 7.
inline std::uint32_t row_of(std::int32_t flag) { return static_cast<std::uint32_t>(flag) - 1; }

/// One comparison and one bit test separate the valid flags from all others.
inline bool valid_flag(std::int32_t flag) {
  constexpr std::uint32_t rows = 1U << 0 | 1U << 1 | 1U << 3 | 1U << 7;
  return row_of(flag) < XFM_SCALE_NONE && (rows >> row_of(flag) & 1U) != 0;
}

/// The status of these arguments: the pointers are tested first, the flag last.
inline xfmStatus check(const void* src, const void* dst, std::int32_t flag) {
  if (src == nullptr || dst == nullptr) [[unlikely]]
    return xfmStsNullPtr;
  if (!valid_flag(flag)) [[unlikely]]
    return xfmStsBadScale;
  return xfmStsOk;
}

/// The factors of a kernel, one row for each valid flag, repeated for every lane: the flag leads to its
/// factor without arithmetic or a branch. The rows in between are never read.
template <class T, int lanes>
struct Factors {
  alignas(lanes * sizeof(T)) T rows[XFM_SCALE_NONE][lanes];

  constexpr Factors(T forward_by_n, T inverse_by_n, T by_sqrt_n) : rows{} {
    for (int l = 0; l < lanes; ++l) {
      rows[XFM_SCALE_FWD_BY_N - 1][l] = forward_by_n;
      rows[XFM_SCALE_INV_BY_N - 1][l] = inverse_by_n;
      rows[XFM_SCALE_BY_SQRT_N - 1][l] = by_sqrt_n;
      rows[XFM_SCALE_NONE - 1][l] = 1;
    }
  }

  const T* of(std::int32_t flag) const { return rows[row_of(flag)]; }
};

}  // namespace xfm
