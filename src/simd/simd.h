// The registers of the target that is being compiled for, by the same names on every target.
#pragma once

#include XFM_VOCABULARY

namespace xfm {

inline constexpr bool unaligned_is_free = XFM_UNALIGNED_IS_FREE != 0;

}  // namespace xfm
