#include <algorithm>
#include <stdexcept>
#include <string>

#include "src/real/recipe/table.h"

namespace xfm::real {
namespace {

using gen::parse_tree;
using gen::Tree;

Tree plan(Direction direction, const Tree& tree);

Tree plan(Direction direction, int length) {
  const Tree tree = parse_tree(breakdown(direction, length).tree);
  return tree.is_number() ? tree : plan(direction, tree);
}

// R(g, L) with its forward and inverse transforms spelled out. The inverse ones run transposed, so they take
// the plans of the other direction.
Tree rader(Direction direction, const Tree& tree) {
  const gen::RaderArguments args = gen::rader_arguments(tree);
  if (!args.root || !args.there->is_number())
    throw std::invalid_argument(to_string(tree) + " is not R(root, length)");
  const int l = args.there->number;
  const RaderStage stage = rader_stage(l + 1);
  const bool forward = direction == Direction::forward;
  const std::string whole = forward ? stage.forward : stage.inverse;
  const Tree there = whole.empty() ? plan(direction, l) : plan(direction, parse_tree(whole));
  const Tree back = plan(opposite(direction), l / 2);
  Tree skew = l / 2 % 2 == 0 ? plan(Direction::inverse, l / 2) : back;
  if (forward && stage.skew[0] != '\0') skew = parse_tree(stage.skew);
  return {"R", 0, {tree.args[0], there, back, skew}};
}

// A run of stages, nested in pairs. A transposed network runs its stages in reverse.
Tree nested(Direction direction, const std::string& rule, gen::Sequence<Tree> stages) {
  if (direction == Direction::inverse) std::reverse(stages.begin(), stages.end());
  const bool to_the_right = direction == Direction::inverse || rule == "x";
  while (stages.size() > 2) {
    const auto pair = to_the_right ? stages.end() - 2 : stages.begin();
    *pair = {rule, 0, {*pair, *(pair + 1)}};
    stages.erase(pair + 1);
  }
  return {rule, 0, std::move(stages)};
}

Tree plan(Direction direction, const Tree& tree) {
  if (tree.is_number()) return plan(direction, tree.number);
  if (tree.rule == "D") return tree;
  if (tree.rule == "R") return gen::rader_arguments(tree).back == nullptr ? rader(direction, tree) : tree;
  gen::Sequence<Tree> stages;
  for (const Tree& arg : tree.args) stages.push_back(plan(direction, arg));
  return nested(direction, tree.rule, std::move(stages));
}

// The plan with its blocks of one length in another order of bins.
Tree reordered(Tree plan, const BlockOrder& order) {
  if (plan.is_number()) return plan.number == order.block ? parse_tree(order.order) : plan;
  for (Tree& arg : plan.args) arg = reordered(arg, order);
  return plan;
}

}  // namespace

Tree plan(Direction direction, Layout layout, int length, const Tree& tree) {
  Tree whole = plan(direction, tree);
  for (const BlockOrder& order : block_orders()) {
    if (direction == Direction::inverse && order.length == length && order.layout == layout)
      whole = reordered(whole, order);
  }
  return whole;
}

}  // namespace xfm::real
