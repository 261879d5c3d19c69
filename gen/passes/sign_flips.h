// Sign flips that constants can carry: where only a flip uses a product, or a sum of such products, directly
// or through permutations, the products' constants take the signs and the flip is dropped. Signs are exact,
// so no value changes; only a sum that cancels to zero may change the sign of that zero.
#pragma once

#include <memory>

#include "gen/network/network.h"

namespace xfm::gen {

/// The network without these sign flips.
std::unique_ptr<Network> absorb_sign_flips(const Network& network);

}  // namespace xfm::gen
