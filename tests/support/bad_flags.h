// Flags that no function accepts.
#pragma once

#include <cstdint>
#include <limits>
#include <vector>

#include "xfm.h"

namespace xfm::test {

inline bool is_flag(std::int64_t value) { return value == 1 || value == 2 || value == 4 || value == 8; }

/// All others near zero, the extremes, and the valid flags with one more bit set: a check of the low bits
/// alone, or a shift by the flag, accepts some of these.
inline std::vector<std::int32_t> bad_flags() {
  std::vector<std::int32_t> flags = {std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::max()};
  for (std::int32_t value = -70; value <= 70; ++value)
    if (!is_flag(value)) flags.push_back(value);
  for (int bit = 4; bit < 32; ++bit)
    for (const std::uint32_t valid : {0U, 1U, 2U, 4U, 8U})
      flags.push_back(static_cast<std::int32_t>(valid | 1U << bit));
  return flags;
}

}  // namespace xfm::test
