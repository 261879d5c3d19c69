#include "src/dft/recipe/dft.h"

#include "gen/check.h"
#include "gen/lanes.h"
#include "src/dft/recipe/lane_real.h"
#include "src/dft/recipe/packed.h"
#include "src/dft/recipe/table.h"

namespace xfm::dft {
namespace {

using gen::Form;
using gen::Kernel;
using gen::Network;
using gen::Precision;
using gen::Tree;
using gen::Value;

// Up to this length a single-precision kernel is scalar code.
constexpr int longest_scalar = 5;

// Two binary64 lanes a complex number: pairs (P, Q) join as X[k] = P + i*Q, X[N-k] = P - i*Q with one lane
// exchange, directly in front of the addition and the subtraction. An inverse kernel joins the other way
// round.
std::unique_ptr<Network> lane_real_network(int length, const Tree& tree, Direction direction) {
  auto network = std::make_unique<Network>(2);
  const auto pair = [](int n) { return std::array<int, gen::max_lanes>{2 * n, 2 * n + 1, -1, -1}; };
  const auto store = [&](int k, Value v) { network->store(network->factor(v), pair(k)); };
  Points x;
  for (int n = 0; n < length; ++n) x.push_back({network->load(pair(n)), {}});
  const Points out = LaneReal(length).transform(tree, x);
  store(0, out[0].p);
  for (int k = 1; 2 * k < length; ++k) {
    const auto [p, q] = out[static_cast<std::size_t>(k)];
    const Value turned =
        network->flip(network->exchange(direction == Direction::forward ? q : -q), {1, 0, 0, 0});
    store(k, p + turned);
    store(length - k, p - turned);
  }
  if (length % 2 == 0) store(length / 2, out[static_cast<std::size_t>(length / 2)].p);
  return network;
}

std::unique_ptr<Network> packed_network(int length, const Tree& tree, Direction direction, int width,
                                        Form form) {
  const bool scalar_kernel = length <= longest_scalar;
  const bool mixed = length == 3 || length == 5;
  auto network = std::make_unique<Network>(width, mixed ? gen::Rounding::statement : gen::Rounding::each);
  gen::Lanes lanes(*network);
  Line x;
  for (int n = 0; n < length; ++n) x.push_back(gen::source_element(n));
  Packed packed(lanes, form, scalar_kernel ? Five::outer_first : Five::inner_first);
  lanes.store(packed.transform(tree, {x}, direction).front());
  return network;
}

// Scalar code, or four lanes in the form that takes fewer instructions.
std::unique_ptr<Network> single_network(int length, const Tree& tree, Direction direction) {
  if (length <= longest_scalar) return packed_network(length, tree, direction, 1, Form::split);
  auto split = packed_network(length, tree, direction, gen::max_lanes, Form::split);
  auto whole = packed_network(length, tree, direction, gen::max_lanes, Form::whole);
  return gen::instructions(*split) < gen::instructions(*whole) ? std::move(split) : std::move(whole);
}

// The definition, as a real matrix on interleaved parts: exp(-+2 pi i n k/N).
gen::Wide entry(int output, int input, int length, int sign) {
  const auto angle = gen::turn(static_cast<long long>(sign) * (output / 2) * (input / 2), length);
  const gen::Wide c = gen::cosine(angle).value, s = gen::sine(angle).value;
  if (output % 2 == input % 2) return c;
  return output % 2 == 0 ? -s : s;
}

void check(const Kernel& kernel, Direction direction) {
  const gen::Counts counts = gen::count(*kernel.network);
  gen::check_counts(counts, kernel.adds, kernel.mults, kernel.name);
  gen::check_memory(*kernel.network, kernel.read, kernel.written, kernel.name);
  const gen::Definition forward = [](int k, int n, int length) { return entry(k, n, length, -1); };
  const gen::Definition inverse = [](int k, int n, int length) { return entry(k, n, length, +1); };
  gen::check_matrix(*kernel.network, direction == Direction::forward ? forward : inverse, kernel.length,
                    kernel.read, kernel.written, kernel.name);
}

}  // namespace

std::vector<int> lengths() {
  std::vector<int> all;
  for (const Row& row : table()) all.push_back(row.length);
  return all;
}

Kernel make_kernel(int length, Precision precision, Direction direction, const std::string& tree) {
  const bool forward = direction == Direction::forward, single = precision == Precision::single;
  const Breakdown& breakdown = single ? row(length).single : row(length).twofold;
  const std::string text = tree.empty() ? breakdown.tree : tree;
  Kernel kernel{.name = "",
                .type = {precision, true},
                .scaling = forward ? gen::Scaling::forward : gen::Scaling::inverse,
                .length = length,
                .read = 2 * length,
                .written = 2 * length,
                .tree = text,
                .adds = breakdown.adds,
                .mults = breakdown.mults,
                .network = nullptr};
  kernel.name = std::string("xfmDFT") + (forward ? "Fwd" : "Inv") + "_CToC_" + std::to_string(length) + "_" +
                kernel.type.suffix();
  const Tree parsed = gen::parse_tree(text);
  kernel.network =
      single ? single_network(length, parsed, direction) : lane_real_network(length, parsed, direction);
  check(kernel, direction);
  return kernel;
}

}  // namespace xfm::dft
