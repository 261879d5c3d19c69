#include "progress.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>

#include <fmt/format.h>

namespace {
constexpr auto redraw = std::chrono::milliseconds(50);
constexpr double quiet_step = 0.25;
constexpr int width = 30;
}  // namespace

Progress::Progress(double whole) : whole_(whole), live_(isatty(STDOUT_FILENO) != 0) {}

void Progress::operator()(double seconds) {
  if (live_) {
    if (Clock::now() - drawn_ < redraw) return;
    drawn_ = Clock::now();
    draw(seconds);
  } else if (seconds >= next_ * whole_ && seconds < whole_) {  // finish() reports the end
    draw(seconds);
    while (seconds >= next_ * whole_) next_ += quiet_step;
  }
}

void Progress::finish() {
  draw(whole_);
  if (live_) std::puts("");
}

void Progress::draw(double seconds) {
  const double share = std::min(1.0, seconds / whole_);
  const double spent = std::chrono::duration<double>(Clock::now() - start_).count();
  const std::string times = fmt::format("{:3.0f} %  {:.1f} of {:.1f} s of sound, {:.1f} s", 100 * share,
                                        std::min(seconds, whole_), whole_, spent);
  if (live_) {
    const auto full = static_cast<std::size_t>(share * width);
    fmt::print("\r[{}{}] {} ", std::string(full, '#'), std::string(width - full, '.'), times);
  } else {
    fmt::print("{}\n", times);
  }
  std::fflush(stdout);
}
