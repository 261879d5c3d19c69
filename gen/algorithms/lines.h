// Trees of complex transforms run flat on lines of elements in lanes, several like transforms at a time.
//
// A stage that has I like transforms of length a*b runs I*b transforms of length a, then I*a of length b, and
// so on down; only the base blocks are packed. So the parallelism inside a transform fills lanes that the
// stage around it leaves idle, and the operation tree of every output stays. Instances are ordered with the
// outer index fastest, which keeps neighbours in neighbouring lanes and saves most permutations. With one
// lane this is the plain composition.
#pragma once

#include <functional>

#include "gen/algorithms/transform.h"
#include "gen/packing/lanes.h"

namespace xfm::gen {

using Line = Elements;         ///< the points of one transform
using Lines = Sequence<Line>;  ///< like transforms, side by side

class LineTransform {
 public:
  LineTransform(Lanes& lanes, Form form, const Transform& blocks, const Choices& choices)
      : lanes_(lanes), form_(form), blocks_(blocks), choices_(choices) {}

  Lines run(const Tree& tree, const Lines& x, Direction direction);

  /// @name The rules (rules.h)
  /// @{
  Lines two_stages(const Tree& tree, const Lines& x, Direction direction);
  Lines rader(const Tree& tree, const Lines& x, Direction direction);
  Lines bluestein(const Tree& tree, const Lines& x, Direction direction);
  /// @}

 private:
  using Block = std::function<Points(const Points&)>;
  Lines each(const Lines& x, const Block& block, Direction direction);
  Sequence<Sequence<int>> groups(const Lines& x) const;

  Lanes& lanes_;
  Form form_;
  const Transform& blocks_;
  const Choices& choices_;
};

}  // namespace xfm::gen
