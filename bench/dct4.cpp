#include "bench/dct4.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "bench/fftw.h"
#include "bench/twist.h"

namespace xfm::bench {

namespace {

using catalogue::Precision;

constexpr int kLongest = 22;

/// A patient plan of a long length takes minutes, so those plans are only measured.
unsigned effort(int length) { return length <= 1 << 12 ? FFTW_PATIENT : FFTW_MEASURE; }

template <class Real>
struct Names;

template <>
struct Names<float> {
  using State = xfmDCT4State_32f;
  static constexpr const char* suffix = "_32f";
};

template <>
struct Names<double> {
  using State = xfmDCT4State_64f;
  static constexpr const char* suffix = "_64f";
};

template <class Real>
class Dct4 final : public Contestant {
 public:
  Dct4(const Library& library, int length, Arrays& arrays)
      : run_(function<Run>(library, "xfmDCT4")),
        src_(static_cast<const Real*>(arrays.src())),
        dst_(static_cast<Real*>(arrays.dst())) {
    std::int32_t size = 0;
    function<GetSize>(library, "xfmDCT4GetSize")(length, &size);
    memory_.reset(static_cast<std::byte*>(operator new(static_cast<std::size_t>(size), kPage)));
    if (function<Init>(library, "xfmDCT4Init")(&state_, length, memory_.get()) != xfmStsOk)
      throw std::runtime_error("no state of the DCT-IV");
  }

  void run(int calls) override {
    for (int i = 0; i < calls; ++i) run_(src_, dst_, state_);
  }

 private:
  using State = typename Names<Real>::State;
  using GetSize = xfmStatus (*)(std::int32_t length, std::int32_t* size);
  using Init = xfmStatus (*)(State** state, std::int32_t length, void* block);
  using Run = xfmStatus (*)(const Real* src, Real* dst, State* state);
  template <class Function>
  static Function function(const Library& library, const std::string& name) {
    return library.function<Function>(name + Names<Real>::suffix);
  }

  /// All states start at the same offset in a page, because that offset changes the time of a call by several
  /// percent.
  static constexpr std::align_val_t kPage{4096};
  struct Free {
    void operator()(std::byte* memory) const { operator delete(memory, kPage); }
  };

  Run run_;
  const Real* src_;
  Real* dst_;
  std::unique_ptr<std::byte, Free> memory_;
  State* state_ = nullptr;
};

template <class Real>
class Redft11 final : public Contestant {
 public:
  Redft11(int length, Arrays& arrays)
      : src_(static_cast<Real*>(arrays.src())),
        dst_(static_cast<Real*>(arrays.dst())),
        plan_(fftw::Api<Real>::plan_r2r(1, &length, src_, dst_, &kKind, effort(length))) {}

  void run(int calls) override {
    for (int i = 0; i < calls; ++i) fftw::Api<Real>::execute_r2r(plan_.get(), src_, dst_);
  }
  double factor() const override { return 0.5; }

 private:
  static constexpr fftw_r2r_kind kKind = FFTW_REDFT11;
  Real* src_;
  Real* dst_;
  fftw::Plan<Real> plan_;
};

/// Where the complex transform of a twist happens: in dst, or in a buffer of its own, or from one buffer to
/// another.
enum class Place { dst, buffer, buffers };

template <class Real>
class Twisted final : public Contestant {
 public:
  Twisted(const TwistPasses<Real>& passes, int length, Place place, Arrays& arrays)
      : passes_(passes),
        length_(length),
        src_(static_cast<const Real*>(arrays.src())),
        dst_(static_cast<Real*>(arrays.dst())),
        table_(twist_table<Real>(length)),
        memory_(2 * count() + kLine),
        from_(place == Place::dst ? dst_ : aligned(memory_)),
        to_(place == Place::buffers ? from_ + count() : from_),
        plan_(fftw::Api<Real>::plan_dft_1d(length / 2, complex(from_), complex(to_), FFTW_FORWARD,
                                           effort(length))) {}

  void run(int calls) override {
    for (int i = 0; i < calls; ++i) {
      passes_.before(src_, from_, length_, table_.data());
      fftw::Api<Real>::execute_dft(plan_.get(), complex(from_), complex(to_));
      passes_.after(to_, dst_, length_, table_.data());
    }
  }

 private:
  static constexpr std::size_t kLine = 64 / sizeof(Real);
  using Complex = typename fftw::Api<Real>::Complex;
  static Complex* complex(Real* p) { return reinterpret_cast<Complex*>(p); }
  static Real* aligned(std::vector<Real>& memory) {
    void* start = memory.data();
    std::size_t room = memory.size() * sizeof(Real);
    return static_cast<Real*>(std::align(64, sizeof(Real), start, room));
  }
  std::size_t count() const { return (static_cast<std::size_t>(length_) + kLine - 1) / kLine * kLine; }

