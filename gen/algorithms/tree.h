// Breakdown trees: the text of a table's row as a tree, and back.
//
//   tree    = product { "," product }    "2,2": stages in turn
//   product = power { "x" power }        "3 x 5": coprime stages in turn, no twiddles between them
//   power   = stage { "*" stage }        "3 * 3": stages in turn with twiddles between them
//   stage   = number                     a base or prime block of that length
//           | name "(" tree ")"          a rule: "PFA*(SR(8),3)"
//           | "(" product ")"
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace xfm::gen {

struct Tree {
  std::string rule;        ///< "PFA", "PFA*", "CT", "SR", "R", "B", "x", "*", ...; empty for a plain number
  int number = 0;          ///< the number, where rule is empty
  std::vector<Tree> args;  ///< the rule's arguments

  bool is_number() const { return rule.empty(); }
};

/// Throws std::invalid_argument with the place of the mistake.
Tree parse_tree(std::string_view text);

/// The text that parses to this tree, identical to the one it came from but for spaces.
std::string to_string(const Tree& tree);

}  // namespace xfm::gen
