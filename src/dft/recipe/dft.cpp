#include "src/dft/recipe/dft.h"

#include <limits>
#include <stdexcept>

#include "gen/algorithms/lines.h"
#include "gen/packing/cost.h"
#include "gen/passes/passes.h"
#include "src/dft/recipe/table.h"

namespace xfm::dft {
namespace {

using gen::Complex;
using gen::Form;
using gen::Network;
using gen::Points;
using gen::Precision;
using gen::Rounding;
using gen::Target;
using gen::Tree;
using gen::Value;
using gen::Wide;

// What the networks of one kernel are made from.
struct Recipe {
  int length;
  Tree tree;
  Direction direction;
  const Choices& choices;
  const Target& target;
};

// How the points fill registers and reach memory.
struct Packing {
  int width;
  Form form;
  std::optional<gen::Grouping> as{};  // where products by 0 stand, if not as here
  bool balanced = false;
  bool loads_in_order = false;   // or as the first stage wants the numbers
  bool stores_in_order = false;  // or as the last stage leaves them
};

// Rader blocks on sequences multiply by constants one after the other.
std::unique_ptr<Network> folded(const Recipe& recipe, std::unique_ptr<Network> network) {
  return gen::uses_rule(recipe.tree, "RS") ? gen::fold_constants(*network) : std::move(network);
}

// One complex number per register, and real coefficients only: X[k] = P + i*Q and X[N-k] = P - i*Q share one
// exchange of parts, just before the addition and the subtraction. An inverse kernel has the opposite signs.
std::unique_ptr<Network> joined_network(const Recipe& recipe) {
  constexpr int parts = 2;
  auto network = std::make_unique<Network>(parts);
  gen::Lanes lanes(*network, gen::baseline(), Precision::binary64);
  const int length = recipe.length;
  const auto place = [](int n) { return gen::PerLane{parts * n, parts * n + 1}; };
  const auto store = [&](int k, Value v) { network->store(network->factor(v), place(k)); };
  const Points x = gen::tabulated(length, [&](int n) { return Complex{network->load(place(n)), {}}; });
  const Points out = gen::Transform(Rounding::each, recipe.choices.open()).run(recipe.tree, x);
  store(0, out[0].p);
  for (int k = 1; 2 * k < length; ++k) {
    const auto [p, q] = out[k];
    const Value i_q = lanes.times_i(recipe.direction == Direction::forward ? q : -q);
    store(k, p + i_q);
    store(length - k, p - i_q);
  }
  if (length % 2 == 0) store(length / 2, out[length / 2].p);
  if (gen::count(*network).permutations != (length - 1) / 2)
    throw std::logic_error("the number of joins is not that of output pairs");
  return folded(recipe, std::move(network));
}

// Lanes in one of the two forms, or scalar code in a single lane.
std::unique_ptr<Network> packed_network(const Recipe& recipe, const Target& target, const Packing& packing,
                                        Rounding rounding) {
  auto network = std::make_unique<Network>(packing.width, rounding);
  gen::Lanes lanes(*network, target);
  const gen::Line x =
      packing.loads_in_order ? lanes.load(recipe.length) : gen::tabulated(recipe.length, gen::source_element);
  const gen::Grouping grouping{packing.form, lanes.instances(packing.form), packing.balanced};
  gen::LineTransform transform(lanes, grouping, packing.as.value_or(grouping), recipe.choices.open());
  const gen::Line out = transform.run(recipe.tree, {x}, recipe.direction).front();
  if (packing.stores_in_order) {
    lanes.store_in_order(out);
  } else {
    lanes.store(out);
  }
  // A planar network has no flips: its bits are those of sums as they are.
  const bool planar = packing.as.value_or(grouping).form == Form::planar;
  if (packing.width > 1)
    network = gen::absorb_sign_flips(
        *network, planar && packing.form != Form::planar ? gen::Carriers::products : gen::Carriers::sums_too);
  return folded(recipe, std::move(network));
}

// The baseline's lanes, in the form that takes fewer instructions; the other one must be the same program.
struct Forms {
  std::unique_ptr<Network> network, other;
  gen::Grouping grouping;
};
Forms narrow_forms(const Recipe& recipe) {
  const Target& target = gen::baseline();
  const int width = target.lanes(Precision::binary32);
  const auto make = [&](Form form) {
    return packed_network(recipe, target, {.width = width, .form = form}, Rounding::each);
  };
  Forms forms{make(Form::interleaved), make(Form::planar), {Form::interleaved, width / 2}};
  if (gen::instructions(*forms.other) < gen::instructions(*forms.network)) {
    std::swap(forms.network, forms.other);
    forms.grouping = {Form::planar, width};
  }
  return forms;
}

// More lanes, where that pays: by the cheapest way to reach memory, and then to fill registers.
Forms wide_forms(const Recipe& recipe, Forms narrow) {
  Packing packing{recipe.target.lanes(Precision::binary32), Form::interleaved, narrow.grouping};
  std::unique_ptr<Network> best;
  int least = std::numeric_limits<int>::max();
  const auto attempt = [&](const Packing& other) {
    auto network = packed_network(recipe, recipe.target, other, Rounding::each);
    const int cost = gen::cost(*network, recipe.target);
    if (cost >= least) return;
    least = cost;
    best = std::move(network);
    packing = other;
  };
  for (const bool loads : {false, true}) {
    for (const bool stores : {false, true}) {
      Packing other = packing;
      other.loads_in_order = loads;
      other.stores_in_order = stores;
      attempt(other);
    }
  }
  packing.balanced = true;
  attempt(packing);
  constexpr int percent = 93;  // at less gain more lanes rarely pay
  if (100 * least > percent * gen::cost(*narrow.network, gen::baseline())) return narrow;
  return {std::move(best), std::move(narrow.network), narrow.grouping};
}

// dst[k] = sum over n of src[n] * exp(-+2 pi i n k/N), on interleaved parts.
gen::Definition definition(Direction direction) {
  return [=](const gen::Sequence<Wide>& src, gen::Sequence<Wide>& dst) {
    const int length = src.size() / 2;
    const auto roots = gen::roots_of_unity(length, direction);
    dst = gen::Sequence<Wide>(src.size());
    for (int k = 0; k < length; ++k) {
      for (int n = 0; n < length; ++n) {
        const auto& [c, s] = roots[n * k % length];
        dst[2 * k] += c.value * src[2 * n] - s.value * src[2 * n + 1];
        dst[2 * k + 1] += s.value * src[2 * n] + c.value * src[2 * n + 1];
      }
    }
  };
}

}  // namespace

gen::Design design(int length, Precision precision, Direction direction, const std::string& tree,
                   const Target& target) {
  const bool forward = direction == Direction::forward, single = precision == Precision::binary32;
  const Breakdown& row = breakdown(precision, length);
  const std::string text = tree.empty() ? row.tree : tree;
  const Choices choices{length, precision};
  const Recipe recipe{length, choices.spelled_out(gen::parse_tree(text)), direction, choices, target};
  gen::check_length(recipe.tree, length);
  std::unique_ptr<Network> network, other_form;
  if (!single) {
    network = joined_network(recipe);
  } else if (const auto rounding = choices.scalar()) {
    network = packed_network(recipe, target, {.width = 1, .form = Form::planar}, *rounding);
  } else {
    Forms forms = narrow_forms(recipe);
    if (target.lanes(precision) > forms.network->width() && !choices.narrow())
      forms = wide_forms(recipe, std::move(forms));
    network = std::move(forms.network);
    other_form = std::move(forms.other);
  }
  return {.kernel = {.family = forward ? "DFTFwd_CToC" : "DFTInv_CToC",
                     .type = {precision, true},
                     .scaling = forward ? gen::Scaling::forward : gen::Scaling::inverse,
                     .length = length,
                     .read = 2 * length,
                     .written = 2 * length,
                     .tree = text,
                     .adds = row.adds,
                     .mults = row.mults,
                     .network = std::move(network)},
          .definition = definition(direction),
          .by_row = tree.empty(),
          .other_form = std::move(other_form)};
}

}  // namespace xfm::dft
