// The factors of the family.
#pragma once

#include "src/frame/contract.h"

namespace xfm::wht {

/// 1/N, and 1/sqrt(N) as the quotient of 1 by the rounded root: powers of two, and at odd orders 1/sqrt(2)
/// times a power of two. In binary64 that quotient is not the nearest value but the one below.
template <class T, int order, int lanes>
constexpr Factors<T, lanes> make_factors() {
  constexpr T half_root =
      sizeof(T) == sizeof(float) ? static_cast<T>(0x1.6a09e6p-1F) : static_cast<T>(0x1.6a09e667f3bccp-1);
  constexpr T by_n = T{1} / (1 << order);
  constexpr T by_sqrt_n = (order % 2 == 0 ? T{1} : half_root) / (1 << order / 2);
  return {by_n, by_n, by_sqrt_n};
}

}  // namespace xfm::wht
