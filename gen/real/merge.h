// Merging of constants in a draft: what a statement of products alone yields, used once and by a single
// product, takes that product's constant into its own. Both constants are multiplied out before they are
// rounded. Saves a multiplication and a rounding.
#pragma once

#include "gen/real/draft.h"

namespace xfm::gen::real {

Draft merged(const Draft& draft);

/// Merges only what two products share: where u + v and u - v are multiplied by the same constant and used in
/// no other way, u and v, statements of products alone, take it.
Draft merged_pairs(const Draft& draft);

}  // namespace xfm::gen::real
