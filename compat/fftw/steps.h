// The ways to run transforms along one dimension.
#pragma once

#include <mutex>
#include <vector>

#include "program.h"

void run_complex(const Step& step, const Real* in, Real* out);
/// Contiguous spectra, and Hartley transforms.
void run_real(const Step& step, const Real* in, Real* out);
/// Spectra whose elements lie elsewhere than in xfm's layouts: through a small area on the stack.
void run_scattered(const Step& step, const Real* in, Real* out);
void run_gathered(const Step& step, const Real* in, Real* out);
/// The same for contiguous arrays in FFTW's half-complex order.
void run_to_halfcomplex(const Step& step, const Real* in, Real* out);
void run_from_halfcomplex(const Step& step, const Real* in, Real* out);
/// REDFT11 and RODFT11.
void run_dct4(const Step& step, const Real* in, Real* out);

/// States of one length. A run overwrites the work areas of its state, but a plan of FFTW may be executed by
/// several threads at once: each takes a state, which is made if none is free.
class Dct4States {
 public:
  explicit Dct4States(int length);
  Dct4States(const Dct4States&) = delete;
  Dct4States& operator=(const Dct4States&) = delete;
  ~Dct4States();

  Dct4State* take();
  void give(Dct4State* state) noexcept;

 private:
  int length_;
  std::mutex mutex_;
  std::vector<Dct4State*> free_;
  std::size_t made_ = 0;
};
