#include "src/dft/recipe/dft.h"

#include <stdexcept>

#include "gen/network/check.h"
#include "gen/packing/lanes.h"
#include "gen/passes/constant_folding.h"
#include "gen/passes/sign_flips.h"
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
  const Points out = LaneReal({length, Precision::binary64}).transform(tree, x);
  store(0, out[0].p);
  for (int k = 1; 2 * k < length; ++k) {
    const auto [p, q] = out[static_cast<std::size_t>(k)];
    const Value turned =
        network->flip_signs(network->exchange(direction == Direction::forward ? q : -q), {1, 0, 0, 0});
    store(k, p + turned);
    store(length - k, p - turned);
  }
  if (length % 2 == 0) store(length / 2, out[static_cast<std::size_t>(length / 2)].p);
  return network;
}

std::unique_ptr<Network> packed_network(int length, const Tree& tree, Direction direction, int width,
                                        Form form) {
  const bool mixed = length == 3 || length == 5;
  auto network = std::make_unique<Network>(width, mixed ? gen::Rounding::combination : gen::Rounding::each);
  gen::Lanes lanes(*network);
  Line x;
  for (int n = 0; n < length; ++n) x.push_back(gen::source_element(n));
  Packed packed(lanes, form, {length, Precision::binary32});
  lanes.store(packed.transform(tree, {x}, direction).front());
  return network;
}

// Scalar code, or four lanes in the form that takes fewer instructions.
std::unique_ptr<Network> single_network(int length, const Tree& tree, Direction direction) {
  if (length <= longest_scalar) return packed_network(length, tree, direction, 1, Form::planar);
  auto split = gen::absorb_flips(*packed_network(length, tree, direction, gen::max_lanes, Form::planar));
  auto whole = gen::absorb_flips(*packed_network(length, tree, direction, gen::max_lanes, Form::interleaved));
  return gen::instructions(*split) < gen::instructions(*whole) ? std::move(split) : std::move(whole);
}

// dst[k] = sum over n of src[n] * exp(-+2 pi i n k/N), on interleaved parts.
void definition(Direction direction, const std::vector<gen::Wide>& src, std::vector<gen::Wide>& dst) {
  const std::size_t length = src.size() / 2;
  std::vector<gen::ComplexConstant> roots;
  for (std::size_t j = 0; j < length; ++j) {
    roots.push_back(root(gen::turn(static_cast<long long>(j), static_cast<long long>(length)), direction));
  }
  dst.assign(dst.size(), 0);
  for (std::size_t k = 0; k < length; ++k) {
    for (std::size_t n = 0; n < length; ++n) {
      const auto& [c, s] = roots[n * k % length];
      dst[2 * k] += c.value * src[2 * n] - s.value * src[2 * n + 1];
      dst[2 * k + 1] += s.value * src[2 * n] + c.value * src[2 * n + 1];
    }
  }
}

// A tree of the length that it is asked for; a chirp transform serves every length that its inner one can
// hold.
void check_length(const Tree& tree, int length) {
  const bool fits =
      tree.rule == "B" ? length_of(tree.args.front()) >= 2 * length - 1 : length_of(tree) == length;
  if (!fits)
    throw std::invalid_argument("tree " + to_string(tree) + " is not one of length " +
                                std::to_string(length));
}

void check(const Kernel& kernel, Direction direction) {
  const gen::Counts counts = gen::count(*kernel.network);
  if (kernel.network->width() == 2 && counts.exchanges != (kernel.length - 1) / 2) {
    throw std::runtime_error(kernel.name + ": " + std::to_string(counts.exchanges) + " joins");
  }
  gen::check_memory(*kernel.network, kernel.read, kernel.written, kernel.name);
  gen::check_definition(
      *kernel.network, [&](const auto& src, auto& dst) { definition(direction, src, dst); }, kernel.read,
      kernel.written, kernel.name);
}

}  // namespace

std::vector<int> lengths() {
  std::vector<int> all;
  for (const Row& row : table()) all.push_back(row.length);
  return all;
}

Kernel make_kernel(int length, Precision precision, Direction direction, const std::string& tree) {
  const bool forward = direction == Direction::forward, single = precision == Precision::binary32;
  const Breakdown& breakdown = single ? row(length).binary32 : row(length).binary64;
  const std::string text = tree.empty() ? breakdown.tree : tree;
  Kernel kernel{.name = "",
                .family = forward ? "DFTFwd_CToC" : "DFTInv_CToC",
                .type = {precision, true},
                .scaling = forward ? gen::Scaling::forward : gen::Scaling::inverse,
                .length = length,
                .read = 2 * length,
                .written = 2 * length,
                .tree = text,
                .adds = breakdown.adds,
                .mults = breakdown.mults,
                .network = nullptr,
                .order = Choices(length, precision).order()};
  kernel.name = "xfm" + kernel.family + "_" + std::to_string(length) + "_" + kernel.type.suffix();
  const Tree parsed = gen::parse_tree(text);
  check_length(parsed, length);
  kernel.network =
      single ? single_network(length, parsed, direction) : lane_real_network(length, parsed, direction);
  if (uses_rader_split(parsed)) kernel.network = gen::fold(*kernel.network);
  check(kernel, direction);
  if (tree.empty()) gen::check_counts(gen::count(*kernel.network), kernel.adds, kernel.mults, kernel.name);
  return kernel;
}

}  // namespace xfm::dft
