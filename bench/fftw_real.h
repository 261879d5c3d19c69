// FFTW's real transforms as contestants. Its half spectrum is an array of complex numbers, as in CCS; if a
// kernel has another layout, FFTW still uses its own, and its output is rearranged only to be compared.
#pragma once

#include <cstring>

#include "bench/fftw.h"

namespace xfm::bench::fftw {

enum class Layout { ccs, pack, perm };

/// Moves the elements of a half spectrum of N real samples within their array, from one layout to another.
template <class Real>
void ccs_to(Layout layout, Real* spectrum, int length) {
  const auto n = static_cast<std::size_t>(length);
  if (layout == Layout::perm && length % 2 == 0) {
    spectrum[1] = spectrum[n];
  } else if (layout != Layout::ccs) {
    std::memmove(spectrum + 1, spectrum + 2, (n - 1) * sizeof(Real));
  }
}

template <class Real>
void to_ccs(Layout layout, Real* spectrum, int length) {
  const auto n = static_cast<std::size_t>(length);
  if (layout == Layout::perm && length % 2 == 0) {
    spectrum[n] = spectrum[1];
  } else if (layout != Layout::ccs) {
    std::memmove(spectrum + 2, spectrum + 1, (n - 1) * sizeof(Real));
  }
  spectrum[1] = 0;
  if (length % 2 == 0) spectrum[n + 1] = 0;
}

template <class Real, Layout layout>
class RealDft final : public Contestant {
 public:
  RealDft(int length, Arrays& arrays)
      : length_(length),
        src_(static_cast<Real*>(arrays.src())),
        dst_(static_cast<Complex*>(arrays.dst())),
        plan_(Api<Real>::plan_r2c_1d(length, src_, dst_, FFTW_PATIENT)) {}

  void run(int calls) override {
    for (int i = 0; i < calls; ++i) Api<Real>::execute_r2c(plan_.get(), src_, dst_);
  }
  void give_output() override { ccs_to(layout, reinterpret_cast<Real*>(dst_), length_); }

 private:
  using Complex = typename Api<Real>::Complex;
  int length_;
  Real* src_;
  Complex* dst_;
  Plan<Real> plan_;
};

/// FFTW may destroy the input of this one, which is its default: if it has to preserve it, as our kernels do,
/// it takes two to three times as long at many even lengths.
template <class Real, Layout layout>
class InverseRealDft final : public Contestant {
 public:
  InverseRealDft(int length, Arrays& arrays)
      : length_(length),
        src_(static_cast<Complex*>(arrays.src())),
        dst_(static_cast<Real*>(arrays.dst())),
        plan_(Api<Real>::plan_c2r_1d(length, src_, dst_, FFTW_PATIENT | FFTW_DESTROY_INPUT)) {}

  void run(int calls) override {
    for (int i = 0; i < calls; ++i) Api<Real>::execute_c2r(plan_.get(), src_, dst_);
  }
  void take_input() override { to_ccs(layout, reinterpret_cast<Real*>(src_), length_); }
  bool destroys_input() const override { return true; }

 private:
  using Complex = typename Api<Real>::Complex;
  int length_;
  Complex* src_;
  Real* dst_;
  Plan<Real> plan_;
};

/// FFTW's discrete Hartley transform, or its half-complex one with the sums and differences that convert it
/// to a Hartley transform.
template <class Real>
class Dht final : public Contestant {
 public:
  Dht(int length, fftw_r2r_kind kind, Arrays& arrays)
      : length_(length),
        kind_(kind),
        src_(static_cast<Real*>(arrays.src())),
        dst_(static_cast<Real*>(arrays.dst())),
        plan_(Api<Real>::plan_r2r(1, &length, src_, dst_, &kind, FFTW_PATIENT)) {}

  void run(int calls) override {
    if (kind_ == FFTW_DHT) {
      for (int i = 0; i < calls; ++i) Api<Real>::execute_r2r(plan_.get(), src_, dst_);
      return;
    }
    for (int i = 0; i < calls; ++i) {
      Api<Real>::execute_r2r(plan_.get(), src_, dst_);
      for (int k = 1, l = length_ - 1; k < l; ++k, --l) {
        const Real re = dst_[k], im = dst_[l];
        dst_[k] = re - im;
        dst_[l] = re + im;
      }
    }
  }

 private:
  int length_;
  fftw_r2r_kind kind_;
  Real* src_;
  Real* dst_;
  Plan<Real> plan_;
};

/// The faster of the two.
template <class Real>
ContestantPtr hartley(int length, Arrays& arrays) {
  fftw_r2r_kind kind = FFTW_DHT;
  return best_plan<Real>([&] {
    kind = kind == FFTW_DHT ? FFTW_R2HC : FFTW_DHT;
    return std::make_unique<Dht<Real>>(length, kind, arrays);
  });
}

template <class Real, Layout layout>
ContestantPtr real_dft(int length, Arrays& arrays) {
  return best_plan<Real>([&] { return std::make_unique<RealDft<Real, layout>>(length, arrays); });
}

template <class Real, Layout layout>
ContestantPtr inverse_real_dft(int length, Arrays& arrays) {
  return best_plan<Real>([&] { return std::make_unique<InverseRealDft<Real, layout>>(length, arrays); });
}

}  // namespace xfm::bench::fftw
