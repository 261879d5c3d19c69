// One kernel against its rival.
//
// The loop is our own because Google Benchmark times all repetitions of one function and then all of the
// next, so a change of clock rate or of other load between the two affects one side only. Here the two take
// turns within fractions of a millisecond, swapping places every round, and the rounds of each race are
// spread over the whole run, so that a disturbance of seconds spoils some rounds of many races but no race
// altogether.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "bench/arrays.h"
#include "bench/contestant.h"
#include "bench/library.h"
#include "bench/statistics.h"
#include "bench/timing.h"
#include "tools/catalogue.h"

namespace xfm::bench {

/// A further rival's time.
struct Other {
  std::string name;
  Summary time;
};

/// Core cycles per call. The fastest batch of the cycle chain determines how long a cycle lasts.
struct Result {
  const catalogue::Kernel* kernel;
  double nanoseconds_per_cycle;
  double limit;
  Summary ours;
  std::optional<Summary> rival;
  std::vector<Other> others;

  double ratio() const { return rival->least / ours.least; }
  double ratio_to(const Other& other) const { return other.time.least / ours.least; }
  double ratio_of_medians() const { return rival->median / ours.median; }
};

class Race {
 public:
  /// Makes the rival, the same function of the other build if there is one, and checks that it and the kernel
  /// give the same output for the same input: throws if not.
  Race(const catalogue::Kernel& kernel, Placement placement, const Builds& builds);

  /// More rounds, each a batch of the cycle chain, of the kernel and of the rival.
  void run(int rounds);
  Result result() const;

 private:
  struct Lane {
    ContestantPtr contestant;
    int calls;
    std::vector<double> samples;  // nanoseconds a call

    explicit Lane(ContestantPtr who);
    void warm_up();
    void sample();
  };

  const catalogue::Kernel* kernel_;
  double limit_;
  Arrays arrays_;
  std::vector<Lane> lanes_;          // the cycle chain, the kernel, its rival if there is one, further rivals
  std::vector<std::string> others_;  // their names
};

}  // namespace xfm::bench
