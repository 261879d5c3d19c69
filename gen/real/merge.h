// Merging of constants in a draft: what a statement of products alone yields, used once and by a single
// product, takes that product's constant into its own. Both constants are multiplied out before they are
// rounded. Saves a multiplication and a rounding.
#pragma once

#include "gen/real/draft.h"

namespace xfm::gen::real {

Draft merged(const Draft& draft);

}  // namespace xfm::gen::real
