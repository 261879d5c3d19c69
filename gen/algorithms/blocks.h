// Base blocks: the short transforms that all longer ones are built from. All have the forward sign.
#pragma once

#include "gen/network/complex.h"

namespace xfm::gen {

/// The forms of the length-5 block. They differ only in rounding and cost.
enum class Five {
  outer_first,    ///< X0 = (x0 + a1) + a2, eight products for each part
  inner_first,    ///< X0 = (a1 + a2) + x0, eight products for each part
  six_products,   ///< cosines by their mean and half their difference: six products for each part
  five_products,  ///< and sines as a rotation of three products: five products for each part
};

/// Where x0 enters the sums of the symmetric scheme.
enum class Centre {
  first,  ///< first in t_k; X0 = x0 + (a1 + (a2 + ..))
  last,   ///< last in t_k, X0 = x0 + ((a1 + a2) + ..); linear combinations that begin with a positive term
};

Points dft2(const Points& x);
Points dft3(const Points& x);
Points dft4(const Points& x);
Points dft5(const Points& x, Five form);

/// The symmetric scheme for an odd length n, h = (n-1)/2: with a_j = x_j + x_(n-j), b_j = x_j - x_(n-j),
///   t_k = x0 + sum_j cos(2 pi j k/n) a_j,  u_k = sum_j sin(2 pi j k/n) b_j,  X_k, X_(n-k) = t_k -+ i u_k.
/// `order` is the order of the bins in the transposed network; here they are formed in reverse.
Points direct(const Points& x, Centre centre, const Sequence<int>& order);
Points direct(const Points& x, Centre centre);

}  // namespace xfm::gen