  TwistPasses<Real> passes_;
  int length_;
  const Real* src_;
  Real* dst_;
  std::vector<Real> table_;
  std::vector<Real> memory_;
  Real* from_;
  Real* to_;
  fftw::Plan<Real> plan_;
};

template <class Real>
ContestantPtr twisted(const TwistPasses<Real>& passes, int length, Place place, Arrays& arrays) {
  return fftw::best_plan<Real>(
      [&] { return std::make_unique<Twisted<Real>>(passes, length, place, arrays); });
}

/// Three plain copies of arrays as long as those of a transform, from memory to memory: a run that reads src,
/// goes through its state and writes dst moves about as much.
class ThreeCopies final : public Contestant {
 public:
  explicit ThreeCopies(std::size_t bytes) : bytes_(bytes) {}

  void run(int calls) override {
    static_assert(kRoom >= (std::size_t{1} << kLongest) * sizeof(double));
    static std::vector<std::byte> from(kRoom, std::byte{1}), to(kRoom);  // shared by the races of all lengths
    for (int i = 0; i < 3 * calls; ++i) {
      std::memcpy(to.data() + at_, from.data() + at_, bytes_);
      at_ += bytes_;
      if (at_ + bytes_ > kRoom) at_ = 0;
    }
  }
  bool transforms() const override { return false; }

 private:
  static constexpr std::size_t kRoom = std::size_t{1} << 27;  // beyond any cache
  std::size_t bytes_;
  std::size_t at_ = 0;
};

catalogue::Kernel row(const std::string& name, Precision precision, int exponent) {
  const int n = 1 << exponent;
  return {.name = name.c_str(),
          .family = "DCT4",
          .type = precision == Precision::binary32 ? "32f" : "64f",
          .precision = precision,
          .scaling = catalogue::Scaling::symmetric,
          .length = n,
          .points = n,
          .read = n,
          .written = n,
          .tree = "",
          .adds = 3 * n * exponent / 2,
          .mults = n * exponent / 2,  // and one for every output, which the limit counts
          .buffer_bytes = 0,
          .call = nullptr,
          .call_with_buffer = nullptr};
}

}  // namespace

std::span<const catalogue::Kernel> dct4_kernels() {
  static std::deque<std::string> names;
  static const std::vector<catalogue::Kernel> rows = [] {
    std::vector<catalogue::Kernel> result;
    for (const Precision precision : {Precision::binary32, Precision::binary64})
      for (int exponent = 1; exponent <= kLongest; ++exponent) {
        const char* const type = precision == Precision::binary32 ? "32f" : "64f";
        result.push_back(
            row(names.emplace_back(fmt::format("xfmDCT4_{}_{}", 1 << exponent, type)), precision, exponent));
      }
    return result;
  }();
  return rows;
}

catalogue::Form dct4_form(const catalogue::Kernel& kernel) {
  const int lanes = kernel.precision == Precision::binary32 ? 4 : 2;
  return {.lanes = kernel.length > 32 ? lanes : 1,
          .straight = false,
          .two_variants = false,
          .bodies = 1,
          .exchanges = -1,
          .add_instructions = 0,
          .mult_instructions = 0};
}

ContestantPtr make_dct4(const Library& library, const catalogue::Kernel& kernel, Arrays& arrays) {
  if (kernel.precision == Precision::binary32)
    return std::make_unique<Dct4<float>>(library, kernel.length, arrays);
  return std::make_unique<Dct4<double>>(library, kernel.length, arrays);
}

template <class Real>
ContestantPtr fftw_dct4(int length, Arrays& arrays) {
  const TwistPasses<Real> passes = twists<Real>().back().registers;
  std::vector<ContestantPtr> candidates;
  for (const Place place : {Place::dst, Place::buffer, Place::buffers})
    candidates.push_back(twisted(passes, length, place, arrays));
  candidates.push_back(
      fftw::best_plan<Real>([&] { return std::make_unique<Redft11<Real>>(length, arrays); }));
  return fastest(std::move(candidates));
}
template ContestantPtr fftw_dct4<float>(int length, Arrays& arrays);
template ContestantPtr fftw_dct4<double>(int length, Arrays& arrays);

template <class Real>
std::vector<NamedContestant> further_dct4_rivals(int length, Arrays& arrays) {
  const auto all = twists<Real>();
  const auto bytes = static_cast<std::size_t>(length) * sizeof(Real);
  std::vector<NamedContestant> rivals;
  rivals.push_back({"twist in loops", twisted(all.back().loops, length, Place::buffer, arrays)});
  rivals.push_back({"128-bit twist", twisted(all.front().registers, length, Place::dst, arrays)});
  rivals.push_back({"128-bit loops", twisted(all.front().loops, length, Place::buffer, arrays)});
  rivals.push_back({"three copies", std::make_unique<ThreeCopies>(bytes)});
  return rivals;
}
template std::vector<NamedContestant> further_dct4_rivals<float>(int length, Arrays& arrays);
template std::vector<NamedContestant> further_dct4_rivals<double>(int length, Arrays& arrays);

}  // namespace xfm::bench
