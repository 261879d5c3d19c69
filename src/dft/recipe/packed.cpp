#include "src/dft/recipe/packed.h"

#include <algorithm>
#include <stdexcept>

#include "src/dft/recipe/rules.h"

namespace xfm::dft {

using gen::conjugate;
using gen::Element;
using gen::exchanged;
using gen::Form;
using gen::Tree;

Batch Packed::transform(const Tree& tree, const Batch& x, Direction direction) {
  if (tree.rule == "PFA" || tree.rule == "CT") return two_stages(tree, x, direction);
  if (tree.rule == "R") return rader(tree.args.back(), x, direction);
  const Block block = [&]() -> Block {
    switch (length_of(tree)) {
      case 2:
        return [](const Points& z, Five) { return dft2(z); };
      case 3:
        return [](const Points& z, Five) { return dft3(z); };
      case 4:
        return [](const Points& z, Five) { return dft4(z); };
      case 5:
        return [](const Points& z, Five five) { return dft5(z, five); };
      case 7:
      case 11:
        return [](const Points& z, Five) { return direct(z); };
      default:
        throw std::invalid_argument("no packed rule for " + to_string(tree));
    }
  }();
  return each(x, block, direction);
}

// The block on all instances, as many at a time as there are lanes. The blocks are forward; an inverse one is
// the exchange of real and imaginary parts around it, or the conjugate of its pairs (P, Q) in the whole form.
Batch Packed::each(const Batch& x, Block block, Direction direction) {
  Batch out(x.size());
  for (std::size_t start = 0; start < x.size();) {
    const std::size_t count = std::min(lanes_.instances(form_), x.size() - start);
    const bool exchange = direction == Direction::inverse && form_ == Form::split;
    Points inputs;
    for (std::size_t j = 0; j < x[start].size(); ++j) {
      std::vector<Element> group;
      for (std::size_t l = 0; l < count; ++l) group.push_back(x[start + l][j]);
      const Complex z = lanes_.gather(group, form_);
      inputs.push_back(exchange ? exchanged(z) : z);
    }
    for (const Complex& z : block(inputs, five_)) {
      const Complex turned = exchange ? exchanged(z) : direction == Direction::inverse ? conjugate(z) : z;
      const std::vector<Element> elements = lanes_.scatter(turned, count, form_);
      for (std::size_t l = 0; l < count; ++l) out[start + l].push_back(elements[l]);
    }
    start += count;
  }
  return out;
}

}  // namespace xfm::dft
