// FFTW's functions that make plans: each states its problem in the one form of problem.h.
#include <array>

#include "plan.h"
#include "report.h"
#include "theirs.h"

namespace {

/// One of the two arrays of the basic and the advanced interface.
struct Layout {
  const int* embed;  ///< the array's lengths; null if it holds the transform and nothing else
  std::ptrdiff_t stride, distance;
};

/// Elements of the last dimension in an array that holds nothing else: r2c and c2r in place need room for the
/// spectrum.
std::ptrdiff_t last_length(Kind kind, bool is_spectrum, bool in_place, std::ptrdiff_t n) {
  if (kind != Kind::r2c && kind != Kind::c2r) return n;
  const std::ptrdiff_t bins = n / 2 + 1;
  if (is_spectrum) return bins;
  return in_place ? 2 * bins : n;
}

/// The strides, in reals, of an array in rows.
std::vector<std::ptrdiff_t> strides_of(const std::vector<int>& n, const Layout& layout, std::ptrdiff_t unit,
                                       std::ptrdiff_t last) {
  std::vector<std::ptrdiff_t> strides(n.size());
  std::ptrdiff_t stride = layout.stride * unit;
  for (std::size_t d = n.size(); d-- > 0;) {
    strides[d] = stride;
    const std::ptrdiff_t length = d + 1 == n.size() ? last : n[d];
    stride *= layout.embed != nullptr ? layout.embed[d] : length;
  }
  return strides;
}

struct Many {
  Kind kind;
  std::vector<int> n;
  int count;
  Layout in, out;
};

Problem problem_of(const Many& many, Real* in, Real* out, int sign, const X(r2r_kind) * kinds,
                   unsigned flags) {
  const Kind kind = many.kind;
  const std::ptrdiff_t last = many.n.empty() ? 1 : many.n.back(), in_reals = in_unit(kind),
                       out_reals = out_unit(kind);
  const auto is =
      strides_of(many.n, many.in, in_reals, last_length(kind, kind == Kind::c2r, in == out, last));
  const auto os =
      strides_of(many.n, many.out, out_reals, last_length(kind, kind == Kind::r2c, in == out, last));
  Problem problem{kind, sign, {}, {}, {}, in, out, flags};
  for (std::size_t d = 0; d < many.n.size(); ++d) problem.dims.push_back({many.n[d], is[d], os[d]});
  problem.loops.push_back({many.count, many.in.distance * in_reals, many.out.distance * out_reals});
  if (kinds != nullptr) problem.r2r_kinds.assign(kinds, kinds + many.n.size());
  return problem;
}

X(plan)
plan_many(Kind kind, int rank, const int* n, int count, Real* in, const Layout& in_layout, Real* out,
          const Layout& out_layout, int sign, const X(r2r_kind) * kinds, unsigned flags) noexcept {
  if (rank < 0) return nullptr;
  return plan_of(problem_of({kind, std::vector<int>(n, n + rank), count, in_layout, out_layout}, in, out,
                            sign, kinds, flags));
}

constexpr Layout kWhole{nullptr, 1, 0};

template <std::size_t rank>
using Lengths = std::array<int, rank>;

X(plan)
plan_basic(Kind kind, int rank, const int* n, Real* in, Real* out, int sign, const X(r2r_kind) * kinds,
           unsigned flags) {
  return plan_many(kind, rank, n, 1, in, kWhole, out, kWhole, sign, kinds, flags);
}

template <class IoDim>
std::vector<Dim> dims_of(int rank, const IoDim* dims, Kind kind) {
  std::vector<Dim> result;
  for (int d = 0; d < rank; ++d)
    result.push_back({dims[d].n, dims[d].is * in_unit(kind), dims[d].os * out_unit(kind)});
  return result;
}

template <class IoDim>
X(plan)
plan_guru(Kind kind, int rank, const IoDim* dims, int loop_rank, const IoDim* loops, Real* in, Real* out,
          int sign, const X(r2r_kind) * kinds, unsigned flags) noexcept {
  if (rank < 0 || loop_rank < 0) return nullptr;
  Problem problem{kind, sign, dims_of(rank, dims, kind), dims_of(loop_rank, loops, kind), {}, in, out, flags};
  if (kinds != nullptr) problem.r2r_kinds.assign(kinds, kinds + rank);
  return plan_of(problem);
}

// Split arrays are always FFTW's.

std::vector<X(iodim64)> widened(int rank, const X(iodim) * dims) {
  std::vector<X(iodim64)> result;
  for (int d = 0; d < rank; ++d) result.push_back({dims[d].n, dims[d].is, dims[d].os});
  return result;
}

template <class Plan, class... Arguments>
X(plan)
plan_split(Plan plan, int rank, const X(iodim64) * dims, int loop_rank, const X(iodim64) * loops,
           Arguments... arguments) {
  const Stopwatch watch(Where::fftw, What::plan);
  if (plan == nullptr) return nullptr;
  return handed_on(plan(rank, dims, loop_rank, loops, arguments...), nullptr, nullptr, nullptr);
}

}  // namespace

