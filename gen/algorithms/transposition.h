// Transposition of a real network: the network that maps weights on its outputs to weights on its inputs.
//
// For y = A x the transpose computes A^T w at the same cost (Tellegen's principle; Bernstein 2006 for its
// history). Walking from the outputs to the inputs, each node's value is the sum of what its users send: an
// addition sends its value to both operands, a subtraction sends it to one and its negative to the other, a
// addition sends its value to both operands, a subtraction sends it to one and its negative to the other, a
// product or a linear combination sends it multiplied by each coefficient. Where linear combinations round
// once, so does such a sum with products.
#pragma once

#include "gen/network/complex.h"

namespace xfm::gen {

class Transposition {
 public:
  /// The forward network must be scalar.
  explicit Transposition(const Network& forward) : forward_(forward), sent_(forward.nodes().size()) {}

  /// Puts a weight on an output of the forward network. Weights are values of another network.
  void send(Value output, const Complex& weight);

  /// Once all weights are sent: the value at each load of the forward network, by scalar index.
  Points run(int inputs);

 private:
  void receive(NodeId node, const ScaledComplex& weight);
  Complex weight(NodeId node) const;

  const Network& forward_;
  Sequence<Sequence<ScaledComplex>> sent_;
};

}  // namespace xfm::gen
