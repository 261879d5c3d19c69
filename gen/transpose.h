// Transposition of a real network: the network that maps weights on its outputs to weights on its inputs.
//
// For y = A x the transpose computes A^T w at the same cost (Tellegen's principle; Bernstein 2006 for its
// history). Walking from the outputs to the inputs, each node's value is the sum of what its users send: an
// addition sends its value to both operands, a subtraction sends it to one and its negative to the other, a
// product sends it multiplied.
#pragma once

#include <vector>

#include "gen/complex.h"

namespace xfm::gen {

class Transposition {
 public:
  /// The forward network: scalar, rounded operation by operation.
  explicit Transposition(const Network& forward) : forward_(forward), weights_(forward.nodes().size()) {}

  /// Puts a weight on an output of the forward network. Weights are values of another network.
  void send(Value output, const Complex& weight);

  /// After all weights were sent: the value at each load of the forward network, by scalar index.
  std::vector<Complex> run(int inputs);

 private:
  void receive(NodeId node, const Complex& weight);

  const Network& forward_;
  std::vector<Complex> weights_;
};

}  // namespace xfm::gen
