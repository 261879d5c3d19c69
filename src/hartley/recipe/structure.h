// Structural checks of a Hartley network against its row: input stage, closed groups, output stage.
#pragma once

#include "gen/network/draft.h"
#include "src/hartley/recipe/table.h"

namespace xfm::hartley {

/// Throws std::runtime_error with the length and the rule that does not hold.
void check_structure(const gen::Draft& draft, const Row& row);

}  // namespace xfm::hartley
