// FFTW as a contestant, in both precisions.
#pragma once

#include <fftw3.h>

#include <chrono>
#include <stdexcept>
#include <utility>
#include <vector>

#include "bench/arrays.h"
#include "bench/contestant.h"
#include "bench/timing.h"

namespace xfm::bench::fftw {

/// One set of names for the two precisions of the library.
template <class Real>
struct Api;

template <>
struct Api<float> {
  using Plan = fftwf_plan;
  using Complex = fftwf_complex;
  static constexpr auto plan_dft_1d = fftwf_plan_dft_1d;
  static constexpr auto plan_r2c_1d = fftwf_plan_dft_r2c_1d;
  static constexpr auto plan_c2r_1d = fftwf_plan_dft_c2r_1d;
  static constexpr auto execute_dft = fftwf_execute_dft;
  static constexpr auto execute_r2c = fftwf_execute_dft_r2c;
  static constexpr auto execute_c2r = fftwf_execute_dft_c2r;
  static constexpr auto plan_r2r = fftwf_plan_r2r;
  static constexpr auto execute_r2r = fftwf_execute_r2r;
  static constexpr auto destroy = fftwf_destroy_plan;
  static constexpr auto forget_wisdom = fftwf_forget_wisdom;
};

template <>
struct Api<double> {
  using Plan = fftw_plan;
  using Complex = fftw_complex;
  static constexpr auto plan_dft_1d = fftw_plan_dft_1d;
  static constexpr auto plan_r2c_1d = fftw_plan_dft_r2c_1d;
  static constexpr auto plan_c2r_1d = fftw_plan_dft_c2r_1d;
  static constexpr auto execute_dft = fftw_execute_dft;
  static constexpr auto execute_r2c = fftw_execute_dft_r2c;
  static constexpr auto execute_c2r = fftw_execute_dft_c2r;
  static constexpr auto plan_r2r = fftw_plan_r2r;
  static constexpr auto execute_r2r = fftw_execute_r2r;
  static constexpr auto destroy = fftw_destroy_plan;
  static constexpr auto forget_wisdom = fftw_forget_wisdom;
};

/// Owns a plan; throws if FFTW made none.
template <class Real>
class Plan {
 public:
  using Handle = typename Api<Real>::Plan;

  explicit Plan(Handle plan) : plan_(plan) {
    if (plan_ == nullptr) throw std::runtime_error("FFTW made no plan");
  }
  Plan(const Plan&) = delete;
  Plan& operator=(const Plan&) = delete;
  ~Plan() { Api<Real>::destroy(plan_); }
  Handle get() const { return plan_; }

 private:
  Handle plan_;
};

/// Patient planning chooses by measuring, so on a busy machine it can choose badly: plans of one length
/// differed by an eighth. So this plans afresh several times, as long as that is quick, and takes the fastest
/// plan.
template <class Real, class MakePlan>
ContestantPtr best_plan(MakePlan make_plan) {
  using Clock = std::chrono::steady_clock;
  constexpr std::size_t kMostPlans = 4;
  const auto deadline = Clock::now() + std::chrono::milliseconds(200);
  std::vector<ContestantPtr> plans;
  do {
    Api<Real>::forget_wisdom();
    plans.push_back(make_plan());
  } while (plans.size() < kMostPlans && Clock::now() < deadline);
  return fastest(std::move(plans));
}

/// Complex transform, one at a time. The new-array form of the call is the faster one: FFTW need not look up
/// its pointers in the problem.
template <class Real>
class ComplexDft final : public Contestant {
 public:
  ComplexDft(int length, int sign, Arrays& arrays)
      : src_(static_cast<Complex*>(arrays.src())),
        dst_(static_cast<Complex*>(arrays.dst())),
        plan_(Api<Real>::plan_dft_1d(length, src_, dst_, sign, FFTW_PATIENT)) {}

  void run(int calls) override {
    for (int i = 0; i < calls; ++i) Api<Real>::execute_dft(plan_.get(), src_, dst_);
  }

 private:
  using Complex = typename Api<Real>::Complex;
  Complex* src_;
  Complex* dst_;
  Plan<Real> plan_;
};

template <class Real, int sign>
ContestantPtr complex_dft(int length, Arrays& arrays) {
  return best_plan<Real>([&] { return std::make_unique<ComplexDft<Real>>(length, sign, arrays); });
}

/// Walsh-Hadamard transform: a real transform of rank `order` and 2 x ... x 2 elements, which takes the sum
/// and difference of two elements in each dimension.
template <class Real>
class Hypercube final : public Contestant {
 public:
  Hypercube(int order, fftw_r2r_kind kind, Arrays& arrays)
      : src_(static_cast<Real*>(arrays.src())),
        dst_(static_cast<Real*>(arrays.dst())),
        plan_(Api<Real>::plan_r2r(order, std::vector(static_cast<std::size_t>(order), 2).data(), src_, dst_,
                                  std::vector(static_cast<std::size_t>(order), kind).data(), FFTW_PATIENT)) {}

  void run(int calls) override {
    for (int i = 0; i < calls; ++i) Api<Real>::execute_r2r(plan_.get(), src_, dst_);
  }

 private:
  Real* src_;
  Real* dst_;
  Plan<Real> plan_;
};

/// For two elements the half-complex transform and the Hartley transform are the same; the planner treats
/// them differently, so both are tried.
template <class Real>
ContestantPtr walsh_hadamard(int order, Arrays& arrays) {
  fftw_r2r_kind kind = FFTW_DHT;
  return best_plan<Real>([&] {
    kind = kind == FFTW_DHT ? FFTW_R2HC : FFTW_DHT;
    return std::make_unique<Hypercube<Real>>(order, kind, arrays);
  });
}

}  // namespace xfm::bench::fftw
