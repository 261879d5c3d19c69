#include "bench/timing.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <limits>
#include <utility>

namespace xfm::bench {

double time_batch(Contestant& contestant, int calls) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  contestant.run(calls);
  const std::chrono::duration<double, std::nano> elapsed = Clock::now() - start;
  return elapsed.count() / calls;
}

namespace {

/// Interruptions only ever lengthen a batch, so the least of a few is close to the truth.
double least_time(Contestant& contestant, int calls, int trials) {
  double least = std::numeric_limits<double>::infinity();
  for (int i = 0; i < trials; ++i) least = std::min(least, time_batch(contestant, calls));
  return least;
}

}  // namespace

int calls_per_batch(Contestant& contestant) {
  constexpr int kMost = 1 << 20;
  int calls = 1;
  double each = least_time(contestant, calls, 3);
  while (calls < kMost && each * calls < kBatchNanoseconds / 4) {
    calls *= 2;
    each = least_time(contestant, calls, 3);
  }
  return std::clamp(static_cast<int>(std::lround(kBatchNanoseconds / each)), 1, kMost);
}

ContestantPtr fastest(std::vector<ContestantPtr> candidates) {
  constexpr int kRounds = 20;
  if (candidates.size() == 1) return std::move(candidates.front());
  const int calls = calls_per_batch(*candidates.front());
  std::vector<double> least(candidates.size(), std::numeric_limits<double>::infinity());
  for (int round = 0; round < kRounds; ++round)
    for (std::size_t i = 0; i < candidates.size(); ++i)
      least[i] = std::min(least[i], time_batch(*candidates[i], calls));
  const auto winner = std::min_element(least.begin(), least.end()) - least.begin();
  return std::move(candidates[static_cast<std::size_t>(winner)]);
}

void CycleChain::run(int calls) {
  // Register plus register: recent cores add small immediates while renaming, in no time at all.
  unsigned long sum = 0;
  const unsigned long step = 1;
  for (int i = 0; i < calls; ++i)
    asm volatile(".rept 256\n\tadd %1, %0\n\t.endr" : "+r"(sum) : "r"(step) : "cc");
}

}  // namespace xfm::bench
