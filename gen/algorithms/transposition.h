// Transposition of a real network: the network that maps weights on its outputs to weights on its inputs.
//
// For y = A x the transpose computes A^T w at the same cost (Tellegen's principle; Bernstein 2006 for its
// history). Walking from the outputs to the inputs, each node's value is the sum of what its users send: an
// addition sends its value to both operands, a subtraction sends it to one and its negative to the other, a
// product or a linear combination sends it multiplied by each coefficient. Where linear combinations round
// once, so does such a sum with products.
#pragma once

#include "gen/network/complex.h"

namespace xfm::gen {

/// An output of a network, or an absent one, and its weight: a value of another network.
struct WeightedOutput {
  Value output;
  Complex weight;
};

/// The transpose of a scalar network: the value at each of its loads, by scalar index.
Points transposed(const Network& forward, const Sequence<WeightedOutput>& outputs, int inputs);

}  // namespace xfm::gen
