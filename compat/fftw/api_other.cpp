// Everything else of FFTW's interface: memory, what is said of plans, wisdom, threads, versions.
#include <cstdlib>
#include <cstring>

#include "plan.h"
#include "theirs.h"

extern "C" {
// FFTW's own texts are longer: programs hold copies of that size.
const char X(version)[] = "fftw-3.3.10-xfm";
const char X(cc)[] = "c++";
const char X(codelet_optim)[] = "";
}

// ---- memory: a cache line, and pointers that free() takes too, as FFTW's are

void* X(malloc)(size_t n) {
  constexpr std::size_t kLine = 64;
  return n > SIZE_MAX - kLine ? nullptr : std::aligned_alloc(kLine, (n + kLine - 1) / kLine * kLine);
}
Real* X(alloc_real)(size_t n) {
  return n > SIZE_MAX / sizeof(Real) ? nullptr : static_cast<Real*>(X(malloc)(n * sizeof(Real)));
}
X(complex) * X(alloc_complex)(size_t n) {
  return n > SIZE_MAX / sizeof(Complex) ? nullptr : static_cast<X(complex)*>(X(malloc)(n * sizeof(Complex)));
}
void X(free)(void* p) { std::free(p); }

/// FFTW's plans may depend on it, those of xfm do not.
int X(alignment_of)(Real* p) { return theirs().alignment_of != nullptr ? theirs().alignment_of(p) : 0; }

// ---- what is said of plans

void X(fprint_plan)(const X(plan) p, FILE* output_file) {
  if (p->theirs != nullptr) return theirs().fprint_plan(p->theirs, output_file);
  std::fputs(p->text.c_str(), output_file);
}
void X(print_plan)(const X(plan) p) { X(fprint_plan)(p, stdout); }
char* X(sprint_plan)(const X(plan) p) {
  return p->theirs != nullptr ? theirs().sprint_plan(p->theirs) : strdup(p->text.c_str());
}

/// The usual estimate; of a short transform about three in five operations are additions.
void X(flops)(const X(plan) p, double* add, double* mul, double* fmas) {
  if (p->theirs != nullptr) return theirs().flops(p->theirs, add, mul, fmas);
  *add = p->operations * 0.6;
  *mul = p->operations * 0.4;
  *fmas = 0;
}
double X(estimate_cost)(const X(plan) p) {
  return p->theirs != nullptr ? theirs().estimate_cost(p->theirs) : p->operations;
}
double X(cost)(const X(plan) p) { return p->theirs != nullptr ? theirs().cost(p->theirs) : p->operations; }

// ---- what FFTW alone has: without its library nothing is done, and 0 is the answer

namespace {

template <class Result, class... Parameters, class... Arguments>
Result ask(Result (*function)(Parameters...), Arguments... arguments) {
  return function != nullptr ? function(arguments...) : Result();
}

}  // namespace

void X(cleanup)(void) {
  if (theirs_are_loaded()) ask(theirs().cleanup);
}
void X(forget_wisdom)(void) {
  if (theirs_are_loaded()) ask(theirs().forget_wisdom);
}
void X(set_timelimit)(double t) { ask(theirs().set_timelimit, t); }
int X(export_wisdom_to_filename)(const char* filename) {
  return ask(theirs().export_wisdom_to_filename, filename);
}
void X(export_wisdom_to_file)(FILE* output_file) { ask(theirs().export_wisdom_to_file, output_file); }
char* X(export_wisdom_to_string)(void) { return ask(theirs().export_wisdom_to_string); }
void X(export_wisdom)(X(write_char_func) write_char, void* data) {
  ask(theirs().export_wisdom, write_char, data);
}
int X(import_system_wisdom)(void) { return ask(theirs().import_system_wisdom); }
int X(import_wisdom_from_filename)(const char* filename) {
  return ask(theirs().import_wisdom_from_filename, filename);
}
int X(import_wisdom_from_file)(FILE* input_file) { return ask(theirs().import_wisdom_from_file, input_file); }
int X(import_wisdom_from_string)(const char* input_string) {
  return ask(theirs().import_wisdom_from_string, input_string);
}
int X(import_wisdom)(X(read_char_func) read_char, void* data) {
  return ask(theirs().import_wisdom, read_char, data);
}

// ---- threads

int X(init_threads)(void) { return ask(their_threads().init_threads); }
void X(plan_with_nthreads)(int nthreads) {
  set_threads(nthreads);
  ask(their_threads().plan_with_nthreads, nthreads);
}
int X(planner_nthreads)(void) { return threads(); }
void X(cleanup_threads)(void) {
  set_threads(1);
  ask(their_threads().cleanup_threads);
}
void X(threads_set_callback)(void (*parallel_loop)(void* (*work)(char*), char* jobdata, size_t elsize,
                                                   int njobs, void* data),
                             void* data) {
  ask(their_threads().threads_set_callback, parallel_loop, data);
}
void X(make_planner_thread_safe)(void) { ask(their_threads().make_planner_thread_safe); }
