// The breakdown of every Hartley length, fixed in advance: data only.
#pragma once

namespace xfm::hartley {

/// forward: a real transform, then H[k] = Re X[k] - Im X[k]. folded: the fold makes half a Hermitian spectrum
/// of the input, and an inverse real transform, the plan transposed, does the rest.
enum class Design { forward, folded };

/// How products are merged (gen/passes/merging.h).
enum class Products {
  merged,
  merged_in_pairs,
  unrounded,  ///< merged, and kept in binary64 through the additions that use them: without this, about one
              ///< random vector in some hundreds exceeds the error bound
};

struct Row {
  int length;
  int adds, mults;  ///< real operations without the factor
  Design design;
  const char* plan;  ///< a tree; a number is a block or the plan of that length
  Products products = Products::merged;
};

/// The row of a length; throws std::out_of_range if there is none.
const Row& row(int length);

/// The plan that stands for a number inside others, empty for a block.
const char* plan_of(int length);

}  // namespace xfm::hartley
