// The three packed layouts of a real sequence's spectrum, as address maps.
#pragma once

#include "gen/network/network.h"

namespace xfm::real {

enum class Layout { ccs, pack, perm };

/// "CCS", "Pack", "Perm".
const char* name_of(Layout layout);

/// Elements of an array of the layout.
int size_of(Layout layout, int length);

/// Where the real (part 0) or imaginary (part 1) half of bin k is. Bin 0, and bin N/2 of an even N, have an
/// imaginary half in CCS alone: a stored zero.
int element(Layout layout, int length, int k, int part);

/// The stored zeros.
gen::PerLane zeros(Layout layout, int length);

}  // namespace xfm::real
