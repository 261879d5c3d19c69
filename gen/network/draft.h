// A scalar network before it is bound to memory: its loads are numbered inputs, its outputs values with
// signs.
#pragma once

#include <memory>

#include "gen/network/liveness.h"

namespace xfm::gen {

struct Draft {
  std::unique_ptr<Network> network = std::make_unique<Network>(1, Rounding::combination);
  Sequence<Value> outputs{};
};

inline Sequence<int> uses(const Draft& draft) { return uses(*draft.network, draft.outputs); }

}  // namespace xfm::gen