// ---- complex

X(plan) X(plan_dft)(int rank, const int* n, X(complex) * in, X(complex) * out, int sign, unsigned flags) {
  return plan_basic(Kind::c2c, rank, n, reals(in), reals(out), sign, nullptr, flags);
}
X(plan) X(plan_dft_1d)(int n, X(complex) * in, X(complex) * out, int sign, unsigned flags) {
  return plan_basic(Kind::c2c, 1, &n, reals(in), reals(out), sign, nullptr, flags);
}
X(plan) X(plan_dft_2d)(int n0, int n1, X(complex) * in, X(complex) * out, int sign, unsigned flags) {
  return plan_basic(Kind::c2c, 2, Lengths<2>{n0, n1}.data(), reals(in), reals(out), sign, nullptr, flags);
}
X(plan) X(plan_dft_3d)(int n0, int n1, int n2, X(complex) * in, X(complex) * out, int sign, unsigned flags) {
  return plan_basic(Kind::c2c, 3, Lengths<3>{n0, n1, n2}.data(), reals(in), reals(out), sign, nullptr, flags);
}
X(plan)
X(plan_many_dft)
(int rank, const int* n, int howmany, X(complex) * in, const int* inembed, int istride, int idist,
 X(complex) * out, const int* onembed, int ostride, int odist, int sign, unsigned flags) {
  return plan_many(Kind::c2c, rank, n, howmany, reals(in), {inembed, istride, idist}, reals(out),
                   {onembed, ostride, odist}, sign, nullptr, flags);
}
X(plan)
X(plan_guru_dft)
(int rank, const X(iodim) * dims, int howmany_rank, const X(iodim) * howmany_dims, X(complex) * in,
 X(complex) * out, int sign, unsigned flags) {
  return plan_guru(Kind::c2c, rank, dims, howmany_rank, howmany_dims, reals(in), reals(out), sign, nullptr,
                   flags);
}
X(plan)
X(plan_guru64_dft)
(int rank, const X(iodim64) * dims, int howmany_rank, const X(iodim64) * howmany_dims, X(complex) * in,
 X(complex) * out, int sign, unsigned flags) {
  return plan_guru(Kind::c2c, rank, dims, howmany_rank, howmany_dims, reals(in), reals(out), sign, nullptr,
                   flags);
}
X(plan)
X(plan_guru_split_dft)
(int rank, const X(iodim) * dims, int howmany_rank, const X(iodim) * howmany_dims, Real* ri, Real* ii,
 Real* ro, Real* io, unsigned flags) {
  return X(plan_guru64_split_dft)(rank, widened(rank, dims).data(), howmany_rank,
                                  widened(howmany_rank, howmany_dims).data(), ri, ii, ro, io, flags);
}
X(plan)
X(plan_guru64_split_dft)
(int rank, const X(iodim64) * dims, int howmany_rank, const X(iodim64) * howmany_dims, Real* ri, Real* ii,
 Real* ro, Real* io, unsigned flags) {
  return plan_split(theirs().plan_guru64_split_dft, rank, dims, howmany_rank, howmany_dims, ri, ii, ro, io,
                    flags);
}

// ---- real to complex

