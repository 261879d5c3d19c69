// Passes on drafts that merge linear combinations which consist of products alone.
#pragma once

#include "gen/network/draft.h"

namespace xfm::gen {

/// A combination whose only use is a single product takes that product's constant into its own. Constants are
/// multiplied out before they are rounded. This saves a multiplication and a rounding.
Draft merged(const Draft& draft);

/// Merges only in pairs: where u + v and u - v are multiplied by the same constant and used in no other way,
/// u and v take it.
Draft merged_pairs(const Draft& draft);

/// Combinations that only additions and subtractions use stay in binary64 through them: one rounding instead
/// of two, at equal counts.
Draft unrounded(const Draft& draft);

}  // namespace xfm::gen
