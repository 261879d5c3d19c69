#include "src/real/recipe/real.h"

#include <functional>

#include "gen/algorithms/transform.h"
#include "gen/passes/passes.h"
#include "src/real/recipe/table.h"

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

int size_of(Layout layout, int length) { return layout == Layout::ccs ? length / 2 * 2 + 2 : length; }

// Where a half is. CCS: all bins as pairs. Pack: the zeros left out. Perm: the same, but the last real bin of
// an even length comes second, so that the others stay pairs.
int element(Layout layout, int length, const Half& of) {
  if (layout == Layout::ccs || of.k == 0) return of.number();
  if (layout == Layout::pack || length % 2 == 1) return of.number() - 1;
  return 2 * of.k == length ? 1 : of.number();
}

// The imaginary halves of bin 0, and of bin N/2 of an even N: stored zeros in CCS, nowhere in the others.
PerLane zeros(Layout layout, int length) {
  if (layout != Layout::ccs) return {};
  return length % 2 == 0 ? PerLane{1, length + 1} : PerLane{1};
}

std::unique_ptr<Network> forward(const Tree& plan, int length) {
  auto draft = std::make_unique<Network>(1, gen::Rounding::combination);
  const Points bins = transform.run(plan, gen::samples(*draft, length));
  for (const Half& of : halves(length)) draft->output(half(bins, of));
  return draft;
}

std::unique_ptr<Network> inverse(const Tree& plan, int length) {
  auto draft = std::make_unique<Network>(1, gen::Rounding::combination);
  Points weights[2] = {Points(length / 2 + 1), Points(length / 2 + 1)};  // of real and imaginary halves
  for (const Half& of : halves(length)) {
    const gen::Value bin = draft->load(of.number());
    weights[of.part][of.k].p = counts_twice(of, length) ? draft->twice(bin) : bin;
  }
  for (const gen::Complex& sample : transform.from_bins(plan, weights[0], weights[1]))
    draft->output(sample.p);
  return draft;
}

PerLane natural(int length) { return gen::tabulated(length, std::identity()); }

gen::Binding binding(Direction direction, Layout layout, int length) {
  PerLane packed;
  if (direction == Direction::forward) {
    for (const Half& of : halves(length)) packed.push_back(element(layout, length, of));
    return {natural(length), packed, zeros(layout, length), true};
  }
  packed = PerLane(length + 2);
  for (const Half& of : halves(length)) packed[of.number()] = element(layout, length, of);
  return {packed, natural(length)};
}

// All layouts number their spectra as CCS does.
gen::Numbering numbering(Direction direction, Layout layout, int length) {
  PerLane numbers = natural(size_of(layout, length));
  for (const Half& of : halves(length)) numbers[element(layout, length, of)] = of.number();
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
        const int bin = element(layout, length, of);
        if (direction == Direction::forward) {
          dst[bin] += w * src[j];
        } else {
          dst[j] += (counts_twice(of, length) ? 2 : 1) * w * src[bin];
        }
      }
    }
  };
}

}  // namespace

const char* name_of(Layout layout) {
  return layout == Layout::ccs ? "CCS" : layout == Layout::pack ? "Pack" : "Perm";
}

gen::Design design(int length, Precision precision, Direction direction, Layout layout,
                   const std::string& tree) {
  const bool forwards = direction == Direction::forward;
  const Breakdown& row = breakdown(direction, length);
  const std::string text = tree.empty() ? row.tree : tree;
  const char* const chosen = tree.empty() ? tree_of_least_error(direction, length) : nullptr;
  const Tree whole = plan(direction, layout, length, gen::parse_tree(chosen == nullptr ? text : chosen));
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
                 .adds = row.adds,
                 .mults = row.mults,
                 .network = gen::bind(draft, binding(direction, layout, length), gen::negated_values(draft)),
                 .numbering = numbering(direction, layout, length)},
      .definition = definition(direction, layout, length),
      .by_row = tree.empty(),
      .unread = forwards ? PerLane{} : zeros(layout, length)};
}

}  // namespace xfm::real
