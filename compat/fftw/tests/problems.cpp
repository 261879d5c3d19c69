#include "compat/fftw/tests/problems.h"

#include <algorithm>
#include <numeric>
#include <sstream>

namespace {

constexpr std::size_t kMostPoints = 20000;

int between(int least, int most, std::mt19937& random) {
  return std::uniform_int_distribution(least, most)(random);
}
bool one_in(int n, std::mt19937& random) { return between(1, n, random) == 1; }

int random_length(std::mt19937& random) {
  if (one_in(20, random)) return 1;
  if (one_in(20, random)) return between(65, 130, random);
  return one_in(3, random) ? between(2, 64, random) : between(2, 20, random);
}

/// The lengths of an array with these dimensions: spectra are halved, and in place the reals have their
/// padding.
std::ptrdiff_t elements(const RandomProblem& p, std::size_t dim, bool of_output) {
  const std::ptrdiff_t n = p.dims[dim].n, bins = n / 2 + 1;
  if (dim + 1 < p.dims.size() || p.kind == Kind::c2c || p.kind == Kind::r2r) return n;
  return (p.kind == Kind::r2c) == of_output ? bins : p.in_place ? 2 * bins : n;
}

/// The order in which strides grow: that of rows, or any.
std::vector<std::size_t> random_order(std::size_t count, std::mt19937& random) {
  std::vector<std::size_t> order(count);
  std::iota(order.rbegin(), order.rend(), 0);
  if (one_in(2, random)) std::shuffle(order.begin(), order.end(), random);
  return order;
}

/// The dimensions and then the loops.
X(iodim64) & dimension(RandomProblem& p, std::size_t i) {
  return i < p.dims.size() ? p.dims[i] : p.loops[i - p.dims.size()];
}

/// Strides of one array, and how many elements it has.
std::size_t lay_out(RandomProblem& p, bool output, std::mt19937& random) {
  std::ptrdiff_t stride = one_in(4, random) ? between(1, 3, random) : 1;
  // Loops are outside of the transform in half of the problems, as the advanced interface has them.
  auto order = random_order(p.dims.size() + p.loops.size(), random);
  if (one_in(2, random))
    std::stable_partition(order.begin(), order.end(), [&](auto i) { return i < p.dims.size(); });
  for (const std::size_t i : order) {
    (output ? dimension(p, i).os : dimension(p, i).is) = stride;
    stride *= i < p.dims.size() ? elements(p, i, output) : p.loops[i - p.dims.size()].n;
    if (one_in(4, random)) stride += between(1, 5, random);
  }
  return static_cast<std::size_t>(stride) + 6;
}

/// In place both arrays have one layout: in reals where one of them is complex.
void lay_out_in_place(RandomProblem& p, std::mt19937& random) {
  const bool halved = p.kind == Kind::r2c || p.kind == Kind::c2r;
  if (!halved) {
    p.in_reals = lay_out(p, false, random);
    for (std::size_t i = 0; i < p.dims.size() + p.loops.size(); ++i) dimension(p, i).os = dimension(p, i).is;
    return;
  }
  std::ptrdiff_t bins = p.dims.back().n / 2 + 1;
  auto& [n, is, os] = p.dims.back();
  is = os = 1;
  for (const std::size_t i : random_order(p.dims.size() + p.loops.size(), random)) {
    if (i + 1 == p.dims.size()) continue;
    auto& dim = dimension(p, i);
    (p.kind == Kind::r2c ? dim.os : dim.is) = bins;
    (p.kind == Kind::r2c ? dim.is : dim.os) = 2 * bins;
    bins *= dim.n;
  }
  p.in_reals = static_cast<std::size_t>(2 * bins) + 6;
}

X(r2r_kind) random_kind(std::mt19937& random) {
  constexpr X(r2r_kind) served[] = {FFTW_R2HC, FFTW_HC2R, FFTW_DHT};
  return one_in(10, random) ? static_cast<X(r2r_kind)>(between(3, 10, random))
                            : served[static_cast<std::size_t>(between(0, 2, random))];
}

void choose_lengths(RandomProblem& p, std::mt19937& random) {
  std::size_t points = 1;
  const int rank = one_in(2, random) ? 1 : between(2, 3, random), loops = between(0, 2, random);
  const auto next = [&](int n) {
    if (points * static_cast<std::size_t>(n) > kMostPoints) n = 2;
    points *= static_cast<std::size_t>(n);
    return n;
  };
  for (int d = 0; d < rank; ++d) p.dims.push_back({next(random_length(random)), 0, 0});
  for (int d = 0; d < loops; ++d) p.loops.push_back({next(between(1, 40, random)), 0, 0});
  if (p.kind != Kind::r2r) return;
  for (int d = 0; d < rank; ++d) p.kinds.push_back(random_kind(random));
  if (rank == 1 && one_in(4, random)) {
    p.kinds[0] = one_in(2, random) ? FFTW_REDFT11 : FFTW_RODFT11;
    p.dims[0].n = std::ptrdiff_t{1} << between(1, 10, random);
    p.loops.clear();
  }
}

X(complex) * complex(Real* array) { return reinterpret_cast<X(complex)*>(array); }

}  // namespace

