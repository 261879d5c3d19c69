// Random drafts: six inputs, forty sums and linear combinations, four outputs.
#pragma once

#include <memory>

#include "gen/network/complex.h"

namespace xfm::test {

inline std::unique_ptr<gen::Network> random_draft(unsigned seed) {
  auto draft = std::make_unique<gen::Network>(1, gen::Rounding::combination);
  gen::Sequence<gen::Value> values;
  for (int n = 0; n < 6; ++n) values.push_back(draft->load(n));
  const auto next = [&] { return static_cast<int>((seed = seed * 1664525U + 1013904223U) >> 16U); };
  for (int n = 0; n < 40; ++n) {
    const gen::Value a = values[next() % values.size()], b = values[next() % values.size()];
    if (a.node == b.node) continue;
    const int kind = next() % 3;
    values.push_back(kind == 0   ? a + b
                     : kind == 1 ? a - b
                                 : gen::combination({{{"1", 1}, a}, {-gen::constant("half", 0.5), b}}));
  }
  for (int k = 0; k < 4; ++k) draft->output(-values[values.size() - 1 - k]);
  return draft;
}

}  // namespace xfm::test
