#include "src/dft/recipe/dft.h"

#include <stdexcept>

#include "gen/algorithms/lines.h"
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

// One complex number per register, and real coefficients only: X[k] = P + i*Q and X[N-k] = P - i*Q share one
// exchange of parts, just before the addition and the subtraction. An inverse kernel has the opposite signs.
std::unique_ptr<Network> joined_network(const Recipe& recipe) {
  constexpr int parts = 2;
  auto network = std::make_unique<Network>(parts);
  gen::Lanes lanes(*network, recipe.target);
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
  return network;
}

// Lanes in one of the two forms, or scalar code in a single lane.
std::unique_ptr<Network> packed_network(const Recipe& recipe, int width, Form form, Rounding rounding) {
  auto network = std::make_unique<Network>(width, rounding);
  gen::Lanes lanes(*network, recipe.target);
  gen::LineTransform transform(lanes, form, recipe.choices.open());
  const gen::Line x = gen::tabulated(recipe.length, gen::source_element);
  lanes.store(transform.run(recipe.tree, {x}, recipe.direction).front());
  return width == 1 ? std::move(network) : gen::absorb_sign_flips(*network);
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
    network = packed_network(recipe, 1, Form::planar, *rounding);
  } else {
    const int width = gen::baseline().lanes(precision);
    network = packed_network(recipe, width, Form::interleaved, Rounding::each);
    other_form = packed_network(recipe, width, Form::planar, Rounding::each);
    if (gen::instructions(*other_form) < gen::instructions(*network)) std::swap(network, other_form);
  }
  for (auto* const form : {&network, &other_form}) {
    if (*form != nullptr && gen::uses_rule(recipe.tree, "RS")) *form = gen::fold_constants(**form);
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
                     .network = std::move(network),
                     .order = choices.order()},
          .definition = definition(direction),
          .by_row = tree.empty(),
          .other_form = std::move(other_form)};
}

}  // namespace xfm::dft
