// Packed complex transforms. A line holds the points of one transform, and every stage runs on many lines.
//
// A stage with I transforms of length a*b runs I*b transforms of length a, then I*a of length b, and so on
// down; only the base blocks are packed. The parallelism inside a transform thus fills lanes that the stage
// around it would leave idle, and each output is still computed by the same operations. Instances are ordered
// with the outer index fastest: neighbours stay in neighbouring lanes, which saves most permutations. With
// one lane this is plain composition.
#pragma once

#include <functional>

#include "gen/algorithms/transform.h"
#include "gen/packing/lanes.h"

namespace xfm::gen {

using Line = Elements;         ///< the points of one transform
using Lines = Sequence<Line>;  ///< transforms of one length, side by side

/// How the instances of a stage fill registers.
struct Grouping {
  Form form;
  int instances;          ///< at most so many side by side
  bool balanced = false;  ///< 3 + 3 + 3 rather than 4 + 4 + 1
};

class LineTransform {
 public:
  /// Products by 0 are those of the grouping `as`: they are part of what a kernel computes, so they are the
  /// same on all targets.
  LineTransform(Lanes& lanes, const Grouping& grouping, const Grouping& as, const Choices& choices)
      : lanes_(lanes), grouping_(grouping), as_(as), choices_(choices), blocks_(Rounding::each, choices) {}

  Lines run(const Tree& tree, const Lines& x, Direction direction);

  /// @name The rules (rules.h)
  /// @{
  Lines two_stages(const Tree& tree, const Lines& x, Direction direction);
  Lines rader(const Tree& tree, const Lines& x, Direction direction);
  Lines bluestein(const Tree& tree, const Lines& x, Direction direction);
  /// @}

 private:
  using Block = std::function<Points(const Points&)>;
  Lines each(const Lines& lines, Direction direction, const Block& block);
  static Sequence<Sequence<int>> groups(const Lines& x, const Grouping& grouping);
  Lines marked(Lines x) const;

  Lanes& lanes_;
  Grouping grouping_, as_;
  Choices choices_;
  Transform blocks_;
};

}  // namespace xfm::gen
