#include "plan.h"

#include <atomic>
#include <cmath>
#include <cstdlib>
#include <new>
#include <vector>

#include "report.h"

namespace {

std::atomic<int> thread_count = 1;

/// From so many reals on FFTW's threads gain more than xfm, which starts none.
constexpr double kRealsForThreads = 65536;

double product(const std::vector<Dim>& dims) {
  double n = 1;
  for (const Dim& d : dims) n *= static_cast<double>(d.n);
  return n;
}

double size(const Problem& p) { return product(p.dims) * product(p.loops) * (p.kind == Kind::c2c ? 2 : 1); }

bool threads_gain(const Problem& p) { return threads() > 1 && size(p) >= kRealsForThreads; }

/// Everything goes to FFTW: to compare.
bool is_off() {
  static const bool off = std::getenv("XFM_FFTW_OFF") != nullptr;
  return off;
}

/// What xfm serves is not left to FFTW where that is faster: to test it.
bool takes_all() {
  static const bool all = std::getenv("XFM_FFTW_ALL") != nullptr;
  return all;
}

bool there_is_fftw() { return theirs().plan_guru64_dft != nullptr; }

/// Asks for FFTW last, since only then it is loaded.
bool runs_on_xfm(const std::optional<Program>& program) {
  return program && (program->gains || takes_all() || !there_is_fftw());
}

// ---- plans on xfm

void execute_complex(const X(plan_s) & p) {
  p.kernel.complex(reinterpret_cast<const Complex*>(p.in), reinterpret_cast<Complex*>(p.out), XFM_SCALE_NONE);
}
void execute_new_complex(const X(plan_s) & p, Real* in, Real* out) {
  p.kernel.complex(reinterpret_cast<const Complex*>(in), reinterpret_cast<Complex*>(out), XFM_SCALE_NONE);
}
void execute_real(const X(plan_s) & p) { p.kernel.real(p.in, p.out, XFM_SCALE_NONE); }
void execute_new_real(const X(plan_s) & p, Real* in, Real* out) { p.kernel.real(in, out, XFM_SCALE_NONE); }
void execute_step(const X(plan_s) & p) { p.step->run(*p.step, p.in, p.out); }
void execute_new_step(const X(plan_s) & p, Real* in, Real* out) { p.step->run(*p.step, in, out); }
void execute_program(const X(plan_s) & p) { run(p.program, p.in, p.out); }
void execute_new_program(const X(plan_s) & p, Real* in, Real* out) { run(p.program, in, out); }

/// Takes the shortest way to what the program does.
void choose_execution(X(plan_s) & plan) {
  plan.execute = execute_program;
  plan.execute_new = execute_new_program;
  plan.step = only_step(plan.program);
  if (plan.step == nullptr) return;
  plan.execute = execute_step;
  plan.execute_new = execute_new_step;
  plan.kernel = kernel_of(*plan.step);
  if (plan.kernel.complex != nullptr) {
    plan.execute = execute_complex;
    plan.execute_new = execute_new_complex;
  } else if (plan.kernel.real != nullptr) {
    plan.execute = execute_real;
    plan.execute_new = execute_new_real;
  }
}

std::string text_of(const Problem& p) {
  constexpr const char* names[] = {"c2c", "r2c", "c2r", "r2r"};
  std::string text = std::string("(xfm-") + names[static_cast<int>(p.kind)];
  for (std::size_t d = 0; d < p.dims.size(); ++d) text += (d == 0 ? '-' : 'x') + std::to_string(p.dims[d].n);
  for (const Dim& d : p.loops) text += "-x" + std::to_string(d.n);
  return text + ")";
}

/// The usual estimate of 5 n log2 n operations for a complex transform, half as many for a real one.
double operations_of(const Problem& p) { return 2.5 * size(p) * std::log2(product(p.dims)); }

X(plan) plan_on_xfm(const Problem& p, Program program) {
  auto* const plan = new X(plan_s);
  plan->in = p.in;
  plan->out = p.out;
  plan->text = text_of(p);
  plan->operations = operations_of(p);
  plan->program = std::move(program);
  choose_execution(*plan);
  return plan;
}

// ---- plans of FFTW

X(complex) * complex(Real* reals) { return reinterpret_cast<X(complex)*>(reals); }

void execute_theirs(const X(plan_s) & p) { p.library->execute(p.theirs); }
void execute_their_c2c(const X(plan_s) & p, Real* in, Real* out) {
  p.library->execute_dft(p.theirs, complex(in), complex(out));
}
void execute_their_r2c(const X(plan_s) & p, Real* in, Real* out) {
  p.library->execute_dft_r2c(p.theirs, in, complex(out));
}
void execute_their_c2r(const X(plan_s) & p, Real* in, Real* out) {
  p.library->execute_dft_c2r(p.theirs, complex(in), out);
}
void execute_their_r2r(const X(plan_s) & p, Real* in, Real* out) {
  p.library->execute_r2r(p.theirs, in, out);
}

std::vector<X(iodim64)> in_elements(const std::vector<Dim>& dims, Kind kind) {
  std::vector<X(iodim64)> result;
  for (const Dim& d : dims) result.push_back({d.n, d.is / in_unit(kind), d.os / out_unit(kind)});
  return result;
}

/// Only the guru interface is called: the others may be found in this library again when FFTW calls them
/// itself.
X(plan) their_plan(const Problem& p) {
  if (!there_is_fftw()) return nullptr;
  const auto dims = in_elements(p.dims, p.kind), loops = in_elements(p.loops, p.kind);
  const int rank = static_cast<int>(dims.size()), loop_rank = static_cast<int>(loops.size());
  switch (p.kind) {
    case Kind::c2c:
      return theirs().plan_guru64_dft(rank, dims.data(), loop_rank, loops.data(), complex(p.in),
                                      complex(p.out), p.sign, p.flags);
    case Kind::r2c:
      return theirs().plan_guru64_dft_r2c(rank, dims.data(), loop_rank, loops.data(), p.in, complex(p.out),
                                          p.flags);
    case Kind::c2r: {
      const unsigned keeps = p.flags & FFTW_PRESERVE_INPUT,
                     flags = p.flags | (keeps != 0 ? 0 : FFTW_DESTROY_INPUT);
      return theirs().plan_guru64_dft_c2r(rank, dims.data(), loop_rank, loops.data(), complex(p.in), p.out,
                                          flags);
    }
    case Kind::r2r:
      return theirs().plan_guru64_r2r(rank, dims.data(), loop_rank, loops.data(), p.in, p.out,
                                      p.r2r_kinds.data(), p.flags);
  }
  return nullptr;
}

X(plan_s)::ExecuteNew their_execute(Kind kind) {
  switch (kind) {
    case Kind::c2c:
      return execute_their_c2c;
    case Kind::r2c:
      return execute_their_r2c;
    case Kind::c2r:
      return execute_their_c2r;
    case Kind::r2r:
      return execute_their_r2r;
  }
  return nullptr;
}

// ---- plans that note their time

void execute_noted(const X(plan_s) & p) {
  const Stopwatch watch(p.theirs == nullptr ? Where::xfm : Where::fftw, What::execution);
  p.noted_execute(p);
}
void execute_new_noted(const X(plan_s) & p, Real* in, Real* out) {
  const Stopwatch watch(p.theirs == nullptr ? Where::xfm : Where::fftw, What::execution);
  p.noted_execute_new(p, in, out);
}

X(plan) noting(X(plan) plan) {
  if (!keeps_report() || plan == nullptr) return plan;
  plan->noted_execute = plan->execute;
  plan->noted_execute_new = plan->execute_new;
  plan->execute = execute_noted;
  if (plan->execute_new != nullptr) plan->execute_new = execute_new_noted;
  return plan;
}

X(plan) plan_anywhere(const Problem& p) {
  Stopwatch watch(Where::xfm, What::plan);
  if (!is_off() && !threads_gain(p)) {
    auto program = program_of(p);
    if (runs_on_xfm(program)) return noting(plan_on_xfm(p, std::move(*program)));
  }
  watch.move_to(Where::fftw);
  return handed_on(their_plan(p), their_execute(p.kind), p.in, p.out);
}

}  // namespace

X(plan) handed_on(X(plan) theirs, X(plan_s)::ExecuteNew execute_new, Real* in, Real* out) noexcept {
  if (theirs == nullptr) return nullptr;
  auto* const plan = new (std::nothrow) X(plan_s);
  if (plan == nullptr) return nullptr;
  plan->theirs = theirs;
  plan->library = &::theirs();
  plan->in = in;
  plan->out = out;
  plan->execute = execute_theirs;
  plan->execute_new = execute_new;
  return noting(plan);
}

X(plan) plan_of(const Problem& problem) noexcept try {
  return plan_anywhere(problem);
} catch (const std::bad_alloc&) {
  return nullptr;
}

void set_threads(int count) { thread_count = count; }
int threads() { return thread_count; }