X(plan) X(plan_dft_r2c)(int rank, const int* n, Real* in, X(complex) * out, unsigned flags) {
  return plan_basic(Kind::r2c, rank, n, in, reals(out), 0, nullptr, flags);
}
X(plan) X(plan_dft_r2c_1d)(int n, Real* in, X(complex) * out, unsigned flags) {
  return plan_basic(Kind::r2c, 1, &n, in, reals(out), 0, nullptr, flags);
}
X(plan) X(plan_dft_r2c_2d)(int n0, int n1, Real* in, X(complex) * out, unsigned flags) {
  return plan_basic(Kind::r2c, 2, Lengths<2>{n0, n1}.data(), in, reals(out), 0, nullptr, flags);
}
X(plan) X(plan_dft_r2c_3d)(int n0, int n1, int n2, Real* in, X(complex) * out, unsigned flags) {
  return plan_basic(Kind::r2c, 3, Lengths<3>{n0, n1, n2}.data(), in, reals(out), 0, nullptr, flags);
}
X(plan)
X(plan_many_dft_r2c)
(int rank, const int* n, int howmany, Real* in, const int* inembed, int istride, int idist, X(complex) * out,
 const int* onembed, int ostride, int odist, unsigned flags) {
  return plan_many(Kind::r2c, rank, n, howmany, in, {inembed, istride, idist}, reals(out),
                   {onembed, ostride, odist}, 0, nullptr, flags);
}
X(plan)
X(plan_guru_dft_r2c)
(int rank, const X(iodim) * dims, int howmany_rank, const X(iodim) * howmany_dims, Real* in, X(complex) * out,
 unsigned flags) {
  return plan_guru(Kind::r2c, rank, dims, howmany_rank, howmany_dims, in, reals(out), 0, nullptr, flags);
}
X(plan)
X(plan_guru64_dft_r2c)
(int rank, const X(iodim64) * dims, int howmany_rank, const X(iodim64) * howmany_dims, Real* in,
 X(complex) * out, unsigned flags) {
  return plan_guru(Kind::r2c, rank, dims, howmany_rank, howmany_dims, in, reals(out), 0, nullptr, flags);
}
X(plan)
X(plan_guru_split_dft_r2c)
(int rank, const X(iodim) * dims, int howmany_rank, const X(iodim) * howmany_dims, Real* in, Real* ro,
 Real* io, unsigned flags) {
  return X(plan_guru64_split_dft_r2c)(rank, widened(rank, dims).data(), howmany_rank,
                                      widened(howmany_rank, howmany_dims).data(), in, ro, io, flags);
}
X(plan)
X(plan_guru64_split_dft_r2c)
(int rank, const X(iodim64) * dims, int howmany_rank, const X(iodim64) * howmany_dims, Real* in, Real* ro,
 Real* io, unsigned flags) {
  return plan_split(theirs().plan_guru64_split_dft_r2c, rank, dims, howmany_rank, howmany_dims, in, ro, io,
                    flags);
}

// ---- complex to real

