// Packing changes no bit: the network of a packed kernel gives the same outputs as its tree with one lane, as
// plain scalar code. Zeros of either sign are equal, since lanes multiply by 1 and 0 where a scalar does not.
#include "gen/network/interpreter.h"
#include "gen/passes/constant_folding.h"
#include "src/dft/recipe/packed.h"
#include "tests/bits/data.h"
#include "tests/bits/generated.h"
#include "tests/bits/same_values.h"
#include "tests/support/kernel_test.h"

namespace xfm::test {
namespace {

/// The outputs of a tree with one lane. Signs that lanes would flip are kept beside them, since a scalar
/// network stores no negated value.
struct Scalar {
  std::unique_ptr<gen::Network> network = std::make_unique<gen::Network>(1);
  std::vector<bool> negative{};

  void store(gen::Value v) {
    const auto at = static_cast<int>(negative.size());
    network->store(network->factor(v.negative ? -v : v), {at, -1, -1, -1});
    negative.push_back(v.negative);
  }
};

Scalar on_one_lane(const gen::Tree& tree, int length, dft::Direction direction) {
  Scalar scalar;
  gen::Lanes lanes(*scalar.network);
  dft::Line x;
  for (int n = 0; n < length; ++n) x.push_back(gen::source_element(n));
  dft::Packed packed(lanes, gen::Form::planar, {length, gen::Precision::binary32});
  const dft::Batch outputs = packed.transform(tree, {x}, direction);
  for (const gen::Element& e : outputs.front()) {
    scalar.store(e.re.value);
    scalar.store(e.im.value);
  }
  if (dft::uses_rader_split(tree)) scalar.network = gen::fold(*scalar.network);
  return scalar;
}

Array evaluate(const gen::Network& network, const Array& src) {
  Array dst(src.precision(), src.count());
  gen::evaluate(network, static_cast<const float*>(src.data()), static_cast<float*>(dst.data()), 1.0F);
  return dst;
}

Array evaluate(const Scalar& scalar, const Array& src) {
  Array dst = evaluate(*scalar.network, src);
  for (int i = 0; i < dst.count(); ++i) {
    if (scalar.negative[static_cast<std::size_t>(i)]) dst.set(i, -dst[i]);
  }
  return dst;
}

class OneLane : public KernelTest {};

std::vector<Kernel> packed_complex_kernels() {
  std::vector<Kernel> kernels;
  for (const Kernel& kernel : catalogue::kernels()) {
    const bool complex = std::string(kernel.family).ends_with("_CToC");
    if (complex && kernel.packed && kernel.precision == Precision::binary32) kernels.push_back(kernel);
  }
  return kernels;
}

TEST_P(OneLane, GivesTheSameBits) {
  constexpr int rounds = 4;
  const bool forward = std::string(kernel().family) == "DFTFwd_CToC";
  const gen::Kernel& made = generated(kernel());
  const Scalar scalar = on_one_lane(gen::parse_tree(kernel().tree), kernel().length,
                                    forward ? dft::Direction::forward : dft::Direction::inverse);
  ASSERT_EQ(made.network->width(), gen::max_lanes);
  for (const Data& data : all_data()) {
    if (data.overflows) continue;
    for (int round = 0; round < rounds; ++round) {
      const Array src = draw(data, random, kernel().precision, kernel().read);
      ASSERT_TRUE(same_values(evaluate(*made.network, src), evaluate(scalar, src), Zeros::alike))
          << data.name << " data, round " << round;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, OneLane, testing::ValuesIn(packed_complex_kernels()), ByName());

}  // namespace
}  // namespace xfm::test
