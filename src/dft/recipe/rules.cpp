#include "src/dft/recipe/rules.h"

#include <algorithm>

namespace xfm::dft {

using gen::Tree;

gen::ComplexConstant root(gen::Turn t, Direction direction) {
  return turned(gen::root_of_unity(t), direction);
}

gen::ComplexConstant turned(const gen::ComplexConstant& w, Direction direction) {
  return direction == Direction::forward ? w : gen::ComplexConstant{w.re, -w.im};
}

int length_of(const Tree& tree) {
  if (tree.is_number()) return tree.number;
  if (tree.rule == "R" || tree.rule == "RS") return length_of(tree.args.back()) + 1;
  int product = 1;
  for (const Tree& arg : tree.args) product *= length_of(arg);
  return product;
}

Tree first_of(const Tree& tree) { return tree.args.front(); }

Tree rest_of(const Tree& tree) {
  if (tree.args.size() == 2) return tree.args.back();
  return {tree.rule, 0, {tree.args.begin() + 1, tree.args.end()}};
}

bool uses_rader_split(const Tree& tree) {
  if (tree.is_number()) return tree.number >= 13;
  return tree.rule == "RS" || std::any_of(tree.args.begin(), tree.args.end(), uses_rader_split);
}

gen::TwoStages stages_of(const Tree& tree) {
  return {length_of(first_of(tree)), length_of(rest_of(tree)), tree.rule.starts_with("PFA")};
}

}  // namespace xfm::dft
