// What becomes of linear combinations of products alone in a draft.
#pragma once

#include "gen/network/draft.h"

namespace xfm::gen {

/// One that is used once, by a single product, takes that product's constant into its own. Both constants are
/// multiplied out before they are rounded. Saves a multiplication and a rounding.
Draft merged(const Draft& draft);

/// Merges only what two products share: where u + v and u - v are multiplied by the same constant and used in
/// no other way, u and v take it.
Draft merged_pairs(const Draft& draft);

/// What additions and subtractions alone use stays in binary64 through them: one rounding instead of two, at
/// equal counts.
Draft unrounded(const Draft& draft);

}  // namespace xfm::gen
