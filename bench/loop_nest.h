// What a program does without a library: a plain loop nest, left to the compiler's optimiser. Each compiler
// at hand makes an object file of its own from it, for baseline x86-64, like the kernels.
#pragma once

#include <vector>

#include "bench/arrays.h"
#include "bench/contestant.h"

namespace xfm::bench {

/// Walsh-Hadamard transform of 2^order elements, then times the factor.
template <class Real>
using WalshHadamardLoops = void (*)(const Real* src, Real* dst, int order, Real factor);

struct LoopNest {
  const char* name;
  WalshHadamardLoops<float> binary32;
  WalshHadamardLoops<double> binary64;
};

extern const std::vector<LoopNest> loop_nests;

template <class Real>
class LoopNestContestant final : public Contestant {
 public:
  LoopNestContestant(WalshHadamardLoops<Real> loops, int order, Arrays& arrays)
      : loops_(loops),
        order_(order),
        src_(static_cast<const Real*>(arrays.src())),
        dst_(static_cast<Real*>(arrays.dst())) {}

  void run(int calls) override {
    for (int i = 0; i < calls; ++i) loops_(src_, dst_, order_, Real{1});
  }

 private:
  WalshHadamardLoops<Real> loops_;
  int order_;
  const Real* src_;
  Real* dst_;
};

template <class Real>
ContestantPtr contestant(WalshHadamardLoops<Real> loops, int order, Arrays& arrays) {
  return std::make_unique<LoopNestContestant<Real>>(loops, order, arrays);
}

}  // namespace xfm::bench
