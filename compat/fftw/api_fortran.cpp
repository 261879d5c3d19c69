// FFTW's older interface for Fortran: every argument is a pointer, a result is the first one, arrays are in
// columns.
#include <algorithm>
#include <vector>

#include "plan.h"
#include "theirs.h"

using Plan = X(plan);
using Cx = X(complex);
using Kind_ = X(r2r_kind);

namespace {

/// Fortran's order of dimensions is the reverse of C's.
class Reversed {
 public:
  Reversed(const int* rank, const int* array) : values_(array, array + std::max(*rank, 0)) {
    std::reverse(values_.begin(), values_.end());
  }
  operator const int*() const { return values_.data(); }

 private:
  std::vector<int> values_;
};

class Kinds {
 public:
  Kinds(const int* rank, const int* kinds) {
    for (int i = *rank; i-- > 0;) values_.push_back(static_cast<Kind_>(kinds[i]));
  }
  operator const Kind_*() const { return values_.data(); }

 private:
  std::vector<Kind_> values_;
};

/// The guru interface takes numbers, input strides and output strides in arrays of their own.
class Dims {
 public:
  Dims(const int* rank, const int* n, const int* is, const int* os) {
    for (int i = 0; i < *rank; ++i) values_.push_back({n[i], is[i], os[i]});
  }
  operator const X(iodim) * () const { return values_.data(); }

 private:
  std::vector<X(iodim)> values_;
};

unsigned bits(const int* flags) { return static_cast<unsigned>(*flags); }

}  // namespace

