#include "src/hartley/recipe/hartley.h"

#include <numeric>
#include <stdexcept>

#include "gen/algorithms/real_transform.h"
#include "gen/algorithms/transposition.h"
#include "gen/network/check.h"
#include "gen/passes/merging.h"
#include "gen/passes/signs.h"
#include "src/hartley/recipe/structure.h"

namespace xfm::hartley {
namespace {

using gen::Complex;
using gen::Kernel;
using gen::Precision;
using gen::Tree;
using gen::Wide;
using gen::real::Draft;
using gen::real::Values;

// Numbers that stand for plans are spelled out.
Tree spelled_out(const Tree& tree) {
  if (tree.is_number()) {
    const char* plan = plan_of(tree.number);
    return plan == nullptr ? tree : spelled_out(gen::parse_tree(plan));
  }
  Tree plan = tree;
  for (std::size_t a = tree.rule == "R" ? 1 : 0; a < plan.args.size(); ++a)
    plan.args[a] = spelled_out(plan.args[a]);
  return plan;
}

// H[k] = Re X[k] - Im X[k], and H[N-k] = Re X[k] + Im X[k].
Draft forward(const Tree& plan, int length) {
  Draft draft;
  const gen::Points bins = gen::real::transform(plan, gen::real::samples(*draft.network, length));
  draft.outputs.resize(static_cast<std::size_t>(length));
  for (std::size_t k = 0; k < bins.size(); ++k) {
    const std::size_t mirror = (draft.outputs.size() - k) % draft.outputs.size();
    draft.outputs[k] = bins[k].p - bins[k].q;
    if (mirror != k) draft.outputs[mirror] = bins[k].p + bins[k].q;
  }
  return draft;
}

// H[k] = x0 + sum_j (x[j] + x[N-j]) cos(2 pi jk/N) + (x[j] - x[N-j]) sin(2 pi jk/N), j < N/2 (and +-x[N/2]
// for even N): an inverse real transform of the bins x[j] + x[N-j], x[N-j] - x[j].
Draft folded(const Tree& plan, int length) {
  gen::Network there(1, gen::Rounding::combination);
  const gen::Points bins = gen::real::transform(plan, gen::real::samples(there, length));
  Draft draft;
  const Values x = gen::real::samples(*draft.network, length);
  gen::Transposition transposition(there);
  for (std::size_t j = 0; j < bins.size(); ++j) {
    const std::size_t mirror = (x.size() - j) % x.size();
    transposition.send(bins[j].p, {mirror == j ? x[j] : x[j] + x[mirror], {}});
    if (mirror != j) transposition.send(bins[j].q, {x[mirror] - x[j], {}});
  }
  for (const Complex& output : transposition.run(length)) draft.outputs.push_back(output.p);
  return draft;
}

Draft finished(Products products, const Draft& draft) {
  if (products == Products::merged_in_pairs) return gen::real::merged_pairs(draft);
  Draft merged = gen::real::merged(draft);
  return products == Products::unrounded ? gen::real::unrounded(merged) : std::move(merged);
}

// dst[k] = sum over j of src[j] (cos + sin)(2 pi j k/N).
void definition(const std::vector<Wide>& src, std::vector<Wide>& dst) {
  const auto length = static_cast<long long>(src.size());
  for (long long k = 0; k < length; ++k) {
    Wide sum = 0;
    for (long long j = 0; j < length; ++j) {
      const gen::Turn angle = gen::turn(j * k, length);
      sum += src[static_cast<std::size_t>(j)] * (gen::cosine(angle).value + gen::sine(angle).value);
    }
    dst[static_cast<std::size_t>(k)] = sum;
  }
}

gen::real::Binding natural_order(int length) {
  std::vector<int> order(static_cast<std::size_t>(length));
  std::iota(order.begin(), order.end(), 0);
  return {order, order};
}

}  // namespace

std::vector<int> lengths() {
  std::vector<int> all;
  for (const Row& row : table()) all.push_back(row.length);
  return all;
}

Kernel make_kernel(int length, Precision precision, const std::string& plan) {
  const Row& of = row(length);
  Kernel kernel{.name = "",
                .family = "Hartley",
                .type = {precision, false},
                .scaling = gen::Scaling::symmetric,
                .length = length,
                .read = length,
                .written = length,
                .tree = plan.empty() ? of.plan : plan,
                .adds = of.adds,
                .mults = of.mults,
                .network = nullptr,
                .order = gen::real::order(precision)};
  kernel.name = "xfm" + kernel.family + "_" + std::to_string(length) + "_" + kernel.type.suffix();
  const Tree whole = spelled_out(gen::parse_tree(kernel.tree));
  if (gen::real::length_of(whole) != length)
    throw std::invalid_argument("plan " + kernel.tree + " is not one of length " + std::to_string(length));
  const Draft draft =
      finished(of.products, of.design == Design::forward ? forward(whole, length) : folded(whole, length));
  kernel.network = gen::real::bind(draft, natural_order(length), gen::real::negated_values(draft));
  gen::check_memory(*kernel.network, length, length, kernel.name);
  gen::check_definition(*kernel.network, definition, length, length, kernel.name);
  if (plan.empty()) {
    check_structure(draft, of, kernel.name);
    gen::check_counts(gen::count(*kernel.network), kernel.adds, kernel.mults, kernel.name);
  }
  return kernel;
}

}  // namespace xfm::hartley
