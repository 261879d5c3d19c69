// The breakdown of every real length, fixed in advance: data only.
#pragma once

#include <span>

#include "src/real/recipe/layouts.h"

namespace xfm::real {

struct Breakdown {
  const char* tree;
  int adds, mults;  ///< real operations without the factor: a kernel costs that much or less
};

/// Forward trees read from the samples to the bins, inverse ones from the bins to the samples. A number is a
/// block of that length or stands for its row; a x b Good-Thomas, a * b Cooley-Tukey, R(g, L) Rader with root
/// g.
struct Row {
  int length;
  Breakdown forward, inverse;
};

std::span<const Row> table();

/// The row of a length; throws std::out_of_range if there is none.
const Row& row(int length);

/// Whether numbers of this length stand for a block.
bool is_block(int length, bool forward);

/// The stages of length L = N-1 of a Rader transform, where they differ from the rows of L, and the skew
/// stage of a forward one, where it differs from that of the half length.
struct RaderStage {
  int length;
  const char* there;    ///< forward: from the samples
  const char* closing;  ///< inverse: to the samples
  const char* skew;
};
RaderStage rader_stage(int length);

/// The plan whose primitive roots and orders of half-length stages have the lowest rounding errors in
/// binary32, found by trying some hundreds; null where the row's own plan is as good.
const char* plan_of_least_error(bool forward, int length);

/// Inverse kernels of one layout whose direct blocks sum their bins in an order of their own.
struct BlockOrder {
  int length;
  Layout layout;
  int block;
  const char* order;
};
std::span<const BlockOrder> block_orders();

}  // namespace xfm::real
