// The groups of a plan in registers. As many lie side by side as the target's registers hold; the lanes of
// each group compute what they would compute alone, so the width of a register changes no bit.
#pragma once

#include <cstddef>
#include <type_traits>

#include "src/dct4/breakdown.h"
#include "src/simd/wide.h"

namespace xfm::dct4 {

/// A register of this many groups.
template <class T, int groups>
using Groups = Vector<T, groups * group_size<T>>;

/// Groups in the widest register.
constexpr int widest = widest_register_bytes / group_bytes;

/// How registers reach tables and work areas, which start at multiples of 32 bytes.
using InState = std::conditional_t<unaligned_is_free, Unaligned, Aligned>;

/// Groups that start `step` elements apart, each at a multiple of its size.
template <class V>
XFM_INLINE inline V load_groups(const Element<V>* p, std::ptrdiff_t step) {
  using T = Element<V>;
  constexpr int groups = lanes_of<V> / group_size<T>;
  if constexpr (groups == 1) {
    return Aligned::load<V>(p);
  } else {
    using Half = Groups<T, groups / 2>;
    return joined(load_groups<Half>(p, step), load_groups<Half>(p + groups / 2 * step, step));
  }
}

template <std::ptrdiff_t value>
using Constant = std::integral_constant<std::ptrdiff_t, value>;

/// body(the number of groups in a register), for the widest register whose groups divide the count.
template <int groups = widest, class Body>
XFM_INLINE inline auto with_groups(std::int32_t count, const Body& body) {
  if constexpr (groups > 1)
    if (count % groups != 0) return with_groups<groups / 2>(count, body);
  return body(Constant<groups>());
}

}  // namespace xfm::dct4
