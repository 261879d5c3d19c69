#include "src/real/recipe/real.h"

#include <stdexcept>

#include "gen/algorithms/real_transform.h"
#include "gen/algorithms/transposition.h"
#include "gen/network/check.h"
#include "gen/passes/merging.h"
#include "gen/passes/signs.h"

namespace xfm::real {
namespace {

using gen::Kernel;
using gen::Precision;
using gen::Tree;
using gen::Wide;
using gen::real::Draft;

// Bins are numbered as in CCS: 2k for the real half of bin k, 2k+1 for the imaginary one, where there is one.
struct Half {
  int k, part;
};
std::vector<Half> halves(int length) {
  std::vector<Half> all{{0, 0}};
  for (int k = 1; 2 * k < length; ++k) {
    all.push_back({k, 0});
    all.push_back({k, 1});
  }
  if (length % 2 == 0) all.push_back({length / 2, 0});
  return all;
}

gen::Value half(const gen::Points& bins, Half of) {
  const gen::Complex& bin = bins[static_cast<std::size_t>(of.k)];
  return of.part == 0 ? bin.p : bin.q;
}

Draft forward(const Tree& plan, int length) {
  Draft draft;
  const gen::Points bins = gen::real::transform(plan, gen::real::samples(*draft.network, length));
  for (const Half& of : halves(length)) draft.outputs.push_back(half(bins, of));
  return draft;
}

// The sum over all N bins: those with a conjugate count twice.
Draft inverse(const Tree& plan, int length) {
  gen::Network there(1, gen::Rounding::combination);
  const gen::Points bins = gen::real::transform(plan, gen::real::samples(there, length));
  Draft draft;
  gen::Transposition transposition(there);
  for (const Half& of : halves(length)) {
    const gen::Value bin = draft.network->load(2 * of.k + of.part);
    const bool twice = of.k > 0 && 2 * of.k < length;
    transposition.send(half(bins, of), {twice ? draft.network->twice(bin) : bin, {}});
  }
  for (const gen::Complex& sample : transposition.run(length)) draft.outputs.push_back(sample.p);
  return draft;
}

gen::real::Binding binding(Direction direction, Layout layout, int length) {
  std::vector<int> natural, packed;
  for (int n = 0; n < length; ++n) natural.push_back(n);
  if (direction == Direction::forward) {
    for (const Half& of : halves(length)) packed.push_back(element(layout, length, of.k, of.part));
    return {natural, packed, zeros(layout, length), true};
  }
  packed.resize(static_cast<std::size_t>(length + 2));
  for (const Half& of : halves(length))
    packed[static_cast<std::size_t>(2 * of.k + of.part)] = element(layout, length, of.k, of.part);
  return {packed, natural};
}

// X[k] = sum over j of x[j] exp(-2 pi i j k/N), and x[j] as the sum over all bins of the Hermitian spectrum.
gen::Definition definition(Direction direction, Layout layout, int length) {
  return [=](const std::vector<Wide>& src, std::vector<Wide>& dst) {
    dst.assign(dst.size(), 0);
    for (int j = 0; j < length; ++j) {
      for (const Half& of : halves(length)) {
        const gen::Turn angle = gen::turn(static_cast<long long>(j) * of.k, length);
        const Wide w = of.part == 0 ? gen::cosine(angle).value : -gen::sine(angle).value;
        const auto bin = static_cast<std::size_t>(element(layout, length, of.k, of.part));
        const auto sample = static_cast<std::size_t>(j);
        if (direction == Direction::forward) {
          dst[bin] += w * src[sample];
        } else {
          dst[sample] += (of.k > 0 && 2 * of.k < length ? 2 : 1) * w * src[bin];
        }
      }
    }
  };
}

Tree plan_of(const Tree& tree, Direction direction, Layout layout, int length) {
  Tree whole = plan(direction, tree);
  if (direction == Direction::forward) return whole;
  for (const BlockOrder& order : block_orders()) {
    if (order.length == length && order.layout == layout) whole = reordered(whole, order);
  }
  return whole;
}

}  // namespace

std::vector<int> lengths() {
  std::vector<int> all;
  for (const Row& row : table()) all.push_back(row.length);
  return all;
}

std::string family_name(Direction direction, Layout layout) {
  const std::string name = name_of(layout);
  return direction == Direction::forward ? "DFTFwd_RTo" + name : "DFTInv_" + name + "ToR";
}

Kernel make_kernel(int length, Precision precision, Direction direction, Layout layout,
                   const std::string& tree) {
  const bool forwards = direction == Direction::forward;
  const Breakdown& breakdown = forwards ? row(length).forward : row(length).inverse;
  const int size = size_of(layout, length);
  Kernel kernel{.name = "",
                .family = family_name(direction, layout),
                .type = {precision, false},
                .scaling = forwards ? gen::Scaling::forward : gen::Scaling::inverse,
                .length = length,
                .read = forwards ? length : size,
                .written = forwards ? size : length,
                .tree = tree.empty() ? breakdown.tree : tree,
                .adds = breakdown.adds,
                .mults = breakdown.mults - length,
                .network = nullptr,
                .order = gen::real::order(precision)};
  kernel.name = "xfm" + kernel.family + "_" + std::to_string(length) + "_" + kernel.type.suffix();
  const char* const chosen = tree.empty() ? plan_of_least_error(forwards, length) : nullptr;
  const Tree whole =
      plan_of(gen::parse_tree(chosen == nullptr ? kernel.tree : chosen), direction, layout, length);
  if (gen::real::length_of(whole) != length)
    throw std::invalid_argument("tree " + kernel.tree + " is not one of length " + std::to_string(length));
  const Draft draft = gen::real::merged(forwards ? forward(whole, length) : inverse(whole, length));
  kernel.network =
      gen::real::bind(draft, binding(direction, layout, length), gen::real::negated_values(draft));
  gen::check_memory(*kernel.network, kernel.read, kernel.written, kernel.name,
                    forwards ? std::vector<int>{} : zeros(layout, length));
  gen::check_definition(*kernel.network, definition(direction, layout, length), kernel.read, kernel.written,
                        kernel.name);
  if (tree.empty()) gen::check_counts(gen::count(*kernel.network), kernel.adds, kernel.mults, kernel.name);
  return kernel;
}

}  // namespace xfm::real
