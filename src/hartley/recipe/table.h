// The breakdown of every Hartley length, fixed in advance: data only.
#pragma once

#include <array>
#include <span>

namespace xfm::hartley {

/// What the network does first: only sums and differences of x[j] and x[N-j], or small transforms of inputs
/// at a regular distance.
enum class Input { none, fold, groups };

/// What it does last: sums and differences that give H[k] and H[N-k], or H[k] and H[k+N/2]; or, in each
/// residue class modulo N/r (for a prime N, each coset of the subgroup of order r), all but one of its r
/// outputs in pairs.
enum class Output { conjugate, half, radix };

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
  Input input;
  std::array<int, 5> groups;  ///< sizes m: sets of m inputs partition all, each with a value of just these
  Output output;
  int radix;
  int adds, mults;  ///< real operations without the factor
  Design design;
  const char* plan;  ///< a tree; a number is a block or the plan of that length
  Products products = Products::merged;
};

std::span<const Row> table();

/// The row of a length; throws std::out_of_range if there is none.
const Row& row(int length);

/// The plan that stands for a number inside others, or null for a block.
const char* plan_of(int length);

}  // namespace xfm::hartley
