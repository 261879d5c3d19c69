#include "src/wht/recipe/bounds.h"

#include <cmath>

namespace xfm::wht {

// By induction over the stages. However an order is cut into passes, every output is the sum of all inputs
// with signs, added up in a tree: each input goes through one rounding a stage, so with k stages its
// coefficient is off by no more than (1 + u)^k - 1 (Higham 2002, lemma 3.1), and the sum of the magnitudes of
// N inputs is at most sqrt(N) |x|_2. A factor adds the rounding of a product, and the two of a stored root.
// Sums do not underflow.
gen::Bound bound(int order, gen::Precision precision, gen::Factor factor) {
  const double u = gen::unit_roundoff(precision), n = std::ldexp(1, order);
  const bool scales = factor == gen::Factor::any;
  const int roundings = order + (scales ? 3 : 0);
  constexpr double evaluation = 1 + 0x1p-40;
  const double each = std::expm1(roundings * std::log1p(u)) / u * evaluation;
  return {.norm = each * std::sqrt(n), .unit = each * n, .underflow = scales ? 1.0 : 0.0};
}

}  // namespace xfm::wht
