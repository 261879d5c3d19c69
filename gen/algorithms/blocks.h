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

Points dft2(const Points& x);
Points dft3(const Points& x);
Points dft4(const Points& x);
Points dft5(const Points& x, Five form);

/// The symmetric scheme for an odd length n, h = (n-1)/2: with a_j = x_j + x_(n-j), b_j = x_j - x_(n-j),
///   t_k = x0 + sum_j cos(2 pi j k/n) a_j,  u_k = sum_j sin(2 pi j k/n) b_j,  X_k, X_(n-k) = t_k -+ i u_k.
/// Rounded one by one, the sums begin with x0, and X_0 = x0 + (a_1 + (a_2 + ..)). Linear combinations end
/// with it and begin with a positive term, and X_0 = x0 + ((a_1 + a_2) + ..). `order` is the order of the
/// bins in the transposed network, if not the usual one; here they are formed in reverse.
Points direct(const Points& x, Rounding rounding, Sequence<int> order = {});

/// A power of two by split radix (split_radix.cpp). Left open, without the last butterfly, that of outputs 0
/// and N/2: its two operands take their places.
Points split_radix(const Points& x, bool open = false);

}  // namespace xfm::gen
