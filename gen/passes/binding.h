// Binding: from a draft to a network that loads from memory and stores to it.
#pragma once

#include <memory>

#include "gen/network/draft.h"

namespace xfm::gen {

/// Where the inputs and outputs of a draft stand in memory, by their numbers.
struct Binding {
  PerLane from, to;
  PerLane zeros{};             ///< elements of dst that are zero whatever the data
  bool factor_inside = false;  ///< of the linear combination, where one makes an output and nothing else
};

/// The network, with some values computed as their negatives (signs.h). Every output is multiplied by the
/// factor as its last step; one whose sign is still wrong then is subtracted from zero.
std::unique_ptr<Network> bind(const Draft& draft, const Binding& binding, const Sequence<bool>& negated);

}  // namespace xfm::gen
