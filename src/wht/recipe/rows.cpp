#include "src/wht/recipe/rows.h"

#include <bit>

#include "src/wht/passes.h"

namespace xfm::wht {
namespace {

int log2(int power) { return std::countr_zero(static_cast<unsigned>(power)); }

std::string text(const Passes& p) {
  std::string result = std::to_string(p.block);
  for (const int radix : {p.middle, p.last}) {
    if (radix > 1) result += " x " + std::to_string(radix);
  }
  return result;
}

// Additions and subtractions in the straight-line bodies of all passes.
int additions(const Passes& p, int lanes) {
  return p.block / lanes * log2(p.block) + p.middle * log2(p.middle) + p.last * log2(p.last);
}

template <class T>
Facts facts(int order, int lanes, bool unaligned_is_free) {
  const Passes& p = passes<T>(order);
  const int n = p.length(), width = lanes_in_use(p.block, lanes, unaligned_is_free);
  const bool one_body = width == 1 || unaligned_is_free;
  return {.points = n,
          .tree = text(p),
          .adds = n * order,
          .add_instructions = additions(p, width),
          .mult_instructions = p.is_block() ? n / width : p.last,
          .lanes = width,
          .two_variants = !one_body && !p.one_function,
          .bodies = !one_body && p.one_function ? 2 : 1,
          .straight = p.is_block(),
          .buffer_bytes = static_cast<int>(p.template buffer_bytes<T>())};
}

}  // namespace

Facts facts(int order, gen::Precision precision, const gen::Target& target) {
  const auto facts_of = precision == gen::Precision::binary32 ? facts<float> : facts<double>;
  return facts_of(order, target.lanes(precision), target.unaligned_is_free);
}

}  // namespace xfm::wht
