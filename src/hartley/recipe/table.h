// The breakdown of every Hartley length, settled in advance: data only.
#pragma once

#include <array>
#include <span>

namespace xfm::hartley {

/// What the network does first: sums and differences of x[j] and x[N-j] and nothing else with them, or small
/// transforms over inputs at a regular distance.
enum class Input { none, fold, groups };

/// What it does last: sums and differences that give H[k] and H[N-k], or H[k] and H[k+N/2], or groups of r
/// outputs of a residue class modulo N/r (of a coset of the subgroup of order r, for a prime N) in pairs, all
/// but one.
enum class Output { conjugate, half, radix };

/// forward: a real transform, then H[k] = Re X[k] - Im X[k]. folded: the fold makes half a Hermitian spectrum
/// of the input, and an inverse real transform, the transpose of the plan, does the rest.
enum class Design { forward, folded };

/// What becomes of products on the way (gen/passes/merging.h).
enum class Products {
  merged,
  merged_in_pairs,
  unrounded,  ///< merged, and in binary64 through the additions behind them, where random data passed the
              ///< bound of accuracy in one vector of some hundreds
};

struct Row {
  int length;
  Input input;
  std::array<int, 5> groups;  ///< sizes m of sets of inputs that partition them and meet in one value each
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
