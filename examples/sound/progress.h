// Progress of the work: a live bar on a terminal, a line for every quarter elsewhere.
#pragma once

#include <chrono>

class Progress {
 public:
  /// `whole` is the length of the sound in seconds.
  explicit Progress(double whole);

  /// Reports that the sound up to `seconds` is done.
  void operator()(double seconds);

  /// Ends the line.
  void finish();

 private:
  void draw(double seconds);

  using Clock = std::chrono::steady_clock;
  double whole_;
  bool live_;
  double next_ = 0;  ///< fraction of the whole at which the next line is due
  Clock::time_point start_ = Clock::now();
  Clock::time_point drawn_{};
};