// Names end with one or two underscores, by the compiler.
#define FORTRAN_(name, suffix, parameters, ...) \
  extern "C" __attribute__((visibility("default"))) void XFM_FFTW_FORTRAN(name##suffix) parameters __VA_ARGS__
#define FORTRAN(name, parameters, ...)       \
  FORTRAN_(name, _, parameters, __VA_ARGS__) \
  FORTRAN_(name, __, parameters, __VA_ARGS__)

#define IN_OUT(In, Out) In *in, Out *out, const int *flags
#define GURU                                                                                    \
  const int *rank, const int *n, const int *is, const int *os, const int *loops, const int *ln, \
      const int *lis, const int *los
#define GURU_DIMS *rank, Dims(rank, n, is, os), *loops, Dims(loops, ln, lis, los)
#define MANY(In, Out)                                                                         \
  Plan *p, const int *rank, const int *n, const int *howmany, In *in, const int *inembed,     \
      const int *istride, const int *idist, Out *out, const int *onembed, const int *ostride, \
      const int *odist
#define MANY_ARGUMENTS                                                                    \
  *rank, Reversed(rank, n), *howmany, in, Reversed(rank, inembed), *istride, *idist, out, \
      Reversed(rank, onembed), *ostride, *odist

// ---- execution

FORTRAN(execute, (Plan * p), { X(execute)(*p); })
FORTRAN(execute_dft, (Plan * p, Cx* in, Cx* out), { X(execute_dft)(*p, in, out); })
FORTRAN(execute_dft_r2c, (Plan * p, Real* in, Cx* out), { X(execute_dft_r2c)(*p, in, out); })
FORTRAN(execute_dft_c2r, (Plan * p, Cx* in, Real* out), { X(execute_dft_c2r)(*p, in, out); })
FORTRAN(execute_r2r, (Plan * p, Real* in, Real* out), { X(execute_r2r)(*p, in, out); })
FORTRAN(execute_split_dft, (Plan * p, Real* ri, Real* ii, Real* ro, Real* io), {
  X(execute_split_dft)(*p, ri, ii, ro, io);
})
FORTRAN(execute_split_dft_r2c, (Plan * p, Real* in, Real* ro, Real* io), {
  X(execute_split_dft_r2c)(*p, in, ro, io);
})
FORTRAN(execute_split_dft_c2r, (Plan * p, Real* ri, Real* ii, Real* out), {
  X(execute_split_dft_c2r)(*p, ri, ii, out);
})
FORTRAN(destroy_plan, (Plan * p), { X(destroy_plan)(*p); })
FORTRAN(print_plan, (Plan * p), { X(print_plan)(*p); })
FORTRAN(flops, (Plan * p, double* add, double* mul, double* fma), { X(flops)(*p, add, mul, fma); })
FORTRAN(estimate_cost, (double* cost, Plan* p), { *cost = X(estimate_cost)(*p); })
FORTRAN(cost, (double* cost, Plan* p), { *cost = X(cost)(*p); })

// ---- plans

FORTRAN(plan_dft,
        (Plan * p, const int* rank, const int* n, Cx* in, Cx* out, const int* sign, const int* flags),
        { *p = X(plan_dft)(*rank, Reversed(rank, n), in, out, *sign, bits(flags)); })
FORTRAN(plan_dft_1d, (Plan * p, const int* n, Cx* in, Cx* out, const int* sign, const int* flags),
        { *p = X(plan_dft_1d)(*n, in, out, *sign, bits(flags)); })
FORTRAN(plan_dft_2d,
        (Plan * p, const int* nx, const int* ny, Cx* in, Cx* out, const int* sign, const int* flags),
        { *p = X(plan_dft_2d)(*ny, *nx, in, out, *sign, bits(flags)); })
FORTRAN(plan_dft_3d,
        (Plan * p, const int* nx, const int* ny, const int* nz, Cx* in, Cx* out, const int* sign,
         const int* flags),
        { *p = X(plan_dft_3d)(*nz, *ny, *nx, in, out, *sign, bits(flags)); })
FORTRAN(plan_many_dft, (MANY(Cx, Cx), const int* sign, const int* flags),
        { *p = X(plan_many_dft)(MANY_ARGUMENTS, *sign, bits(flags)); })
FORTRAN(plan_guru_dft, (Plan * p, GURU, Cx* in, Cx* out, const int* sign, const int* flags),
        { *p = X(plan_guru_dft)(GURU_DIMS, in, out, *sign, bits(flags)); })
FORTRAN(plan_guru_split_dft, (Plan * p, GURU, Real* ri, Real* ii, Real* ro, Real* io, const int* flags),
        { *p = X(plan_guru_split_dft)(GURU_DIMS, ri, ii, ro, io, bits(flags)); })

FORTRAN(plan_dft_r2c, (Plan * p, const int* rank, const int* n, IN_OUT(Real, Cx)),
        { *p = X(plan_dft_r2c)(*rank, Reversed(rank, n), in, out, bits(flags)); })
FORTRAN(plan_dft_r2c_1d, (Plan * p, const int* n, IN_OUT(Real, Cx)),
        { *p = X(plan_dft_r2c_1d)(*n, in, out, bits(flags)); })
FORTRAN(plan_dft_r2c_2d, (Plan * p, const int* nx, const int* ny, IN_OUT(Real, Cx)),
        { *p = X(plan_dft_r2c_2d)(*ny, *nx, in, out, bits(flags)); })
FORTRAN(plan_dft_r2c_3d, (Plan * p, const int* nx, const int* ny, const int* nz, IN_OUT(Real, Cx)),
        { *p = X(plan_dft_r2c_3d)(*nz, *ny, *nx, in, out, bits(flags)); })
FORTRAN(plan_many_dft_r2c, (MANY(Real, Cx), const int* flags),
        { *p = X(plan_many_dft_r2c)(MANY_ARGUMENTS, bits(flags)); })
FORTRAN(plan_guru_dft_r2c, (Plan * p, GURU, IN_OUT(Real, Cx)),
        { *p = X(plan_guru_dft_r2c)(GURU_DIMS, in, out, bits(flags)); })
FORTRAN(plan_guru_split_dft_r2c, (Plan * p, GURU, Real* in, Real* ro, Real* io, const int* flags),
        { *p = X(plan_guru_split_dft_r2c)(GURU_DIMS, in, ro, io, bits(flags)); })

FORTRAN(plan_dft_c2r, (Plan * p, const int* rank, const int* n, IN_OUT(Cx, Real)),
        { *p = X(plan_dft_c2r)(*rank, Reversed(rank, n), in, out, bits(flags)); })
FORTRAN(plan_dft_c2r_1d, (Plan * p, const int* n, IN_OUT(Cx, Real)),
        { *p = X(plan_dft_c2r_1d)(*n, in, out, bits(flags)); })
FORTRAN(plan_dft_c2r_2d, (Plan * p, const int* nx, const int* ny, IN_OUT(Cx, Real)),
        { *p = X(plan_dft_c2r_2d)(*ny, *nx, in, out, bits(flags)); })
FORTRAN(plan_dft_c2r_3d, (Plan * p, const int* nx, const int* ny, const int* nz, IN_OUT(Cx, Real)),
        { *p = X(plan_dft_c2r_3d)(*nz, *ny, *nx, in, out, bits(flags)); })
FORTRAN(plan_many_dft_c2r, (MANY(Cx, Real), const int* flags),
        { *p = X(plan_many_dft_c2r)(MANY_ARGUMENTS, bits(flags)); })
FORTRAN(plan_guru_dft_c2r, (Plan * p, GURU, IN_OUT(Cx, Real)),
        { *p = X(plan_guru_dft_c2r)(GURU_DIMS, in, out, bits(flags)); })
FORTRAN(plan_guru_split_dft_c2r, (Plan * p, GURU, Real* ri, Real* ii, Real* out, const int* flags),
        { *p = X(plan_guru_split_dft_c2r)(GURU_DIMS, ri, ii, out, bits(flags)); })

FORTRAN(plan_r2r,
        (Plan * p, const int* rank, const int* n, Real* in, Real* out, const int* kind, const int* flags),
        { *p = X(plan_r2r)(*rank, Reversed(rank, n), in, out, Kinds(rank, kind), bits(flags)); })
FORTRAN(plan_r2r_1d, (Plan * p, const int* n, Real* in, Real* out, const int* kind, const int* flags),
        { *p = X(plan_r2r_1d)(*n, in, out, static_cast<Kind_>(*kind), bits(flags)); })
FORTRAN(plan_r2r_2d,
        (Plan * p, const int* nx, const int* ny, Real* in, Real* out, const int* kx, const int* ky,
         const int* flags),
        {
          *p = X(plan_r2r_2d)(*ny, *nx, in, out, static_cast<Kind_>(*ky), static_cast<Kind_>(*kx),
                              bits(flags));
        })
FORTRAN(plan_r2r_3d,
        (Plan * p, const int* nx, const int* ny, const int* nz, Real* in, Real* out, const int* kx,
         const int* ky, const int* kz, const int* flags),
        {
          *p = X(plan_r2r_3d)(*nz, *ny, *nx, in, out, static_cast<Kind_>(*kz), static_cast<Kind_>(*ky),
                              static_cast<Kind_>(*kx), bits(flags));
        })
FORTRAN(plan_many_r2r, (MANY(Real, Real), const int* kind, const int* flags),
        { *p = X(plan_many_r2r)(MANY_ARGUMENTS, Kinds(rank, kind), bits(flags)); })
FORTRAN(plan_guru_r2r, (Plan * p, GURU, Real* in, Real* out, const int* kind, const int* flags),
        { *p = X(plan_guru_r2r)(GURU_DIMS, in, out, Kinds(rank, kind), bits(flags)); })

// ---- the rest

FORTRAN(cleanup, (), { X(cleanup)(); })
FORTRAN(forget_wisdom, (), { X(forget_wisdom)(); })
FORTRAN(set_timelimit, (const double* t), { X(set_timelimit)(*t); })
FORTRAN(init_threads, (int* okay), { *okay = X(init_threads)(); })
FORTRAN(cleanup_threads, (), { X(cleanup_threads)(); })
FORTRAN(plan_with_nthreads, (const int* n), { X(plan_with_nthreads)(*n); })
FORTRAN(planner_nthreads, (int* n), { *n = X(planner_nthreads)(); })
FORTRAN(import_system_wisdom, (int* okay), { *okay = X(import_system_wisdom)(); })

namespace {

// How Fortran's subroutines are called back, one character at a time.
struct Writer {
  void (*write)(const char* c, void* data);
  void* data;
};
struct Reader {
  void (*read)(int* c, void* data);
  void* data;
};

void write_one(char c, void* writer) {
  const auto& to = *static_cast<Writer*>(writer);
  to.write(&c, to.data);
}
int read_one(void* reader) {
  const auto& from = *static_cast<Reader*>(reader);
  int c = EOF;
  from.read(&c, from.data);
  return c < 0 ? EOF : c;
}

}  // namespace

FORTRAN(export_wisdom, (void (*write)(const char*, void*), void* data), {
  Writer writer{write, data};
  X(export_wisdom)(write_one, &writer);
})
FORTRAN(import_wisdom, (int* okay, void (*read)(int*, void*), void* data), {
  Reader reader{read, data};
  *okay = X(import_wisdom)(read_one, &reader);
})
