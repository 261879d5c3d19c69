// Stopwatch, batch sizes, and the yardstick that converts times to core cycles.
#pragma once

#include <vector>

#include "bench/contestant.h"

namespace xfm::bench {

/// A batch lasts about this long: a thousand times the resolution and the cost of the clock, yet short enough
/// for most batches to escape every interrupt and every change of clock rate.
inline constexpr double kBatchNanoseconds = 30'000;

/// Nanoseconds per call, over one batch.
double time_batch(Contestant& contestant, int calls);

/// The number of calls that fills a batch.
int calls_per_batch(Contestant& contestant);

/// The fastest of several candidates, by a short interleaved trial.
ContestantPtr fastest(std::vector<ContestantPtr> candidates);

/// A dependent chain of integer additions, one core cycle each whatever the clock rate of the moment: its
/// time shows how long a core cycle lasts in the unit of the stopwatch.
class CycleChain final : public Contestant {
 public:
  static constexpr int kCyclesPerCall = 256;
  void run(int calls) override;
};

}  // namespace xfm::bench
