// What a packed network costs to run, to choose between forms of one kernel.
#pragma once

#include "gen/targets/target.h"

namespace xfm::gen {

/// In tenths of an addition: its instructions by weight, and twice the busiest unit of the processor.
int cost(const Network& network, const Target& target);

}  // namespace xfm::gen
