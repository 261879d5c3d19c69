#include "bench/fftw_interface.h"

#include <dlfcn.h>
#include <fmt/format.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/fftw.h"
#include "bench/statistics.h"
#include "bench/timing.h"
#include "xfm_lookup.h"

namespace xfm::bench {
namespace {

// ---- what is raced

enum class Transform { c2c, r2c, c2r, dht, r2hc, hc2r, redft11 };
constexpr const char* names[] = {"c2c", "r2c", "c2r", "DHT", "R2HC", "HC2R", "REDFT11"};

constexpr fftw_r2r_kind kind_of(Transform transform) {
  switch (transform) {
    case Transform::dht:
      return FFTW_DHT;
    case Transform::r2hc:
      return FFTW_R2HC;
    case Transform::hc2r:
      return FFTW_HC2R;
    default:
      return FFTW_REDFT11;
  }
}

struct Shape {
  const char* name;
  std::vector<Transform> transforms;
  std::vector<int> lengths;
  int rank, count;
  bool lanes;  ///< transforms side by side
};

std::vector<Shape> shapes() {
  using enum Transform;
  const std::vector<Transform> dfts{c2c, r2c, c2r, dht, r2hc, hc2r};
  const std::vector<int> lengths{2, 3, 4, 5, 7, 8, 12, 15, 16, 20, 24, 31, 32, 45, 48, 60, 64};
  return {{"single", dfts, lengths, 1, 1, false},
          {"64, contiguous", dfts, lengths, 1, 64, false},
          {"64, lanes", dfts, lengths, 1, 64, true},
          {"1024, contiguous", dfts, lengths, 1, 1024, false},
          {"1024, lanes", dfts, lengths, 1, 1024, true},
          {"2-D", {c2c, r2c, c2r, dht}, {4, 8, 12, 16, 32, 48, 64}, 2, 1, false},
          {"2-D, 64 of them", {c2c, r2c, c2r, dht}, {4, 8, 16}, 2, 64, false},
          {"3-D", {c2c, r2c, c2r}, {4, 8, 16, 32}, 3, 1, false},
          {"single", {redft11}, {8, 32, 64, 256, 1024, 4096, 16384, 65536}, 1, 1, false}};
}

// ---- the two libraries

#define XFM_BENCH_FUNCTIONS(ONE) \
  ONE(plan_many_dft)             \
  ONE(plan_many_dft_r2c) ONE(plan_many_dft_c2r) ONE(plan_many_r2r) ONE(execute) ONE(destroy_plan)

/// Functions of the same names: those that this program is linked with, or those of another library.
template <class Real>
struct Functions;
#define XFM_BENCH_MEMBER(name) decltype(&XFM_BENCH_PREFIXED(name)) name = &XFM_BENCH_PREFIXED(name);
#define XFM_BENCH_LOAD(name) load(name, library, XFM_BENCH_PREFIX #name);

template <class Function>
void load(Function*& function, void* library, const char* name) {
  function = reinterpret_cast<Function*>(dlsym(library, name));
  if (function == nullptr) throw std::runtime_error(fmt::format("there is no {}", name));
}

#define XFM_BENCH_PREFIX "fftwf_"
#define XFM_BENCH_PREFIXED(name) fftwf_##name
template <>
struct Functions<float> {
  Functions() = default;
  explicit Functions(void* library){XFM_BENCH_FUNCTIONS(XFM_BENCH_LOAD)} XFM_BENCH_FUNCTIONS(XFM_BENCH_MEMBER)
};
#undef XFM_BENCH_PREFIX
#undef XFM_BENCH_PREFIXED
#define XFM_BENCH_PREFIX "fftw_"
#define XFM_BENCH_PREFIXED(name) fftw_##name
template <>
struct Functions<double> {
  Functions() = default;
  explicit Functions(void* library){XFM_BENCH_FUNCTIONS(XFM_BENCH_LOAD)} XFM_BENCH_FUNCTIONS(XFM_BENCH_MEMBER)
};

template <class Real>
constexpr bool is_single = sizeof(Real) == 4;

/// A library that keeps its names to itself: this program has FFTW's under the same ones.
void* interface_library(bool single) {
#ifdef XFM_BENCH_FFTW_SINGLE
  const char* const file = single ? XFM_BENCH_FFTW_SINGLE : XFM_BENCH_FFTW_DOUBLE;
  if (void* const library = dlopen(file, RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND)) return library;
  throw std::runtime_error(dlerror());
#else
  static_cast<void>(single);
  throw std::runtime_error("this build has no interface of FFTW: configure with -DXFM_FFTW_COMPAT=ON");
#endif
}

// ---- plans

struct Problem {
  const Shape& shape;
  Transform transform;
  int length;
  void *in, *out;

