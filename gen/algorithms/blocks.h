// Base blocks: the short transforms that all longer ones are put together from. Forward sign throughout.
#pragma once

#include "gen/network/complex.h"

namespace xfm::gen {

/// The forms of the length-5 block; they differ in rounding and cost only.
enum class Five {
  outer_first,    ///< X0 = (x0 + a1) + a2, eight products a part
  inner_first,    ///< X0 = (a1 + a2) + x0, eight products a part: the symmetric scheme
  six_products,   ///< the sum and the difference of the cosines share their products: six a part
  five_products,  ///< and the rotation of the sines takes three: five a part
};

/// Where x0 stands in the sums of the symmetric scheme.
enum class Centre {
  inner,  ///< first in t_k; X0 = x0 + (a1 + (a2 + ..))
  outer,  ///< first in t_k; X0 = ((x0 + a1) + a2) + ..
  last,   ///< last, X0 = x0 + ((a1 + a2) + ..); sums are linear combinations with a positive term in front
};

Points dft2(const Points& x);
Points dft4(const Points& x);
Points dft5(const Points& x, Five form);

/// The symmetric scheme for an odd length n, h = (n-1)/2: with a_j = x_j + x_(n-j), b_j = x_j - x_(n-j),
///   t_k = x0 + sum_j cos(2 pi j k/n) a_j,  u_k = sum_j sin(2 pi j k/n) b_j,  X_k, X_(n-k) = t_k -+ i u_k.
/// `order` is that of the bins in the transposed network, the reverse of that in which they are formed here.
Points direct(const Points& x, Centre centre, const Sequence<int>& order);
Points direct(const Points& x, Centre centre);

}  // namespace xfm::gen
