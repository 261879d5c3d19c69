#include "bench/many.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <stdexcept>

#include "bench/fftw_many.h"
#include "bench/progress.h"
#include "bench/statistics.h"
#include "bench/timing.h"

namespace xfm::bench {
namespace {

using catalogue::Kernel;
using catalogue::Places;

constexpr int counts[] = {64, 1024};

std::size_t scalar_bytes(const Kernel& kernel) {
  return kernel.precision == catalogue::Precision::binary32 ? 4 : 8;
}

struct Free {
  void operator()(void* memory) const { std::free(memory); }
};

// Room for the input or the output of a batch on either road, and for the zeros that FFTW's spectra have.
// Zeros, too, so that FFTW's inverse real transforms, which destroy their input, leave what they found.
std::unique_ptr<std::byte, Free> room(const Kernel& kernel, int count, bool with_numbers) {
  const std::size_t scalars =
      static_cast<std::size_t>(std::max(kernel.read, kernel.written) + 2) * static_cast<std::size_t>(count);
  const std::size_t bytes = (scalars * scalar_bytes(kernel) + 4095) / 4096 * 4096;
  std::unique_ptr<std::byte, Free> memory(static_cast<std::byte*>(std::aligned_alloc(4096, bytes)));
  std::memset(memory.get(), 0, bytes);
  if (!with_numbers) return memory;
  std::mt19937 random(1);
  std::uniform_real_distribution<float> noise(-1, 1);
  for (std::size_t i = 0; i < scalars; ++i) {
    const float narrow = noise(random);
    const double wide = double{narrow};
    std::memcpy(memory.get() + i * scalar_bytes(kernel),
                scalar_bytes(kernel) == 4 ? static_cast<const void*>(&narrow) : &wide, scalar_bytes(kernel));
  }
  return memory;
}

struct Problem {
  const Kernel& kernel;
  int count;
  bool lanes;
  std::byte *src, *dst;

  int elements(int scalars) const { return scalars / catalogue::scalars_of_element(kernel); }
  Places places(int scalars) const { return lanes ? Places{count, 1} : Places{1, elements(scalars)}; }
};

class BatchOf final : public Contestant {
 public:
  explicit BatchOf(const Problem& problem)
      : problem_(problem),
        call_(catalogue::batch(problem.kernel).call),
        from_(problem.places(problem.kernel.read)),
        to_(problem.places(problem.kernel.written)) {}

  void run(int calls) override {
    for (int i = 0; i < calls; ++i)
      call_(problem_.src, from_, problem_.dst, to_, problem_.kernel.length, problem_.count, XFM_SCALE_NONE);
  }

 private:
  Problem problem_;
  catalogue::BatchCall call_;
  Places from_, to_;
};

// One after the other, on contiguous transforms: single calls have no other places.
class SingleCalls final : public Contestant {
 public:
  explicit SingleCalls(const Problem& problem) : problem_(problem) {}

  void run(int calls) override {
    const auto bytes = scalar_bytes(problem_.kernel);
    const std::size_t from = static_cast<std::size_t>(problem_.kernel.read) * bytes,
                      to = static_cast<std::size_t>(problem_.kernel.written) * bytes;
    for (int i = 0; i < calls; ++i)
      for (std::size_t t = 0; t < static_cast<std::size_t>(problem_.count); ++t)
        problem_.kernel.call(problem_.src + t * from, problem_.dst + t * to, XFM_SCALE_NONE);
  }

