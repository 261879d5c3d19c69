// Breakdown trees: how the text of a table's row is parsed, and written again.
//
//   tree    = product { "," product }    "2,2": stages in turn
//   product = power { "x" power }        "3 x 5": coprime stages in turn, no twiddles between them
//   power   = stage { "*" stage }        "3 * 3": stages in turn with twiddles between them
//   stage   = number                     a base or prime block of that length
//           | name "(" tree ")"          a rule: "PFA*(SR(8),3)"
//           | "(" product ")"
//
// What the rules mean is in rules.h.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "gen/math/sequence.h"

namespace xfm::gen {

struct Tree {
  std::string rule;       ///< "PFA", "PFA*", "CT", "SR", "R", "B", "x", "*", ...; empty for a plain number
  int number = 0;         ///< the number, where rule is empty
  Sequence<Tree> args{};  ///< the rule's arguments

  bool is_number() const { return rule.empty(); }
};

/// Throws std::invalid_argument with the position of a syntax error, and also where a rule is unknown or its
/// arguments do not fit.
Tree parse_tree(std::string_view text);

/// The text that parses to this tree.
std::string to_string(const Tree& tree);

/// The length that a tree transforms.
int length_of(const Tree& tree);

/// Throws std::invalid_argument if the tree does not transform this length.
void check_length(const Tree& tree, int length);

/// The tree behind the first argument. A rule with more than two is nested to the right: PFA(a,b,c) is
/// PFA(a,PFA(b,c)).
Tree rest_of(const Tree& tree);

/// Rader's arguments, R([root,] there [, back [, skew]]): the root if it is given, the forward transform, and
/// the inverse ones of the real and of the imaginary parts.
struct RaderArguments {
  std::optional<int> root;
  const Tree *there, *back, *skew;
};
RaderArguments rader_arguments(const Tree& tree);

/// The tree with its numbers replaced by the trees that they stand for, recursively down to the blocks:
/// numbers whose text is empty.
Tree spelled_out(const Tree& tree, const std::function<std::string(int)>& text_of);

/// Whether the rule occurs anywhere in the tree.
bool uses_rule(const Tree& tree, std::string_view rule);

}  // namespace xfm::gen
