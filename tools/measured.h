// What was measured of the kernels of a target: how many lanes and which order of operations
// suit them best, and where batches go one by one.
#pragma once

#include <string_view>

#include "gen/kernel.h"
#include "gen/targets/target.h"

namespace xfm {

/// The lanes that the table has for a kernel; those that its recipe gave it where there is no row.
int chosen_lanes(const gen::Kernel& kernel, const gen::Target& target);

/// So many lanes, but at most as many as the target's registers hold of a kernel's values: those of real
/// kernels are binary64 between the rounding of one statement and the next. Complex kernels in binary32 keep
/// the lanes of the table, which depend on their recipes.
int lanes_up_to(int most, const gen::Kernel& kernel, const gen::Target& target);

/// Up to how many contiguous transforms of a batch are faster one by one than as a group of lanes, at length
/// number `row` of a family; as many as there are lanes, or more: all of them.
int chosen_singles(const gen::Target& target, std::string_view family, const gen::ElementType& type, int row);

/// The order that the table has for a kernel; the baseline's where there is no row.
gen::Order chosen_order(const gen::Kernel& kernel, const gen::Target& target);

/// An order by its letter in the table; throws if there is none.
gen::Order order_of(char letter);

}  // namespace xfm
