// The public header of the lookup, which is written from the list of families.
#pragma once

#include <string>

namespace xfm {

/// From its hand-written frame (which holds the line @LOOKUPS@).
std::string header_of_lookup(const std::string& frame);

}  // namespace xfm