X(plan) X(plan_dft_c2r)(int rank, const int* n, X(complex) * in, Real* out, unsigned flags) {
  return plan_basic(Kind::c2r, rank, n, reals(in), out, 0, nullptr, flags);
}
X(plan) X(plan_dft_c2r_1d)(int n, X(complex) * in, Real* out, unsigned flags) {
  return plan_basic(Kind::c2r, 1, &n, reals(in), out, 0, nullptr, flags);
}
X(plan) X(plan_dft_c2r_2d)(int n0, int n1, X(complex) * in, Real* out, unsigned flags) {
  return plan_basic(Kind::c2r, 2, Lengths<2>{n0, n1}.data(), reals(in), out, 0, nullptr, flags);
}
X(plan) X(plan_dft_c2r_3d)(int n0, int n1, int n2, X(complex) * in, Real* out, unsigned flags) {
  return plan_basic(Kind::c2r, 3, Lengths<3>{n0, n1, n2}.data(), reals(in), out, 0, nullptr, flags);
}
X(plan)
X(plan_many_dft_c2r)
(int rank, const int* n, int howmany, X(complex) * in, const int* inembed, int istride, int idist, Real* out,
 const int* onembed, int ostride, int odist, unsigned flags) {
  return plan_many(Kind::c2r, rank, n, howmany, reals(in), {inembed, istride, idist}, out,
                   {onembed, ostride, odist}, 0, nullptr, flags);
}
X(plan)
X(plan_guru_dft_c2r)
(int rank, const X(iodim) * dims, int howmany_rank, const X(iodim) * howmany_dims, X(complex) * in, Real* out,
 unsigned flags) {
  return plan_guru(Kind::c2r, rank, dims, howmany_rank, howmany_dims, reals(in), out, 0, nullptr, flags);
}
X(plan)
X(plan_guru64_dft_c2r)
(int rank, const X(iodim64) * dims, int howmany_rank, const X(iodim64) * howmany_dims, X(complex) * in,
 Real* out, unsigned flags) {
  return plan_guru(Kind::c2r, rank, dims, howmany_rank, howmany_dims, reals(in), out, 0, nullptr, flags);
}
X(plan)
X(plan_guru_split_dft_c2r)
(int rank, const X(iodim) * dims, int howmany_rank, const X(iodim) * howmany_dims, Real* ri, Real* ii,
 Real* out, unsigned flags) {
  return X(plan_guru64_split_dft_c2r)(rank, widened(rank, dims).data(), howmany_rank,
                                      widened(howmany_rank, howmany_dims).data(), ri, ii, out, flags);
}
X(plan)
X(plan_guru64_split_dft_c2r)
(int rank, const X(iodim64) * dims, int howmany_rank, const X(iodim64) * howmany_dims, Real* ri, Real* ii,
 Real* out, unsigned flags) {
  return plan_split(theirs().plan_guru64_split_dft_c2r, rank, dims, howmany_rank, howmany_dims, ri, ii, out,
                    flags);
}

// ---- real to real

X(plan) X(plan_r2r)(int rank, const int* n, Real* in, Real* out, const X(r2r_kind) * kind, unsigned flags) {
  return plan_basic(Kind::r2r, rank, n, in, out, 0, kind, flags);
}
X(plan) X(plan_r2r_1d)(int n, Real* in, Real* out, X(r2r_kind) kind, unsigned flags) {
  return plan_basic(Kind::r2r, 1, &n, in, out, 0, &kind, flags);
}
X(plan)
X(plan_r2r_2d)(int n0, int n1, Real* in, Real* out, X(r2r_kind) kind0, X(r2r_kind) kind1, unsigned flags) {
  const int n[] = {n0, n1};
  const X(r2r_kind) kinds[] = {kind0, kind1};
  return plan_basic(Kind::r2r, 2, n, in, out, 0, kinds, flags);
}
X(plan)
X(plan_r2r_3d)
(int n0, int n1, int n2, Real* in, Real* out, X(r2r_kind) kind0, X(r2r_kind) kind1, X(r2r_kind) kind2,
 unsigned flags) {
  const int n[] = {n0, n1, n2};
  const X(r2r_kind) kinds[] = {kind0, kind1, kind2};
  return plan_basic(Kind::r2r, 3, n, in, out, 0, kinds, flags);
}
X(plan)
X(plan_many_r2r)
(int rank, const int* n, int howmany, Real* in, const int* inembed, int istride, int idist, Real* out,
 const int* onembed, int ostride, int odist, const X(r2r_kind) * kind, unsigned flags) {
  return plan_many(Kind::r2r, rank, n, howmany, in, {inembed, istride, idist}, out, {onembed, ostride, odist},
                   0, kind, flags);
}
X(plan)
X(plan_guru_r2r)
(int rank, const X(iodim) * dims, int howmany_rank, const X(iodim) * howmany_dims, Real* in, Real* out,
 const X(r2r_kind) * kind, unsigned flags) {
  return plan_guru(Kind::r2r, rank, dims, howmany_rank, howmany_dims, in, out, 0, kind, flags);
}
X(plan)
X(plan_guru64_r2r)
(int rank, const X(iodim64) * dims, int howmany_rank, const X(iodim64) * howmany_dims, Real* in, Real* out,
 const X(r2r_kind) * kind, unsigned flags) {
  return plan_guru(Kind::r2r, rank, dims, howmany_rank, howmany_dims, in, out, 0, kind, flags);
}