 private:
  Problem problem_;
};

template <class Real>
ContestantPtr many_of_fftw(const Problem& p) {
  const auto plan = fftw::plan_of<Real>(p.kernel.family, {p.kernel.length, p.count, p.lanes, p.src, p.dst});
  return plan == nullptr ? nullptr : std::make_unique<fftw::ManyTransforms<Real>>(plan);
}
ContestantPtr rival_of(const Problem& p) {
  return p.kernel.precision == catalogue::Precision::binary32 ? many_of_fftw<float>(p)
                                                              : many_of_fftw<double>(p);
}

/// Core cycles for one transform.
struct Times {
  double batch, single, rival;  ///< the last is 0 without a rival
};

Times raced(const Kernel& kernel, int count, bool lanes, const ManyOptions& options) {
  const auto src = room(kernel, count, std::string(kernel.family) != "DFTInv_CCSToR" || options.alone),
             dst = room(kernel, count, false);
  const Problem problem{kernel, count, lanes, src.get(), dst.get()};
  std::vector<ContestantPtr> all;
  all.push_back(std::make_unique<CycleChain>());
  all.push_back(std::make_unique<BatchOf>(problem));
  all.push_back(std::make_unique<SingleCalls>(problem));
  if (!options.alone) {
    if (auto rival = rival_of(problem)) all.push_back(std::move(rival));
  }
  std::vector<int> calls;
  std::vector<std::vector<double>> samples(all.size());
  for (const auto& contestant : all) calls.push_back(calls_per_batch(*contestant));
  for (int round = 0; round < options.rounds; ++round)
    for (std::size_t i = 0; i < all.size(); ++i) samples[i].push_back(time_batch(*all[i], calls[i]));
  const auto least = [&](std::size_t i) { return i < all.size() ? summarize(samples[i]).least : 0; };
  const double cycle = least(0) / CycleChain::kCyclesPerCall * count;
  return {least(1) / cycle, least(2) / cycle, least(3) / cycle};
}

/// The ratios of a family and type, by road and count.
struct Ratios {
  std::vector<double> to_single, to_rival;
};

void print_means(const std::map<std::string, Ratios>& all) {
  fmt::print("\n{:<44} {:>8} {:>8} {:>8} {:>8}\n", "geometric means and least ratios", "FFTW", "least",
             "single", "least");
  for (const auto& [name, ratios] : all) {
    const auto least = [](const std::vector<double>& of) { return *std::ranges::min_element(of); };
    if (ratios.to_rival.empty())
      fmt::print("{:<44} {:>8} {:>8} ", name, "", "");
    else
      fmt::print("{:<44} {:>8.2f} {:>8.2f} ", name, geometric_mean(ratios.to_rival), least(ratios.to_rival));
    fmt::print("{:>8.2f} {:>8.2f}\n", geometric_mean(ratios.to_single), least(ratios.to_single));
  }
}

}  // namespace

void race_batches(const std::vector<const Kernel*>& kernels, const ManyOptions& options) {
  fmt::print("cycles a transform\n{:<28} {:<12} {:>6} {:>9} {:>9} {:>9} {:>7} {:>7}\n", "kernel", "places",
             "count", "batch", "single", "FFTW", "FFTW/", "single/");
  std::map<std::string, Ratios> means;
  std::size_t done = 0;
  const std::size_t all = kernels.size() * std::size(counts) * 2;
  for (const Kernel* kernel : kernels) {
    for (const int count : counts) {
      for (const bool lanes : {false, true}) {
        const char* const places = lanes ? "lanes" : "contiguous";
        show_progress("planning and racing", done++, all);
        const Times times = raced(*kernel, count, lanes, options);
        hide_progress();
        Ratios& ratios = means[fmt::format("{} {}, {}, {}", kernel->family, kernel->type, places, count)];
        ratios.to_single.push_back(times.single / times.batch);
        if (times.rival > 0) ratios.to_rival.push_back(times.rival / times.batch);
        fmt::print("{:<28} {:<12} {:>6} {:>9.1f} {:>9.1f} {:>9.1f} {:>7.2f} {:>7.2f}\n", kernel->name, places,
                   count, times.batch, times.single, times.rival, times.rival / times.batch,
                   times.single / times.batch);
        std::fflush(stdout);
      }
    }
  }
  print_means(means);
}

}  // namespace xfm::bench
