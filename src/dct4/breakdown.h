// How a length breaks down, and the memory of its plan: N = r m, where r residues fold into m / 2 spectrum
// classes each; a fold length m above the longest leaf splits again.
#pragma once

#include <cstdint>

#include "xfm.h"

namespace xfm::dct4 {

/// Residues and classes are taken in groups, whose elements are side by side in tables and work areas. The
/// size of a group is part of the plan's format: it is the same on every target, whatever the registers are.
constexpr std::uint32_t group_bytes = 16;
template <class T>
constexpr std::int32_t group_size = static_cast<std::int32_t>(group_bytes / sizeof(T));

/// The radix that divides a value, 2 to 32, or 0 if there is none. Where a radix does not divide it, the next
/// smaller one is tried.
std::int32_t radix_rule(std::int32_t value);

/// The place of a value among first, 2 first, 4 first, ... up to last, counted from 1; otherwise 0.
constexpr std::int32_t place_among(std::int32_t first, std::int32_t last, std::int32_t value) {
  std::int32_t place = 1;
  for (std::int32_t power = first; power <= last; power *= 2, ++place)
    if (power == value) return place;
  return 0;
}

/// 1 to 5 for N = 2 .. 32, which run in one straight-line kernel; 0 for any other.
constexpr std::int32_t base_kind(std::int32_t length) { return place_among(2, 32, length); }

/// 1 to 6 for fold lengths 2 .. 64, which are straight-line; 0 for any other.
constexpr std::int32_t leaf_kind(std::int32_t fold) { return place_among(2, 64, fold); }

/// Bytes that a state of this length needs. A length that is refused leaves size as it was.
template <class T>
xfmStatus get_size(std::int32_t length, std::int32_t* size);

}  // namespace xfm::dct4
