// FFTW's functions that run and destroy plans.
#include "plan.h"
#include "report.h"

void X(execute)(const X(plan) p) { p->execute(*p); }
void X(execute_dft)(const X(plan) p, X(complex) * in, X(complex) * out) {
  p->execute_new(*p, reals(in), reals(out));
}
void X(execute_dft_r2c)(const X(plan) p, Real* in, X(complex) * out) { p->execute_new(*p, in, reals(out)); }
void X(execute_dft_c2r)(const X(plan) p, X(complex) * in, Real* out) { p->execute_new(*p, reals(in), out); }
void X(execute_r2r)(const X(plan) p, Real* in, Real* out) { p->execute_new(*p, in, out); }

// Split arrays are FFTW's, unless they are those of a plan for interleaved ones.

void X(execute_split_dft)(const X(plan) p, Real* ri, Real* ii, Real* ro, Real* io) {
  if (p->theirs == nullptr) return p->execute_new(*p, ri < ii ? ri : ii, ro < io ? ro : io);
  const Stopwatch watch(Where::fftw, What::execution);
  p->library->execute_split_dft(p->theirs, ri, ii, ro, io);
}
void X(execute_split_dft_r2c)(const X(plan) p, Real* in, Real* ro, Real* io) {
  if (p->theirs == nullptr) return p->execute_new(*p, in, ro);
  const Stopwatch watch(Where::fftw, What::execution);
  p->library->execute_split_dft_r2c(p->theirs, in, ro, io);
}
void X(execute_split_dft_c2r)(const X(plan) p, Real* ri, Real* ii, Real* out) {
  if (p->theirs == nullptr) return p->execute_new(*p, ri, out);
  const Stopwatch watch(Where::fftw, What::execution);
  p->library->execute_split_dft_c2r(p->theirs, ri, ii, out);
}

void X(destroy_plan)(X(plan) p) {
  if (p == nullptr) return;
  if (p->theirs != nullptr) p->library->destroy_plan(p->theirs);
  delete p;
}
