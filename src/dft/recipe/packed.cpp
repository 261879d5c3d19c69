#include "src/dft/recipe/packed.h"

#include <algorithm>
#include <map>

#include "src/dft/recipe/lane_real.h"
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
  if (tree.rule == "B") return bluestein(tree, x, direction);
  const int length = length_of(tree);
  return each(
      x, [&](const Points& z) { return LaneReal(choices_).block(length, z); }, direction);
}

// The block on all instances, as many at a time as there are lanes. Instances whose inputs are zero at the
// same places go together, so that a block computes nothing with zeros. The blocks are forward; an inverse
// one is the exchange of real and imaginary parts around it, or the conjugate of its pairs (P, Q) in the
// whole form.
Batch Packed::each(const Batch& x, const Block& block, Direction direction) {
  Batch out(x.size());
  for (const std::vector<std::size_t>& group : groups(x)) {
    const bool exchange = direction == Direction::inverse && form_ == Form::planar;
    Points inputs;
    for (std::size_t j = 0; j < x[group[0]].size(); ++j) {
      std::vector<Element> elements(group.size());
      std::transform(group.begin(), group.end(), elements.begin(), [&](std::size_t i) { return x[i][j]; });
      const Complex z = elements[0].absent() ? Complex{} : lanes_.gather(elements, form_);
      inputs.push_back(exchange ? exchanged(z) : z);
    }
    for (const Complex& z : block(inputs)) {
      const Complex turned = exchange ? exchanged(z) : direction == Direction::inverse ? conjugate(z) : z;
      const std::vector<Element> elements = lanes_.scatter(turned, group.size(), form_);
      for (std::size_t l = 0; l < group.size(); ++l) out[group[l]].push_back(elements[l]);
    }
  }
  return out;
}

// Instances of the same pattern of zeros, in groups that fill the lanes.
std::vector<std::vector<std::size_t>> Packed::groups(const Batch& x) const {
  std::vector<std::vector<std::size_t>> groups;
  std::map<std::vector<bool>, std::size_t> open;
  for (std::size_t i = 0; i < x.size(); ++i) {
    std::vector<bool> pattern;
    for (const Element& e : x[i]) pattern.push_back(e.absent());
    const auto found = open.find(pattern);
    if (found != open.end() && groups[found->second].size() < lanes_.instances(form_)) {
      groups[found->second].push_back(i);
    } else {
      open[pattern] = groups.size();
      groups.push_back({i});
    }
  }
  return groups;
}

}  // namespace xfm::dft
