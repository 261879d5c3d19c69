#include "src/hartley/recipe/hartley.h"

#include <functional>

#include "gen/algorithms/transform.h"
#include "gen/passes/passes.h"
#include "src/hartley/recipe/table.h"

namespace xfm::hartley {
namespace {

using gen::Complex;
using gen::Network;
using gen::Points;
using gen::Sequence;
using gen::Tree;
using gen::Wide;

const gen::Transform transform(gen::Rounding::combination);

// H[k] = Re X[k] - Im X[k], and H[N-k] = Re X[k] + Im X[k].
std::unique_ptr<Network> forward(const Tree& plan, int length) {
  auto draft = std::make_unique<Network>(1, gen::Rounding::combination);
  const Points bins = transform.run(plan, gen::samples(*draft, length));
  Sequence<gen::Value> outputs(length);
  for (int k = 0; 2 * k <= length; ++k) {
    const int mirror = (length - k) % length;
    outputs[k] = bins[k].p - bins[k].q;
    if (mirror != k) outputs[mirror] = bins[k].p + bins[k].q;
  }
  for (const gen::Value& output : outputs) draft->output(output);
  return draft;
}

// H[k] = x0 + sum_j (x[j] + x[N-j]) cos(2 pi jk/N) + (x[j] - x[N-j]) sin(2 pi jk/N), j < N/2 (and +-x[N/2]
// for even N): an inverse real transform of the bins x[j] + x[N-j], x[N-j] - x[j].
std::unique_ptr<Network> folded(const Tree& plan, int length) {
  auto draft = std::make_unique<Network>(1, gen::Rounding::combination);
  const Points x = gen::samples(*draft, length);
  Points re, im;
  for (int j = 0; 2 * j <= length; ++j) {
    const int mirror = (length - j) % length;
    re.push_back(mirror == j ? x[j] : x[j] + x[mirror]);
    im.push_back(mirror == j ? Complex{} : x[mirror] - x[j]);
  }
  for (const Complex& output : transform.from_bins(plan, re, im)) draft->output(output.p);
  return draft;
}

// dst[k] = sum over j of src[j] (cos + sin)(2 pi j k/N).
void definition(const Sequence<Wide>& src, Sequence<Wide>& dst) {
  const int length = src.size();
  const auto roots = gen::roots_of_unity(length);
  for (int k = 0; k < length; ++k) {
    dst[k] = 0;
    for (int j = 0; j < length; ++j) {
      const auto& [c, s] = roots[j * k % length];
      dst[k] += src[j] * (c.value - s.value);
    }
  }
}

}  // namespace

std::unique_ptr<Network> draft(int length, const std::string& plan) {
  const Row& of = row(length);
  const Tree whole = gen::spelled_out(gen::parse_tree(plan.empty() ? of.plan : plan), plan_of);
  gen::check_length(whole, length);
  const auto plain = of.design == Design::forward ? forward(whole, length) : folded(whole, length);
  if (of.products == Products::merged_in_pairs) return gen::merged_pairs(*plain);
  auto merged = gen::merged(*plain);
  return of.products == Products::unrounded ? gen::unrounded(*merged) : std::move(merged);
}

gen::Design design(int length, gen::Precision precision, const std::string& plan) {
  const Row& of = row(length);
  const auto network = draft(length, plan);
  const gen::PerLane natural = gen::tabulated(length, std::identity());
  return {.kernel = {.family = "Hartley",
                     .type = {precision, false},
                     .scaling = gen::Scaling::symmetric,
                     .length = length,
                     .read = length,
                     .written = length,
                     .tree = plan.empty() ? of.plan : plan,
                     .adds = of.adds,
                     .mults = of.mults,
                     .network = gen::bind(*network, {natural, natural}, gen::negated_values(*network))},
          .definition = definition,
          .by_row = plan.empty()};
}

}  // namespace xfm::hartley
