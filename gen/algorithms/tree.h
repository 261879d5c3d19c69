// Breakdown trees: the text of a table's row as a tree, and back.
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

/// Throws std::invalid_argument with the place of the mistake, also where a rule is unknown or its arguments
/// do not fit.
Tree parse_tree(std::string_view text);

/// The text that parses to this tree, identical to the one it came from but for spaces.
std::string to_string(const Tree& tree);

/// The length that a tree transforms.
int length_of(const Tree& tree);

/// Throws std::invalid_argument if the tree does not serve the length.
void check_length(const Tree& tree, int length);

/// A rule with more than two arguments is nested to the right: PFA(a,b,c) is PFA(a,PFA(b,c)).
Tree first_of(const Tree& tree);
Tree rest_of(const Tree& tree);

/// Rader's arguments, R([root,] there [, back [, skew]]): the root where it is given, the transform there,
/// and those back, which are that of the real parts and that of the imaginary parts.
struct RaderArguments {
  std::optional<int> root;
  const Tree *there, *back, *skew;
};
RaderArguments rader_arguments(const Tree& tree);

/// The tree with every number that `expand` knows replaced by its tree, and so on down to the blocks.
Tree spelled_out(const Tree& tree, const std::function<std::optional<Tree>(int)>& expand);

/// Whether the rule stands anywhere in the tree.
bool uses_rule(const Tree& tree, std::string_view rule);

}  // namespace xfm::gen
