// The breakdown of every real length, fixed in advance, and the plan that follows from it.
#pragma once

#include <span>

#include "gen/algorithms/tree.h"
#include "src/real/recipe/real.h"

namespace xfm::real {

struct Breakdown {
  const char* tree;
  int adds, mults;  ///< real operations without the factor: a kernel costs that much or less
};

/// Forward trees read from the samples to the bins, inverse ones from the bins to the samples. A number
/// stands for its row, a block if that is the same number; a x b Good-Thomas, a * b Cooley-Tukey, R(g, L)
/// Rader with root g.
struct Row {
  int length;
  Breakdown forward, inverse;
};

/// The half of a length's row; throws std::out_of_range if there is none.
const Breakdown& breakdown(Direction direction, int length);

/// The stages of length L = N-1 of a Rader transform, where they differ from the rows of L, and the skew
/// stage of a forward one, where it differs from that of the half length.
struct RaderStage {
  int length;
  const char *forward = "", *inverse = "", *skew = "";
};
RaderStage rader_stage(int length);

/// The tree whose primitive roots and orders of half-length stages have the lowest rounding errors in
/// binary32, found by trying some hundreds; null where the row's own is as good.
const char* tree_of_least_error(Direction direction, int length);

/// Inverse kernels of one layout whose direct blocks sum their bins in an order of their own.
struct BlockOrder {
  int length;
  Layout layout;
  int block;
  const char* order;
};
std::span<const BlockOrder> block_orders();

/// A length's tree spelled out down to its blocks, in the order from samples to bins. The plan of an inverse
/// tree is the one whose network, transposed, runs the tree's stages in their order.
gen::Tree plan(Direction direction, Layout layout, int length, const gen::Tree& tree);

}  // namespace xfm::real
