// Signs of lanes that constants can carry: where nothing but a flip uses a product, or a sum of such
// products, directly or behind shuffles, the products are made with constants of these signs and the flip
// falls away. Changes no bit, for a sign is exact.
#pragma once

#include <memory>

#include "gen/network/network.h"

namespace xfm::gen {

/// The network with all such flips gone.
std::unique_ptr<Network> absorb_flips(const Network& network);

}  // namespace xfm::gen
