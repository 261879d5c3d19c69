#include "src/dft/recipe/packed.h"

#include <algorithm>
#include <stdexcept>

#include "src/dft/recipe/rules.h"

namespace xfm::dft {

using gen::Element;
using gen::Tree;

Batch Packed::transform(const Tree& tree, const Batch& x) {
  if (tree.rule == "PFA" || tree.rule == "CT") return two_stages(tree, x);
  if (tree.rule == "R") return rader(tree.args.back(), x);
  const int length = length_of(tree);
  // Two instances or one leave half of the lanes idle: a block with work side by side inside is taken apart.
  if (2 * static_cast<int>(x.size()) <= lanes_.width()) {
    if (length == 4) return four_flat(x);
    if (length == 5 || length == 7 || length == 11) return direct_flat(x);
  }
  switch (length) {
    case 2:
      return each(x, [](const Points& z, Five) { return dft2(z); });
    case 3:
      return each(x, [](const Points& z, Five) { return dft3(z); });
    case 4:
      return each(x, [](const Points& z, Five) { return dft4(z); });
    case 5:
      return each(x, [](const Points& z, Five five) { return dft5(z, five); });
    case 7:
    case 11:
      return each(x, [](const Points& z, Five) { return direct(z); });
    default:
      throw std::invalid_argument("no packed rule for " + to_string(tree));
  }
}

// The block on all instances, as many at a time as there are lanes.
Batch Packed::each(const Batch& x, Block block) {
  Batch out(x.size());
  const auto width = static_cast<std::size_t>(lanes_.width());
  for (std::size_t start = 0; start < x.size(); start += width) {
    const std::size_t count = std::min(width, x.size() - start);
    Points inputs;
    for (std::size_t j = 0; j < x[start].size(); ++j) {
      std::vector<Element> group;
      for (std::size_t l = 0; l < count; ++l) group.push_back(x[start + l][j]);
      inputs.push_back(lanes_.gather(group));
    }
    for (const Complex& z : block(inputs, five_)) {
      for (std::size_t l = 0; l < count; ++l)
        out[start + l].push_back({.split = z, .lane = static_cast<int>(l)});
    }
  }
  return out;
}

}  // namespace xfm::dft