RandomProblem random_problem(Kind kind, std::mt19937& random) {
  RandomProblem p{};
  p.kind = kind;
  p.sign = one_in(2, random) ? FFTW_FORWARD : FFTW_BACKWARD;
  choose_lengths(p, random);
  p.in_place = one_in(3, random);
  if (one_in(5, random)) p.flags |= FFTW_PRESERVE_INPUT;
  p.flags |= FFTW_ESTIMATE |
             FFTW_UNALIGNED;  // without it FFTW itself crashes on some odd strides in single precision
  if (p.in_place) {
    lay_out_in_place(p, random);
  } else {
    p.in_reals = lay_out(p, false, random);
    p.out_reals = lay_out(p, true, random);
  }
  p.offset = between(0, 3, random);
  p.in_reals *= static_cast<std::size_t>(kind == Kind::c2c || (!p.in_place && kind == Kind::c2r) ? 2 : 1);
  p.out_reals *= static_cast<std::size_t>(kind == Kind::c2c || kind == Kind::r2c ? 2 : 1);
  return p;
}

X(plan) RandomProblem::plan(Whose whose, Real* in, Real* out) const {
  const int rank = static_cast<int>(dims.size()), loop_rank = static_cast<int>(loops.size());
  const auto* const d = dims.data();
  const auto* const l = loops.data();
  const bool ours = whose == Whose::ours;
  switch (kind) {
    case Kind::c2c:
      return (ours ? X(plan_guru64_dft) : RIVAL(plan_guru64_dft))(rank, d, loop_rank, l, complex(in),
                                                                  complex(out), sign, flags);
    case Kind::r2c:
      return (ours ? X(plan_guru64_dft_r2c) : RIVAL(plan_guru64_dft_r2c))(rank, d, loop_rank, l, in,
                                                                          complex(out), flags);
    case Kind::c2r:
      return (ours ? X(plan_guru64_dft_c2r) : RIVAL(plan_guru64_dft_c2r))(rank, d, loop_rank, l, complex(in),
                                                                          out, flags);
    case Kind::r2r:
      return (ours ? X(plan_guru64_r2r) : RIVAL(plan_guru64_r2r))(rank, d, loop_rank, l, in, out,
                                                                  kinds.data(), flags);
  }
  return nullptr;
}

void RandomProblem::execute_new(Whose whose, X(plan) plan, Real* in, Real* out) const {
  const bool ours = whose == Whose::ours;
  switch (kind) {
    case Kind::c2c:
      return (ours ? X(execute_dft) : RIVAL(execute_dft))(plan, complex(in), complex(out));
    case Kind::r2c:
      return (ours ? X(execute_dft_r2c) : RIVAL(execute_dft_r2c))(plan, in, complex(out));
    case Kind::c2r:
      return (ours ? X(execute_dft_c2r) : RIVAL(execute_dft_c2r))(plan, complex(in), out);
    case Kind::r2r:
      return (ours ? X(execute_r2r) : RIVAL(execute_r2r))(plan, in, out);
  }
}

/// FFTW's default for complex-to-real transforms.
bool RandomProblem::may_destroy() const {
  if ((flags & FFTW_PRESERVE_INPUT) != 0) return false;
  return kind == Kind::c2r || std::find(kinds.begin(), kinds.end(), FFTW_HC2R) != kinds.end();
}

std::string RandomProblem::text() const {
  std::ostringstream text;
  text << name_of(kind) << (in_place ? ", in place" : "") << ", sign " << sign << ", flags " << flags;
  for (const auto& [n, is, os] : dims) text << ", n " << n << " is " << is << " os " << os;
  for (const auto& [n, is, os] : loops) text << ", loop " << n << " is " << is << " os " << os;
  for (const auto kind_of_dim : kinds) text << ", kind " << static_cast<int>(kind_of_dim);
  return text.str();
}
