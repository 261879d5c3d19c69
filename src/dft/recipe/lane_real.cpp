#include "src/dft/recipe/lane_real.h"

#include <stdexcept>

#include "src/dft/recipe/rules.h"

namespace xfm::dft {

using gen::Tree;

LaneReal::LaneReal(int length) : five_(length == 10 ? Five::six_products : Five::outer_first) {}

Points LaneReal::transform(const Tree& tree, const Points& x) const {
  if (tree.is_number()) return block(tree.number, x);
  if (tree.rule == "D") return direct(x);
  if (tree.rule == ",") return dft4(x);
  if (tree.rule == "SR") return split_radix(x);
  if (tree.rule == "PFA" || tree.rule == "CT") return two_stages(tree, x);
  throw std::invalid_argument("no lane-real rule " + tree.rule);
}

Points LaneReal::block(int length, const Points& x) const {
  switch (length) {
    case 2:
      return dft2(x);
    case 3:
      return dft3(x);
    case 4:
      return dft4(x);
    case 5:
      return dft5(x, five_);
    case 7:
    case 11:
      return direct(x);
    default:
      throw std::invalid_argument("no lane-real block of length " + std::to_string(length));
  }
}

}  // namespace xfm::dft
