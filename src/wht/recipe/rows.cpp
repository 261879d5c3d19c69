#include "src/wht/recipe/rows.h"

#include <bit>

#include "src/simd/x86_64.h"  // rows describe the kernels of the baseline
#include "src/wht/passes.h"

namespace xfm::wht {
namespace {

int log2(int power) { return std::countr_zero(static_cast<unsigned>(power)); }

/// "64 x 8 x 16": block, middle radix, last radix.
std::string text(const Passes& p) {
  std::string result = std::to_string(p.block);
  for (const int radix : {p.middle, p.last}) {
    if (radix > 1) result += " x " + std::to_string(radix);
  }
  return result;
}

/// Additions and subtractions in the straight-line bodies of all passes.
int additions(const Passes& p, int lanes) {
  return p.block / lanes * log2(p.block) + p.middle * log2(p.middle) + p.last * log2(p.last);
}

}  // namespace

std::vector<int> orders() {
  std::vector<int> all;
  for (int order = lowest_order; order <= highest_order; ++order) all.push_back(order);
  return all;
}

gen::Row row(int order, gen::Precision precision) {
  const bool single = precision == gen::Precision::binary32;
  const Passes p = single ? passes<float>(order) : passes<double>(order);
  const gen::ElementType type{precision, false};
  const int lanes = single ? lanes_of<Register<float>> : lanes_of<Register<double>>;
  const int n = p.length(), width = lanes_in_use(p.block, lanes);
  const bool has_variant = width > 1 && (single || order > 3);  // one kernel holds both of its bodies itself
  return {.name = "xfmWHT_" + std::to_string(order) + "_" + type.suffix(),
          .family = "WHT",
          .type = type,
          .scaling = gen::Scaling::symmetric,
          .length = order,
          .points = n,
          .read = n,
          .written = n,
          .exchanges = -1,
          .packed = has_variant,
          .packed_math = width > 1,
          .straight = p.is_block(),
          .tree = text(p),
          .adds = n * order,
          .mults = 0,
          .add_instructions = additions(p, width),
          .mult_instructions = p.is_block() ? n / width : p.last,
          .takes_buffer = true,
          .buffer_bytes = static_cast<int>(single ? p.buffer_bytes<float>() : p.buffer_bytes<double>())};
}

}  // namespace xfm::wht
