#include "src/real/recipe/real.h"

#include <numeric>

#include "gen/algorithms/transform.h"
#include "gen/passes/passes.h"

namespace xfm::real {
namespace {

using gen::Network;
using gen::PerLane;
using gen::Points;
using gen::Precision;
using gen::Sequence;
using gen::Tree;
using gen::Wide;

const gen::Transform transform(gen::Rounding::combination);

// Bins are numbered as in CCS: 2k for the real half of bin k, 2k+1 for the imaginary one, where there is one.
struct Half {
  int k, part;
  int number() const { return 2 * k + part; }
};
Sequence<Half> halves(int length) {
  Sequence<Half> all{{0, 0}};
  for (int k = 1; 2 * k < length; ++k) all.insert(all.end(), {{k, 0}, {k, 1}});
  if (length % 2 == 0) all.push_back({length / 2, 0});
  return all;
}
// Bins with a conjugate count twice in a sum over all bins.
bool counts_twice(const Half& of, int length) { return of.k > 0 && 2 * of.k < length; }

gen::Value half(const Points& bins, const Half& of) { return of.part == 0 ? bins[of.k].p : bins[of.k].q; }

std::unique_ptr<Network> forward(const Tree& plan, int length) {
  auto draft = std::make_unique<Network>(1, gen::Rounding::combination);
  const Points bins = transform.run(plan, gen::samples(*draft, length));
  for (const Half& of : halves(length)) draft->output(half(bins, of));
  return draft;
}

std::unique_ptr<Network> inverse(const Tree& plan, int length) {
  Network there(1, gen::Rounding::combination);
  const Points bins = transform.run(plan, gen::samples(there, length));
  auto draft = std::make_unique<Network>(1, gen::Rounding::combination);
  gen::Transposition transposition(there);
  for (const Half& of : halves(length)) {
    const gen::Value bin = draft->load(of.number());
    transposition.send(half(bins, of), {counts_twice(of, length) ? draft->twice(bin) : bin, {}});
  }
  for (const gen::Complex& sample : transposition.run(length)) draft->output(sample.p);
  return draft;
}

PerLane natural(int length) {
  PerLane order(length);
  std::iota(order.begin(), order.end(), 0);
  return order;
}

gen::Binding binding(Direction direction, Layout layout, int length) {
  PerLane packed;
  if (direction == Direction::forward) {
    for (const Half& of : halves(length)) packed.push_back(element(layout, length, of.k, of.part));
    return {natural(length), packed, zeros(layout, length), true};
  }
  packed = PerLane(length + 2);
  for (const Half& of : halves(length)) packed[of.number()] = element(layout, length, of.k, of.part);
  return {packed, natural(length)};
}

// All layouts number their spectra as CCS does.
gen::Numbering numbering(Direction direction, Layout layout, int length) {
  PerLane numbers = natural(size_of(layout, length));
  for (const Half& of : halves(length)) numbers[element(layout, length, of.k, of.part)] = of.number();
  return direction == Direction::forward ? gen::Numbering{{}, numbers} : gen::Numbering{numbers, {}};
}

// X[k] = sum over j of x[j] exp(-2 pi i j k/N), and x[j] as the sum over all bins of the Hermitian spectrum.
gen::Definition definition(Direction direction, Layout layout, int length) {
  return [=](const Sequence<Wide>& src, Sequence<Wide>& dst) {
    const auto roots = gen::roots_of_unity(length);
    dst = Sequence<Wide>(dst.size());
    for (int j = 0; j < length; ++j) {
      for (const Half& of : halves(length)) {
        const gen::ComplexConstant& root = roots[j * of.k % length];
        const Wide w = of.part == 0 ? root.re.value : root.im.value;
        const int bin = element(layout, length, of.k, of.part);
        if (direction == Direction::forward) {
          dst[bin] += w * src[j];
        } else {
          dst[j] += (counts_twice(of, length) ? 2 : 1) * w * src[bin];
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

gen::Design design(int length, Precision precision, Direction direction, Layout layout,
                   const std::string& tree) {
  const bool forwards = direction == Direction::forward;
  const Breakdown& breakdown = forwards ? row(length).forward : row(length).inverse;
  const std::string text = tree.empty() ? breakdown.tree : tree;
  const char* const chosen = tree.empty() ? plan_of_least_error(forwards, length) : nullptr;
  const Tree whole = plan_of(gen::parse_tree(chosen == nullptr ? text : chosen), direction, layout, length);
  gen::check_length(whole, length);
  const auto merged = gen::merged(forwards ? *forward(whole, length) : *inverse(whole, length));
  const Network& draft = *merged;
  const int size = size_of(layout, length);
  const std::string name = name_of(layout);
  return {
      .kernel = {.family = forwards ? "DFTFwd_RTo" + name : "DFTInv_" + name + "ToR",
                 .type = {precision, false},
                 .scaling = forwards ? gen::Scaling::forward : gen::Scaling::inverse,
                 .length = length,
                 .read = forwards ? length : size,
                 .written = forwards ? size : length,
                 .tree = text,
                 .adds = breakdown.adds,
                 .mults = breakdown.mults,
                 .network = gen::bind(draft, binding(direction, layout, length), gen::negated_values(draft)),
                 .order = gen::scalar_order(precision),
                 .numbering = numbering(direction, layout, length)},
      .definition = definition(direction, layout, length),
      .by_row = tree.empty(),
      .unread = forwards ? PerLane{} : zeros(layout, length)};
}

}  // namespace xfm::real
