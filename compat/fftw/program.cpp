#include "program.h"

#include <algorithm>
#include <cstdlib>

#include "gains.h"
#include "ours.h"
#include "steps.h"

namespace {

using Dims = std::vector<Dim>;

// ---- which problems xfm serves

/// The most dimensions whose transforms pass over the array one after the other.
constexpr std::size_t kMostRank = 3;

bool is_dct4(X(r2r_kind) kind) { return kind == FFTW_REDFT11 || kind == FFTW_RODFT11; }
bool is_real_dft(X(r2r_kind) kind) { return kind == FFTW_R2HC || kind == FFTW_HC2R || kind == FFTW_DHT; }

bool kernels_serve(std::ptrdiff_t n) { return XFM_DFT_MIN_LENGTH <= n && n <= XFM_DFT_MAX_LENGTH; }

bool dct4_serves(const Problem& problem) {
  const Dim& dim = problem.dims[0];
  const bool contiguous = dim.is == 1 && dim.os == 1;
  return problem.dims.size() == 1 && contiguous && dim.n <= INT32_MAX &&
         XFM_REAL(xfmDCT4IsServed)(static_cast<int32_t>(dim.n)) != 0;
}

bool same_places(const Dim& dim) { return dim.is == dim.os; }

/// In place every batch must write where it read, and rows of a real transform must be contiguous: FFTW's own
/// padding.
bool in_place_serves(const Problem& p) {
  const auto& dims = p.dims;
  const auto ends_alike = [&] {
    if (p.kind == Kind::r2c) return dims.back().is == 1 && dims.back().os == 2;
    if (p.kind == Kind::c2r) return dims.back().is == 2 && dims.back().os == 1;
    return same_places(dims.back());
  };
  return std::all_of(dims.begin(), dims.end() - 1, same_places) && ends_alike() &&
         std::all_of(p.loops.begin(), p.loops.end(), same_places);
}

bool lengths_serve(const Problem& p) {
  if (p.kind == Kind::r2r) {
    if (std::any_of(p.r2r_kinds.begin(), p.r2r_kinds.end(), is_dct4)) return dct4_serves(p);
    if (!std::all_of(p.r2r_kinds.begin(), p.r2r_kinds.end(), is_real_dft)) return false;
  }
  return std::all_of(p.dims.begin(), p.dims.end(), [](const Dim& d) { return kernels_serve(d.n); });
}

bool serves(const Problem& p) {
  return !p.dims.empty() && p.dims.size() <= kMostRank && lengths_serve(p) &&
         (p.in != p.out || in_place_serves(p));
}

/// FFTW makes no such plan: the transforms of the other dimensions need the input as their work area.
bool must_destroy(const Problem& p) {
  return p.kind == Kind::c2r && p.dims.size() > 1 && (p.flags & FFTW_PRESERVE_INPUT) != 0;
}

bool is_proper(const Problem& p) {
  const auto positive = [](const Dim& d) { return d.n > 0; };
  const bool has_sign = p.kind != Kind::c2c || p.sign == FFTW_FORWARD || p.sign == FFTW_BACKWARD;
  return has_sign && std::all_of(p.dims.begin(), p.dims.end(), positive) &&
         std::all_of(p.loops.begin(), p.loops.end(), positive);
}

/// A transform of length 1 is a copy, but that of a DCT has a factor, and the halved dimension has another
/// type.
bool may_be_dropped(const Problem& p, std::size_t dim) {
  if (p.dims[dim].n != 1) return false;
  if (p.kind == Kind::r2r) return is_real_dft(p.r2r_kinds[dim]);
  return p.kind == Kind::c2c || dim + 1 < p.dims.size();
}

Problem without_ones(const Problem& p) {
  Problem result = p;
  result.dims.clear();
  result.r2r_kinds.clear();
  for (std::size_t d = 0; d < p.dims.size(); ++d) {
    if (may_be_dropped(p, d)) continue;
    result.dims.push_back(p.dims[d]);
    if (p.kind == Kind::r2r) result.r2r_kinds.push_back(p.r2r_kinds[d]);
  }
  std::erase_if(result.loops, [](const Dim& d) { return d.n == 1; });
  return result;
}

// ---- loops

/// The outermost first; loops that one longer loop can replace are merged.
Dims merged(Dims loops) {
  std::erase_if(loops, [](const Dim& d) { return d.n == 1; });
  std::stable_sort(loops.begin(), loops.end(), [](const Dim& a, const Dim& b) {
    return std::abs(a.is) != std::abs(b.is) ? std::abs(a.is) > std::abs(b.is)
                                            : std::abs(a.os) > std::abs(b.os);
  });
  Dims result;
  for (const Dim& inner : loops) {
    if (!result.empty() && result.back().is == inner.n * inner.is && result.back().os == inner.n * inner.os)
      result.back() = {result.back().n * inner.n, inner.is, inner.os};
    else
      result.push_back(inner);
  }
  return result;
}

/// Takes the loop that a batch does best: neighbours in memory, unless transforms are contiguous, then the
/// longest.
Dim taken_batch(Dims& loops, const Dim& transform, std::ptrdiff_t in_unit, std::ptrdiff_t out_unit) {
  if (loops.empty()) return {1, 0, 0};
  const bool contiguous = transform.is == in_unit && transform.os == out_unit;
  const auto roads = [&](const Dim& d) { return contiguous ? 0 : (d.is == in_unit) + (d.os == out_unit); };
  const auto best = std::max_element(loops.begin(), loops.end(), [&](const Dim& a, const Dim& b) {
    return roads(a) != roads(b) ? roads(a) < roads(b) : a.n < b.n;
  });
  const Dim batch = *best;
  loops.erase(best);
  return batch;
}

// ---- steps

bool is_halfcomplex(const Step& step) {
  return step.run == run_to_halfcomplex || step.run == run_from_halfcomplex;
}

/// Nothing but one contiguous transform.
bool is_one_call(const Step& step) {
  const std::ptrdiff_t unit = step.run == run_complex ? 2 : 1;
  const bool plain = step.run == run_complex || step.run == run_real;
  return plain && step.transform.is == unit && step.transform.os == unit && step.batch.n == 1;
}

bool needs_batches(const Step& step) { return !is_one_call(step) && !is_halfcomplex(step); }

void find_complex(Step& step, const char* family) {
  step.kernel.complex = complex_kernel(family, static_cast<int>(step.transform.n));
  if (needs_batches(step)) step.complex = complex_batch(family);
}
void find_real(Step& step, const char* family) {
  step.kernel.real = real_kernel(family, static_cast<int>(step.transform.n));
  if (needs_batches(step)) step.real = real_batch(family);
}

void use_complex(Step& step, int sign) {
  step.run = run_complex;
  find_complex(step, sign == FFTW_FORWARD ? "DFTFwd_CToC" : "DFTInv_CToC");
}

/// Where the elements of CCS lie if complex numbers are so far apart.
std::vector<std::ptrdiff_t> places_of_ccs(std::ptrdiff_t n, std::ptrdiff_t stride) {
  std::vector<std::ptrdiff_t> places;
  for (std::ptrdiff_t k = 0; k <= n / 2; ++k) places.insert(places.end(), {k * stride, k * stride + 1});
  return places;
}

/// Where the elements of Pack lie in FFTW's half-complex order: R(0) .. R(n/2), I((n-1)/2) .. I(1).
std::vector<std::ptrdiff_t> places_of_pack(std::ptrdiff_t n, std::ptrdiff_t stride) {
  std::vector<std::ptrdiff_t> places;
  for (std::ptrdiff_t e = 0; e < n; ++e)
    places.push_back((e % 2 == 1 || e == 0 ? (e + 1) / 2 : n - e / 2) * stride);
  return places;
}

void use_forward_real(Step& step) {
  const auto& [n, is, os] = step.transform;
  if (os == 2) {
    step.transform.os = 1;  // pairs that follow each other are a contiguous array of reals
    step.run = run_real;
  } else {
    step.places = places_of_ccs(n, os);
    step.run = run_scattered;
  }
  find_real(step, "DFTFwd_RToCCS");
}

void use_inverse_real(Step& step) {
  const auto& [n, is, os] = step.transform;
  if (is == 2) {
    step.transform.is = 1;
    step.run = run_real;
  } else {
    step.places = places_of_ccs(n, is);
    step.run = run_gathered;
  }
  find_real(step, "DFTInv_CCSToR");
}

void use_dct4(Step& step, X(r2r_kind) kind) {
  step.states = std::make_shared<Dct4States>(static_cast<int>(step.transform.n));
  step.sine = kind == FFTW_RODFT11;
  step.run = run_dct4;
}

/// Up to three elements, Pack is the half-complex order.
bool is_pack(std::ptrdiff_t n) { return n <= 3; }

void use_r2hc(Step& step) {
  const auto& [n, is, os] = step.transform;
  if (!is_pack(n)) step.places = places_of_pack(n, os);
  step.run = is_pack(n) ? run_real : is == 1 && os == 1 ? run_to_halfcomplex : run_scattered;
  find_real(step, "DFTFwd_RToPack");
}

void use_hc2r(Step& step) {
  const auto& [n, is, os] = step.transform;
  if (!is_pack(n)) step.places = places_of_pack(n, is);
  step.run = is_pack(n) ? run_real : is == 1 && os == 1 ? run_from_halfcomplex : run_gathered;
  find_real(step, "DFTInv_PackToR");
}

void use_dht(Step& step) {
  step.run = run_real;
  find_real(step, "Hartley");
}

void use_r2r(Step& step, X(r2r_kind) kind) {
  if (kind == FFTW_R2HC) return use_r2hc(step);
  if (kind == FFTW_HC2R) return use_hc2r(step);
  if (kind == FFTW_DHT) return use_dht(step);
  use_dct4(step, kind);
}

/// The transforms of dimension `dim`, for all indices of `others`, both with the strides of the step's road.
Step step_of(const Problem& p, std::size_t dim, Road road, const Dim& transform, Dims others) {
  const bool is_last = dim + 1 == p.dims.size();
  const Kind kind = p.kind == Kind::r2r || is_last ? p.kind : Kind::c2c;
  Step step{};
  step.road = road;
  step.transform = transform;
  step.loops = merged(std::move(others));
  step.batch = taken_batch(step.loops, transform, in_unit(kind), out_unit(kind));
  switch (kind) {
    case Kind::c2c:
      use_complex(step, p.kind == Kind::r2c ? FFTW_FORWARD : p.kind == Kind::c2r ? FFTW_BACKWARD : p.sign);
      break;
    case Kind::r2c:
      use_forward_real(step);
      break;
    case Kind::c2r:
      use_inverse_real(step);
      break;
    case Kind::r2r:
      use_r2r(step, p.r2r_kinds[dim]);
      break;
  }
  return step;
}

Dim on_road(const Dim& dim, Road road) {
  if (road == Road::in_to_in) return {dim.n, dim.is, dim.is};
  if (road == Road::out_to_out) return {dim.n, dim.os, dim.os};
  return dim;
}

/// One dimension after the other: the last one first and from the input to the output, the others in the
/// output. The inverse of a real transform ends with the last one, and begins in the input.
std::vector<Step> steps_of(const Problem& p, const Dims& loops) {
  std::vector<Step> steps;
  const std::size_t last = p.dims.size() - 1;
  const bool halved = p.kind == Kind::r2c || p.kind == Kind::c2r;
  for (std::size_t i = 0; i <= last; ++i) {
    const std::size_t dim = p.kind == Kind::c2r ? i : last - i;
    const Road road = dim == last ? Road::in_to_out : p.kind == Kind::c2r ? Road::in_to_in : Road::out_to_out;
    Dims others;
    for (std::size_t d = 0; d <= last; ++d) {
      if (d == dim) continue;
      others.push_back(on_road(p.dims[d], road));
      if (d == last && halved) others.back().n = others.back().n / 2 + 1;
    }
    for (const Dim& loop : loops) others.push_back(on_road(loop, road));
    steps.push_back(step_of(p, dim, road, on_road(p.dims[dim], road), std::move(others)));
  }
  return steps;
}

// ---- gains

bool moves(const Step& step) {
  constexpr Step::Run rearranging[] = {run_scattered, run_gathered, run_to_halfcomplex, run_from_halfcomplex};
  return std::find(std::begin(rearranging), std::end(rearranging), step.run) != std::end(rearranging);
}

bool is_contiguous_batch(const Step& step) {
  return step.run == run_complex && step.batch.n > 1 && step.transform.is == 2 && step.transform.os == 2;
}

bool gains(const Program& program, const Problem& p) {
  const bool several = p.dims.size() > 1;
  const auto long_enough = [&](const Dim& d) { return d.n >= least_of_rank(p.kind); };
  if (several && !std::all_of(p.dims.begin(), p.dims.end(), long_enough)) return false;
  return std::none_of(program.steps.begin(), program.steps.end(), [&](const Step& step) {
    const std::ptrdiff_t n = step.transform.n;
    return (moves(step) && n < kLeastMoved) ||
           (!several && is_contiguous_batch(step) && n < kLeastContiguousBatch);
  });
}

// ---- programs

/// So many reals of an array are transformed in all dimensions before the next ones are: they stay in the
/// first cache.
constexpr std::ptrdiff_t kGroupBytes = 16384;

std::ptrdiff_t group_size(const Problem& p, std::ptrdiff_t count) {
  constexpr std::ptrdiff_t kLanes = 16;
  std::ptrdiff_t bytes = std::max(in_unit(p.kind), out_unit(p.kind)) * std::ptrdiff_t{sizeof(Real)};
  for (const Dim& d : p.dims) bytes *= d.n;
  const std::ptrdiff_t most = std::max<std::ptrdiff_t>(kGroupBytes / bytes, 1);
  return std::min(count, most > kLanes ? most / kLanes * kLanes : most);
}

/// Transforms of several dimensions are grouped along the loop of the least stride.
Program in_groups(const Problem& p) {
  Program program;
  program.blocks = merged(p.loops);
  Dim along{1, 0, 0};
  if (!program.blocks.empty()) {
    along = program.blocks.back();
    program.blocks.pop_back();
  }
  const std::ptrdiff_t size = group_size(p, along.n), rest = along.n % size;
  program.group = {along.n / size, along.is * size, along.os * size};
  program.steps = steps_of(p, {{size, along.is, along.os}});
  if (rest != 0) program.last_steps = steps_of(p, {{rest, along.is, along.os}});
  return program;
}

Program in_one_pass(const Problem& p) {
  Program program;
  program.group = {1, 0, 0};
  program.steps = steps_of(p, p.loops);
  return program;
}

void run_loops(const Step& step, std::size_t loop, const Real* in, Real* out) {
  if (loop == step.loops.size()) return step.run(step, in, out);
  const Dim& dim = step.loops[loop];
  for (std::ptrdiff_t i = 0; i < dim.n; ++i) run_loops(step, loop + 1, in + i * dim.is, out + i * dim.os);
}

void run_steps(const std::vector<Step>& steps, Real* in, Real* out) {
  for (const Step& step : steps) {
    const bool from_output = step.road == Road::out_to_out, to_input = step.road == Road::in_to_in;
    run_loops(step, 0, from_output ? out : in, to_input ? in : out);
  }
}

void run_blocks(const Program& program, std::size_t loop, Real* in, Real* out) {
  if (loop < program.blocks.size()) {
    const Dim& dim = program.blocks[loop];
    for (std::ptrdiff_t i = 0; i < dim.n; ++i)
      run_blocks(program, loop + 1, in + i * dim.is, out + i * dim.os);
    return;
  }
  const Dim& group = program.group;
  for (std::ptrdiff_t i = 0; i < group.n; ++i)
    run_steps(program.steps, in + i * group.is, out + i * group.os);
  run_steps(program.last_steps, in + group.n * group.is, out + group.n * group.os);
}

}  // namespace

void run(const Program& program, Real* in, Real* out) { run_blocks(program, 0, in, out); }

std::optional<Program> program_of(const Problem& problem) try {
  if (!is_proper(problem) || must_destroy(problem)) return {};
  const Problem simple = without_ones(problem);
  if (!serves(simple)) return {};
  Program program = simple.dims.size() > 1 ? in_groups(simple) : in_one_pass(simple);
  program.gains = gains(program, simple);
  return program;
} catch (const OursMissing&) {
  return {};
}

const Step* only_step(const Program& program) {
  const bool alone = program.blocks.empty() && program.group.n == 1 && program.steps.size() == 1 &&
                     program.last_steps.empty() && program.steps.front().loops.empty();
  return alone ? &program.steps.front() : nullptr;
}

Kernel kernel_of(const Step& step) { return is_one_call(step) ? step.kernel : Kernel{}; }
