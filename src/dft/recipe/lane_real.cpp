#include "src/dft/recipe/lane_real.h"

#include <algorithm>
#include <stdexcept>

#include "gen/math/number.h"
#include "src/dft/recipe/rules.h"

namespace xfm::dft {

using gen::times_i;
using gen::Tree;

Points LaneReal::transform(const Tree& tree, const Points& x) const {
  const bool real = std::all_of(x.begin(), x.end(), [](const Complex& z) { return z.is_real(); });
  if (!real && (tree.rule == "CT" || tree.rule == "RS")) return by_halves(tree, x);
  if (tree.is_number()) return block(tree.number, x);
  if (tree.rule == "D") return direct(x);
  if (tree.rule == ",") return dft4(x);
  if (tree.rule == "SR") return split_radix(x);
  if (tree.rule == "RS") return rader(tree.args.back(), x);
  if (tree.rule == "PFA" || tree.rule == "PFA*" || tree.rule == "CT") return two_stages(tree, x);
  throw std::invalid_argument("no lane-real rule " + tree.rule);
}

// Where only real sequences have symmetry to use: the P halves and the Q halves apart, joined by linearity.
Points LaneReal::by_halves(const Tree& tree, const Points& x) const {
  Points p, q;
  for (const Complex& z : x) {
    p.push_back({z.p, {}});
    q.push_back({z.q, {}});
  }
  Points out = transform(tree, q);
  for (Complex& z : out) z = times_i(z);
  if (std::all_of(x.begin(), x.end(), [](const Complex& z) { return z.p.absent(); })) return out;
  const Points of_p = transform(tree, p);
  for (std::size_t k = 0; k < out.size(); ++k) out[k] = of_p[k] + out[k];
  return out;
}

Points LaneReal::block(int length, const Points& x) const {
  const bool real = std::all_of(x.begin(), x.end(), [](const Complex& z) { return z.is_real(); });
  switch (length) {
    case 2:
      return dft2(x);
    case 3:
      return dft3(x);
    case 4:
      return dft4(x);
    case 5:
      return dft5(x, choices_.five(fives_++, real, transposed_));
    case 7:
    case 11:
      return direct(x);
    default:
      if (!gen::is_prime(length)) throw std::invalid_argument("no block of length " + std::to_string(length));
      return transform({"RS", 0, {gen::parse_tree(choices_.tree(length - 1))}}, x);
  }
}

}  // namespace xfm::dft
