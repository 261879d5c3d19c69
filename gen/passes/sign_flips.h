// Sign flips that constants can carry: where nothing but a flip uses a product, or a sum of such products,
// directly or behind permutations, the products get constants of these signs and the flip falls away. No
// value changes, for a sign is exact; a sum that cancels to zero may change that zero's sign.
#pragma once

#include <memory>

#include "gen/network/network.h"

namespace xfm::gen {

/// The network without these sign flips.
std::unique_ptr<Network> absorb_sign_flips(const Network& network);

}  // namespace xfm::gen
