// Plans: what programs hold a pointer to.
#pragma once

#include <string>

#include "program.h"
#include "theirs.h"

/// Runs on xfm, or holds a plan of FFTW's own. Nothing in it changes after it was made, but for the DCT-IV's
/// states.
struct X(plan_s) {
  using Execute = void (*)(const X(plan_s) &);
  using ExecuteNew = void (*)(const X(plan_s) &, Real* in, Real* out);

  Execute execute = nullptr;
  ExecuteNew execute_new = nullptr;
  Real *in = nullptr, *out = nullptr;
  Kernel kernel;
  Program program;
  const Step* step = nullptr;       ///< of the program, if there is only one
  X(plan) theirs = nullptr;         ///< null if it runs on xfm
  const Theirs* library = nullptr;  ///< whose plan that is: a plan finds it faster than a function does

  // What was said of it.
  std::string text;
  double operations = 0;

  // While a report is kept, the functions above note the time of these.
  Execute noted_execute = nullptr;
  ExecuteNew noted_execute_new = nullptr;
};

/// A plan of xfm if it serves the problem, else one of FFTW, else null.
X(plan) plan_of(const Problem& problem) noexcept;

/// FFTW's own plan with the two functions that run it.
X(plan) handed_on(X(plan) theirs, X(plan_s)::ExecuteNew execute_new, Real* in, Real* out) noexcept;

/// The number of threads that plans may use.
void set_threads(int count);
int threads();
