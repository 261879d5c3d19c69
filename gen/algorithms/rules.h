// The rules of the breakdowns: what a name in a tree means. A rule is a record, and parsing, lengths,
// dispatch and what xfmgen shows of a tree follow from the table of records.
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
  bool shorter = false;             ///< and any shorter odd one
  Points (Transform::*on_points)(const Tree&, const Points&, int instance) const = nullptr;
  bool by_halves = false;  ///< complex sequences as two real ones, joined at the end
  Points (Transform::*on_skew)(const Tree&, const Points&) const = nullptr;
  Lines (LineTransform::*on_lines)(const Tree&, const Lines&, Direction) = nullptr;  ///< or as a block
  std::string_view formula;
  std::string_view source;
};

/// All of them; the one without a name is that of a plain number.
std::span<const Rule> rules();

/// The rule of a tree; throws std::invalid_argument, by rule and arguments, if there is none or it is not
/// applicable.
const Rule& rule_of(const Tree& tree);

}  // namespace xfm::gen