  std::vector<int> lengths() const { return std::vector<int>(static_cast<std::size_t>(shape.rank), length); }
  /// Elements from one transform to the next: those of half spectra are complex.
  int elements(bool halved) const {
    int n = halved ? length / 2 + 1 : length;
    for (int d = 1; d < shape.rank; ++d) n *= length;
    return n;
  }
  int stride() const { return shape.lanes ? shape.count : 1; }
  int distance(bool halved) const { return shape.lanes ? 1 : elements(halved); }
  std::size_t reals() const {
    return 2 * static_cast<std::size_t>(elements(false) + elements(true)) *
           static_cast<std::size_t>(shape.count);
  }
};

template <class Real>
typename fftw::Api<Real>::Plan plan_of(const Functions<Real>& api, const Problem& p) {
  using Complex = typename fftw::Api<Real>::Complex;
  const auto n = p.lengths();
  const int rank = p.shape.rank, count = p.shape.count, stride = p.stride();
  auto* const real_in = static_cast<Real*>(p.in);
  auto* const real_out = static_cast<Real*>(p.out);
  auto* const in = static_cast<Complex*>(p.in);
  auto* const out = static_cast<Complex*>(p.out);
  const int whole = p.distance(false), half = p.distance(true);
  switch (p.transform) {
    case Transform::c2c:
      return api.plan_many_dft(rank, n.data(), count, in, nullptr, stride, whole, out, nullptr, stride, whole,
                               FFTW_FORWARD, FFTW_MEASURE);
    case Transform::r2c:
      return api.plan_many_dft_r2c(rank, n.data(), count, real_in, nullptr, stride, whole, out, nullptr,
                                   stride, half, FFTW_MEASURE);
    case Transform::c2r:
      return api.plan_many_dft_c2r(rank, n.data(), count, in, nullptr, stride, half, real_out, nullptr,
                                   stride, whole, FFTW_MEASURE);
    default: {
      const std::vector<fftw_r2r_kind> kinds(n.size(), kind_of(p.transform));
      return api.plan_many_r2r(rank, n.data(), count, real_in, nullptr, stride, whole, real_out, nullptr,
                               stride, whole, kinds.data(), FFTW_MEASURE);
    }
  }
}

template <class Real>
class Planned final : public Contestant {
 public:
  Planned(const Functions<Real>& api, const Problem& problem)
      : execute_(api.execute), destroy_(api.destroy_plan), plan_(plan_of(api, problem)) {
    if (plan_ == nullptr) throw std::runtime_error("there is no plan");
  }
  Planned(const Planned&) = delete;
  Planned& operator=(const Planned&) = delete;
  ~Planned() override { destroy_(plan_); }
  void run(int calls) override {
    for (int i = 0; i < calls; ++i) execute_(plan_);
  }

 private:
  decltype(Functions<Real>::execute) execute_;
  decltype(Functions<Real>::destroy_plan) destroy_;
  typename fftw::Api<Real>::Plan plan_;
};

template <class Element, class Kernel>
class Bare final : public Contestant {
 public:
  Bare(Kernel kernel, const Problem& p)
      : kernel_(kernel), in_(static_cast<const Element*>(p.in)), out_(static_cast<Element*>(p.out)) {}
  void run(int calls) override {
    for (int i = 0; i < calls; ++i) kernel_(in_, out_, XFM_SCALE_NONE);
  }

