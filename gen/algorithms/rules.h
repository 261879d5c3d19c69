// Breakdown rules: what a name in a tree means. Each rule is one record of a table, and checks, lengths,
// dispatch and what xfmgen shows of a tree all follow from it.
#pragma once

#include <span>
#include <string_view>

#include "gen/algorithms/lines.h"
#include "gen/algorithms/transform.h"
#include "gen/algorithms/tree.h"

namespace xfm::gen {

struct Rule {
  std::string_view name;
  std::string_view children;        ///< the shape of its arguments, for messages
  bool (*applicable)(const Tree&);  ///< whether a tree's arguments have that shape
  int (*length)(const Tree&);       ///< the length that it transforms
  int (*first_tree)(const Tree&);   ///< the first argument that is a tree of its own
  bool shorter = false;             ///< whether it also serves any shorter odd length
  Points (Transform::*on_points)(const Tree&, const Points&, int instance) const = nullptr;
  bool by_halves = false;  ///< runs a complex sequence as two real ones, added at the end
  Points (Transform::*on_skew)(const Tree&, const Points&) const = nullptr;
  Lines (LineTransform::*on_lines)(const Tree&, const Lines&, Direction) = nullptr;  ///< null: as a block
  std::string_view formula;
  std::string_view source;
};

/// The table. The rule without a name is that of a plain number.
std::span<const Rule> rules();

/// The rule of a tree; throws std::invalid_argument, naming the rule and its arguments, if there is none or
/// it does not apply.
const Rule& rule_of(const Tree& tree);

}  // namespace xfm::gen
