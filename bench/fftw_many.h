// FFTW's plans of many transforms as contestants.
#pragma once

#include <cstring>
#include <string_view>
#include <vector>

#include "bench/fftw.h"
#include "tools/many_catalogue.h"

namespace xfm::bench::fftw {

/// What is transformed, in elements of FFTW's types: half spectra are complex.
struct Many {
  int length;
  int count;
  bool lanes;  ///< transforms side by side, or one after the other
  void* src;
  void* dst;

  int stride() const { return lanes ? count : 1; }
  int distance(int elements) const { return lanes ? 1 : elements; }
};

template <class Real>
struct ManyApi;
template <>
struct ManyApi<float> {
  static constexpr auto dft = fftwf_plan_many_dft;
  static constexpr auto r2c = fftwf_plan_many_dft_r2c;
  static constexpr auto c2r = fftwf_plan_many_dft_c2r;
  static constexpr auto r2r = fftwf_plan_many_r2r;
  static constexpr auto execute = fftwf_execute;
};
template <>
struct ManyApi<double> {
  static constexpr auto dft = fftw_plan_many_dft;
  static constexpr auto r2c = fftw_plan_many_dft_r2c;
  static constexpr auto c2r = fftw_plan_many_dft_c2r;
  static constexpr auto r2r = fftw_plan_many_r2r;
  static constexpr auto execute = fftw_execute;
};

template <class Real>
typename Api<Real>::Plan plan_of(std::string_view family, const Many& m) {
  using Complex = typename Api<Real>::Complex;
  auto* const real_in = static_cast<Real*>(m.src);
  auto* const real_out = static_cast<Real*>(m.dst);
  auto* const in = static_cast<Complex*>(m.src);
  auto* const out = static_cast<Complex*>(m.dst);
  const int n = m.length, s = m.stride(), whole = m.distance(n), half = m.distance(n / 2 + 1);
  if (family == "DFTFwd_CToC" || family == "DFTInv_CToC") {
    const int sign = family == "DFTFwd_CToC" ? FFTW_FORWARD : FFTW_BACKWARD;
    return ManyApi<Real>::dft(1, &n, m.count, in, nullptr, s, whole, out, nullptr, s, whole, sign,
                              FFTW_PATIENT);
  }
  if (family == "DFTFwd_RToCCS")
    return ManyApi<Real>::r2c(1, &n, m.count, real_in, nullptr, s, whole, out, nullptr, s, half,
                              FFTW_PATIENT);
  if (family == "DFTInv_CCSToR")
    return ManyApi<Real>::c2r(1, &n, m.count, in, nullptr, s, half, real_out, nullptr, s, whole,
                              FFTW_PATIENT | FFTW_DESTROY_INPUT);
  if (family == "Hartley") {
    const fftw_r2r_kind kind = FFTW_DHT;
    return ManyApi<Real>::r2r(1, &n, m.count, real_in, nullptr, s, whole, real_out, nullptr, s, whole, &kind,
                              FFTW_PATIENT);
  }
  if (family == "WHT") {
    const std::vector<int> twos(static_cast<std::size_t>(n), 2);
    const std::vector<fftw_r2r_kind> kinds(twos.size(), FFTW_R2HC);
    const int points = m.distance(1 << n);
    return ManyApi<Real>::r2r(n, twos.data(), m.count, real_in, nullptr, s, points, real_out, nullptr, s,
                              points, kinds.data(), FFTW_PATIENT);
  }
  return nullptr;
}

template <class Real>
class ManyTransforms final : public Contestant {
 public:
  explicit ManyTransforms(typename Api<Real>::Plan plan) : plan_(plan) {}
  void run(int calls) override {
    for (int i = 0; i < calls; ++i) ManyApi<Real>::execute(plan_.get());
  }

 private:
  Plan<Real> plan_;
};

}  // namespace xfm::bench::fftw
