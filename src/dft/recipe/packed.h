// The packed arithmetic: a tree run flat on batches of like transforms, several at a time in the lanes.
//
// A stage that has I like transforms of length a*b runs I*b transforms of length a, then I*a of length b, and
// so on down; only the base blocks are packed. So the parallelism inside a transform fills lanes that the
// stage around it leaves idle, and the operation tree of every output stays. Instances are ordered with the
// outer index fastest, which keeps neighbours in neighbouring lanes and saves most shuffles. With one lane
// this is the plain composition.
#pragma once

#include <functional>

#include "gen/algorithms/tree.h"
#include "gen/packing/lanes.h"
#include "src/dft/recipe/choices.h"
#include "src/dft/recipe/rules.h"

namespace xfm::dft {

using Line = std::vector<gen::Element>;  ///< the points of one transform
using Batch = std::vector<Line>;         ///< like transforms, side by side

class Packed {
 public:
  Packed(gen::Lanes& lanes, gen::Form form, const Choices& choices)
      : lanes_(lanes), form_(form), choices_(choices) {}

  Batch transform(const gen::Tree& tree, const Batch& x, Direction direction);

 private:
  using Block = std::function<Points(const Points&)>;
  Batch each(const Batch& x, const Block& block, Direction direction);
  std::vector<std::vector<std::size_t>> groups(const Batch& x) const;
  Batch two_stages(const gen::Tree& tree, const Batch& x, Direction direction);
  Batch rader(const gen::Tree& inner, const Batch& x, Direction direction);
  Batch bluestein(const gen::Tree& tree, const Batch& x, Direction direction);

  gen::Lanes& lanes_;
  gen::Form form_;
  Choices choices_;
};

}  // namespace xfm::dft
