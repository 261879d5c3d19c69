// Bringing lanes together: which nodes hold what, and how the target's permutations make a wanted register of
// them.
#pragma once

#include "gen/targets/target.h"

namespace xfm::gen {

class Permuter {
 public:
  Permuter(Network& network, const Target& target, Precision precision)
      : network_(network), target_(target), lane_bytes_(bytes(precision)) {}

  /// A node with the contents of these places in its lanes. Idle places come last, and their lanes may hold
  /// anything.
  NodeId bring(const Sequence<Place>& wanted);

  /// These lanes of a and b by one instruction; throws std::logic_error if the target has none for them.
  NodeId permuted(NodeId a, NodeId b, PerLane picks);

  /// Where the content of a lane was computed, traced back through permutations.
  Place content(Place place) const;

 private:
  using Places = Sequence<Place>;

  int width() const { return network_.width(); }
  NodeId make(NodeId a, NodeId b, PerLane picks);
  NodeId find(const Places& wanted) const;
  NodeId by_one(const Places& wanted);
  NodeId by_one(const Permutation& permutation, const Places& wanted, NodeId a, NodeId b);
  Places within(NodeId node, const Place& a, const Place& b) const;
  Places beside(const Place& a, const Place& b);
  PerLane side_by_side(const Place& a, const Place& b) const;

  Network& network_;
  const Target& target_;
  int lane_bytes_;
  Sequence<NodeId> made_;  // permutations, in the order in which they were made
};

}  // namespace xfm::gen
