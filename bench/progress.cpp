#include "bench/progress.h"

#include <fmt/format.h>
#include <unistd.h>

#include <cstdio>

namespace xfm::bench {

namespace {

bool somebody_watches() { return isatty(STDERR_FILENO) != 0; }

constexpr const char* start_of_empty_line = "\r\x1b[K";

}  // namespace

void show_progress(const char* work, std::size_t done, std::size_t all) {
  if (!somebody_watches()) return;
  if (done == all) return hide_progress();
  fmt::print(stderr, "{}{} {}/{}", start_of_empty_line, work, done, all);
  std::fflush(stderr);
}

void hide_progress() {
  if (!somebody_watches()) return;
  fmt::print(stderr, "{}", start_of_empty_line);
  std::fflush(stderr);
}

}  // namespace xfm::bench
