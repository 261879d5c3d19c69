#include "bench/race.h"

#include <fmt/format.h>

#include <cmath>
#include <memory>
#include <stdexcept>
#include <utility>

#include "bench/dct4.h"
#include "bench/limit.h"
#include "bench/rivals.h"

namespace xfm::bench {

namespace {

enum Index : std::size_t { kChain, kOurs, kRival };

/// Calls the exported function itself: the catalogue's call goes through a function of its own that casts the
/// pointers, which costs three cycles, a quarter of the shortest kernels' time. FFTW's call has no such
/// detour.
class PlainKernel final : public Contestant {
 public:
  PlainKernel(const Library& library, const catalogue::Kernel& kernel, Arrays& arrays)
      : call_(library.function<catalogue::Call>(kernel.name)), src_(arrays.src()), dst_(arrays.dst()) {}

  void run(int calls) override {
    for (int i = 0; i < calls; ++i) call_(src_, dst_, XFM_SCALE_NONE);
  }

 private:
  catalogue::Call call_;
  const void* src_;
  void* dst_;
};

class BufferedKernel final : public Contestant {
 public:
  BufferedKernel(const Library& library, const catalogue::Kernel& kernel, Arrays& arrays)
      : call_(library.function<catalogue::BufferedCall>(kernel.name)),
        src_(arrays.src()),
        dst_(arrays.dst()),
        buffer_(arrays.buffer()) {}

  void run(int calls) override {
    for (int i = 0; i < calls; ++i) call_(src_, dst_, XFM_SCALE_NONE, buffer_);
  }

 private:
  catalogue::BufferedCall call_;
  const void* src_;
  void* dst_;
  void* buffer_;
};

ContestantPtr make_kernel(const Library& library, const catalogue::Kernel& kernel, Arrays& arrays) {
  if (kernel.call == nullptr) return make_dct4(library, kernel, arrays);
  if (kernel.call_with_buffer == nullptr) return std::make_unique<PlainKernel>(library, kernel, arrays);
  return std::make_unique<BufferedKernel>(library, kernel, arrays);
}

/// The kernel in the fastest copy of a build. Every build has the same contestant, so that two are called in
/// the same way.
ContestantPtr make_kernel(const std::vector<Library>& copies, const catalogue::Kernel& kernel,
                          Arrays& arrays) {
  std::vector<ContestantPtr> candidates;
  for (const Library& library : copies) candidates.push_back(make_kernel(library, kernel, arrays));
  return fastest(std::move(candidates));
}

std::vector<double> output_of(Contestant& contestant, Arrays& arrays) {
  arrays.fill();
  contestant.take_input();
  contestant.run(1);
  contestant.give_output();
  std::vector<double> output = arrays.output();
  for (double& value : output) value *= contestant.factor();
  return output;
}

/// Norm of the difference over the norm.
double distance(const std::vector<double>& a, const std::vector<double>& b) {
  double difference = 0, norm = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    difference += (a[i] - b[i]) * (a[i] - b[i]);
    norm += b[i] * b[i];
  }
  return std::sqrt(difference / norm);
}

/// A race between different transforms would be meaningless.
void check_agreement(const catalogue::Kernel& kernel, Contestant& ours, Contestant& rival, Arrays& arrays) {
  const double tolerance = kernel.precision == catalogue::Precision::binary32 ? 1e-6 : 1e-14;
  const double apart = distance(output_of(ours, arrays), output_of(rival, arrays));
  if (!(apart <= tolerance))
    throw std::runtime_error(
        fmt::format("{}: output differs from the rival's by {:.1e} of its norm", kernel.name, apart));
}

double limit(const catalogue::Kernel& kernel, const catalogue::Target& target) {
  return limit_in_cycles(kernel, kernel.call == nullptr ? dct4_form(kernel) : form(target, kernel));
}

Summary divided(Summary summary, double divisor) {
  return {summary.least / divisor, summary.median / divisor};
}

}  // namespace

Race::Lane::Lane(ContestantPtr who) : contestant(std::move(who)), calls(calls_per_batch(*contestant)) {}

void Race::Lane::warm_up() { time_batch(*contestant, calls); }

void Race::Lane::sample() { samples.push_back(time_batch(*contestant, calls)); }

Race::Race(const catalogue::Kernel& kernel, Placement placement, const Builds& builds)
    : kernel_(&kernel), limit_(limit(kernel, *builds.target)), arrays_(kernel, placement) {
  const bool beside_fftw = builds.other.empty();
  auto rival = beside_fftw ? make_rival(kernel, arrays_) : make_kernel(builds.other, kernel, arrays_);
  auto ours = make_kernel(builds.ours, kernel, arrays_);
  auto others = beside_fftw ? further_rivals(kernel, arrays_) : std::vector<NamedContestant>();
  if (rival) check_agreement(kernel, *ours, *rival, arrays_);
  for (auto& other : others)
    if (other.contestant->transforms()) check_agreement(kernel, *ours, *other.contestant, arrays_);
  arrays_.fill();
  if (placement.in_place || (rival && rival->destroys_input())) arrays_.clear();
  lanes_.emplace_back(std::make_unique<CycleChain>());
  lanes_.emplace_back(std::move(ours));
  if (rival) lanes_.emplace_back(std::move(rival));
  for (auto& other : others) {
    others_.push_back(other.name);
    lanes_.emplace_back(std::move(other.contestant));
  }
}

void Race::run(int rounds) {
  for (Lane& lane : lanes_) lane.warm_up();
  const std::size_t end = lanes_.size();
  for (int round = 0; round < rounds; ++round) {
    lanes_[kChain].sample();
    for (std::size_t i = kOurs; i < end; ++i) lanes_[round % 2 == 0 ? i : end - i].sample();
  }
}

Result Race::result() const {
  const double cycle = summarize(lanes_[kChain].samples).least / CycleChain::kCyclesPerCall;
  const auto time = [&](std::size_t lane) { return divided(summarize(lanes_[lane].samples), cycle); };
  Result result{kernel_, cycle, limit_, time(kOurs), {}, {}};
  const std::size_t first_other = lanes_.size() - others_.size();
  if (first_other > kRival) result.rival = time(kRival);
  for (std::size_t i = 0; i < others_.size(); ++i)
    result.others.push_back({others_[i], time(first_other + i)});
  return result;
}

}  // namespace xfm::bench