 private:
  Kernel kernel_;
  const Element* in_;
  Element* out_;
};

template <class Element, class Kernel>
ContestantPtr bare(Kernel kernel, const Problem& p) {
  return std::make_unique<Bare<Element, Kernel>>(kernel, p);
}

/// The kernel that a plan of one transform calls; null if it does more than that.
template <class Real>
ContestantPtr kernel_of(const Problem& p) {
  if (p.shape.count != 1 || p.shape.rank != 1) return nullptr;
  if constexpr (is_single<Real>) {
    if (p.transform == Transform::c2c) return bare<xfm32fc>(xfmLookupDFTFwd_CToC_32fc(p.length), p);
    if (p.transform == Transform::r2c) return bare<xfm32f>(xfmLookupDFTFwd_RToCCS_32f(p.length), p);
    if (p.transform == Transform::c2r) return bare<xfm32f>(xfmLookupDFTInv_CCSToR_32f(p.length), p);
    if (p.transform == Transform::dht) return bare<xfm32f>(xfmLookupHartley_32f(p.length), p);
  } else {
    if (p.transform == Transform::c2c) return bare<xfm64fc>(xfmLookupDFTFwd_CToC_64fc(p.length), p);
    if (p.transform == Transform::r2c) return bare<xfm64f>(xfmLookupDFTFwd_RToCCS_64f(p.length), p);
    if (p.transform == Transform::c2r) return bare<xfm64f>(xfmLookupDFTInv_CCSToR_64f(p.length), p);
    if (p.transform == Transform::dht) return bare<xfm64f>(xfmLookupHartley_64f(p.length), p);
  }
  return nullptr;
}

// ---- races

struct Free {
  void operator()(void* memory) const { std::free(memory); }
};
using Memory = std::unique_ptr<void, Free>;

/// Zeros: a transform that is applied to its own output must not overflow.
Memory room(std::size_t bytes) {
  bytes = (bytes + 4095) / 4096 * 4096;
  Memory memory(std::aligned_alloc(4096, bytes));
  std::memset(memory.get(), 0, bytes);
  return memory;
}

/// Core cycles of a call; the kernel's are 0 if there is none.
struct Times {
  double xfm, fftw, kernel;
};

template <class Real>
Times raced(const Functions<Real>& ours, const Functions<Real>& theirs, const Problem& problem, int rounds) {
  std::vector<ContestantPtr> all;
  all.push_back(std::make_unique<CycleChain>());
  all.push_back(std::make_unique<Planned<Real>>(ours, problem));
  all.push_back(std::make_unique<Planned<Real>>(theirs, problem));
  if (auto kernel = kernel_of<Real>(problem)) all.push_back(std::move(kernel));
  std::vector<int> calls;
  for (const auto& contestant : all) calls.push_back(calls_per_batch(*contestant));
  std::vector<std::vector<double>> samples(all.size());
  for (int round = 0; round < rounds; ++round)
    for (std::size_t i = 0; i < all.size(); ++i) samples[i].push_back(time_batch(*all[i], calls[i]));
  const auto least = [&](std::size_t i) { return i < all.size() ? summarize(samples[i]).least : 0; };
  const double cycle = least(0) / CycleChain::kCyclesPerCall;
  return {least(1) / cycle, least(2) / cycle, least(3) / cycle};
}

struct Figures {
  std::vector<double> ratios, overheads;
};
using Summaries = std::map<std::string, Figures>;

void note(Summaries& summaries, const std::string& name, const Times& times) {
  Figures& figures = summaries[name];
  figures.ratios.push_back(times.fftw / times.xfm);
  if (times.kernel > 0) figures.overheads.push_back(times.xfm - times.kernel);
}

template <class Real>
void race(const Shape& shape, int rounds, Summaries& summaries) {
  static const Functions<Real> ours(interface_library(is_single<Real>)), theirs;
  const char* const type = is_single<Real> ? "32f" : "64f";
  for (const Transform transform : shape.transforms) {
    for (const int length : shape.lengths) {
      Problem problem{shape, transform, length, nullptr, nullptr};
      const Memory in = room(problem.reals() * sizeof(Real)), out = room(problem.reals() * sizeof(Real));
      problem.in = in.get();
      problem.out = out.get();
      const Times times = raced(ours, theirs, problem, rounds);
      const char* const name = names[static_cast<int>(transform)];
      note(summaries, fmt::format("{:<8} {} {}", name, type, shape.name), times);
      fmt::print("{:<8} {:<4} {:<18} {:>6} {:>11.1f} {:>11.1f} {:>7.2f}", name, type, shape.name, length,
                 times.xfm, times.fftw, times.fftw / times.xfm);
      if (times.kernel > 0) fmt::print(" {:>9.1f} {:>9.1f}", times.kernel, times.xfm - times.kernel);
      fmt::print("\n");
      std::fflush(stdout);
    }
  }
}

void print_summaries(const Summaries& summaries) {
  fmt::print("\n{:<36} {:>8} {:>8} {:>14}\n", "FFTW/xfm", "mean", "least", "overhead");
  for (const auto& [name, figures] : summaries) {
    fmt::print("{:<36} {:>8.2f} {:>8.2f}", name, geometric_mean(figures.ratios),
               *std::ranges::min_element(figures.ratios));
    auto overheads = figures.overheads;
    if (!overheads.empty()) fmt::print(" {:>6.1f} median", summarize(overheads).median);
    fmt::print("\n");
  }
}

}  // namespace

void race_fftw_interface(int rounds) {
  fmt::print("cycles a call\n{:<8} {:<4} {:<18} {:>6} {:>11} {:>11} {:>7} {:>9} {:>9}\n", "kind", "type",
             "places", "length", "xfm", "FFTW", "FFTW/", "kernel", "overhead");
  Summaries summaries;
  for (const Shape& shape : shapes()) {
    race<float>(shape, rounds, summaries);
    race<double>(shape, rounds, summaries);
  }
  print_summaries(summaries);
}

}  // namespace xfm::bench
