#include "report.h"

#include <x86intrin.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "precision.h"

namespace {

struct Count {
  std::atomic<std::uint64_t> number, ticks;
};

using Clock = std::chrono::steady_clock;

/// The time stamp counter costs a fraction of a clock's call, which would take longer than a short transform.
/// Its rate is known when the program ends.
class Report {
 public:
  Report() : start_(Clock::now()), start_ticks_(__rdtsc()) {}
  Report(const Report&) = delete;
  Report& operator=(const Report&) = delete;
  ~Report() {
    if (!on || !has_plans()) return;
    print("plans", What::plan);
    print("executions", What::execution);
  }

  Count& of(Where where, What what) { return counts_[static_cast<int>(what)][static_cast<int>(where)]; }

  const bool on = std::getenv("XFM_FFTW_VERBOSE") != nullptr;

 private:
  bool has_plans() { return of(Where::xfm, What::plan).number + of(Where::fftw, What::plan).number != 0; }
  void print(const char* name, What what) {
    const Count &xfm = of(Where::xfm, what), &fftw = of(Where::fftw, what);
    std::fprintf(stderr, "xfm-" XFM_FFTW_NAME ": %-10s  xfm %10llu in %.6f s  FFTW %10llu in %.6f s\n", name,
                 static_cast<unsigned long long>(xfm.number), seconds(xfm.ticks),
                 static_cast<unsigned long long>(fftw.number), seconds(fftw.ticks));
  }
  double seconds(std::uint64_t ticks) const {
    const std::chrono::duration<double> all = Clock::now() - start_;
    return static_cast<double>(ticks) * all.count() / static_cast<double>(__rdtsc() - start_ticks_);
  }

  Clock::time_point start_;
  std::uint64_t start_ticks_;
  Count counts_[2][2] = {};
};

Report report;

}  // namespace

bool keeps_report() { return report.on; }

Stopwatch::Stopwatch(Where where, What what)
    : where_(where), what_(what), start_(report.on ? __rdtsc() : 0) {}

Stopwatch::~Stopwatch() {
  if (!report.on) return;
  Count& count = report.of(where_, what_);
  count.number.fetch_add(1, std::memory_order_relaxed);
  count.ticks.fetch_add(__rdtsc() - start_, std::memory_order_relaxed);
}
