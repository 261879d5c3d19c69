// Binding: from a draft to a network that loads from memory and stores to it.
#pragma once

#include <memory>

#include "gen/network/draft.h"

namespace xfm::gen {

/// Where the inputs and outputs of a draft are in memory, by number.
struct Binding {
  PerLane from, to;
  PerLane zeros{};             ///< elements of dst that are zero whatever the data
  bool factor_inside = false;  ///< multiplied before rounding, in linear combinations used by outputs alone
};

/// The network, with some values computed as their negatives (signs.h). Every output is multiplied by the
/// factor in its last step, and subtracted from zero if its sign is still wrong.
std::unique_ptr<Network> bind(const Draft& draft, const Binding& binding, const Sequence<bool>& negated);

}  // namespace xfm::gen
