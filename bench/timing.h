// Stop watch, batch sizes, and the yardstick that turns times into core cycles.
#pragma once

#include <vector>

#include "bench/contestant.h"

namespace xfm::bench {

/// A batch lasts about this long: a thousand times the resolution of the clock and its own cost, yet so short
/// that most batches escape every interrupt and every change of clock rate.
inline constexpr double kBatchNanoseconds = 30'000;

/// Nanoseconds a call, over one batch.
double time_batch(Contestant& contestant, int calls);

/// The number of calls that fills a batch.
int calls_per_batch(Contestant& contestant);

/// The fastest of several candidates, by a short interleaved trial.
ContestantPtr fastest(std::vector<ContestantPtr> candidates);

/// A dependent chain of integer additions, one core cycle each whatever the clock rate of the moment: its
/// time tells how long a core cycle lasts in the unit of the stop watch.
class CycleChain final : public Contestant {
 public:
  static constexpr int kCyclesPerCall = 256;
  void run(int calls) override;
};

}  // namespace xfm::bench
