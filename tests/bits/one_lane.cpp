// Packing changes no bit: the network of a packed kernel and that of its tree with one lane, which is plain
// scalar code, are one program. Zeros may have other signs, since lanes multiply by 1 and 0 where a scalar
// does not.
#include "gen/algorithms/lines.h"
#include "gen/passes/passes.h"
#include "src/dft/recipe/table.h"
#include "tests/bits/generated.h"
#include "tests/support/kernel_test.h"
#include "tools/promises.h"

namespace xfm::test {
namespace {

/// A scalar network stores no negative value: its sign is flipped.
void store(gen::Network& network, gen::Value v, int scalar) {
  const gen::Value scaled = network.factor(v.negative ? -v : v);
  network.store(v.negative ? network.flip_signs(scaled, {1}) : scaled, scalar);
}

std::unique_ptr<gen::Network> on_one_lane(const Kernel& kernel, gen::Direction direction) {
  auto network = std::make_unique<gen::Network>(1);
  gen::Lanes lanes(*network, gen::baseline());
  const dft::Choices chosen{kernel.length, gen::Precision::binary32};
  const gen::Tree tree = chosen.spelled_out(gen::parse_tree(kernel.tree));
  const gen::Line x = gen::tabulated(kernel.length, gen::source_element);
  constexpr gen::Grouping one{gen::Form::planar, 1};
  gen::LineTransform transform(lanes, one, one, chosen.open());
  const gen::Lines outputs = transform.run(tree, {x}, direction);
  int scalar = 0;
  for (const gen::Element& e : outputs.front()) {
    store(*network, e.re.value, scalar++);
    store(*network, e.im.value, scalar++);
  }
  return gen::uses_rule(tree, "RS") ? gen::fold_constants(*network) : std::move(network);
}

class OneLane : public KernelTest {};

std::vector<Kernel> packed_complex_kernels() {
  std::vector<Kernel> kernels;
  for (const Kernel& kernel : catalogue::kernels()) {
    const bool complex = std::string(kernel.family).ends_with("_CToC");
    const bool packed = catalogue::form(catalogue::targets().front(), kernel).lanes > 1;
    if (complex && packed && kernel.precision == Precision::binary32) kernels.push_back(kernel);
  }
  return kernels;
}

TEST_P(OneLane, IsTheSameProgram) {
  const bool forward = std::string(kernel().family) == "DFTFwd_CToC";
  const gen::Kernel& packed = generated(kernel());
  ASSERT_EQ(packed.network->width(), gen::baseline().lanes(gen::Precision::binary32));
  const auto scalar = on_one_lane(kernel(), forward ? gen::Direction::forward : gen::Direction::inverse);
  gen::Programs programs(gen::Equality::values);
  const gen::Program own = program_of(packed, programs);
  EXPECT_EQ(own.size(), kernel().written);
  EXPECT_NO_THROW(
      check_same(own, packed.name(), programs.read(*scalar, gen::Precision::binary32), "one lane"));
}

INSTANTIATE_TEST_SUITE_P(All, OneLane, testing::ValuesIn(packed_complex_kernels()), ByName());

}  // namespace
}  // namespace xfm::test
