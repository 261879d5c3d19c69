// Constant folding: products of products become one product, whose constant is multiplied out before it is
// rounded.
//
// A product that only products use is dropped, and its constant goes into theirs. The transposed case: a
// product of a sum of products that nothing else uses is distributed over them. Both save a multiplication
// and its rounding.
#pragma once

#include <memory>

#include "gen/network/network.h"

namespace xfm::gen {

/// The network with all constants folded.
std::unique_ptr<Network> fold_constants(const Network& network);

}  // namespace xfm::gen
