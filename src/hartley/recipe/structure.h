// Structural checks of a Hartley network against its row: input stage, closed groups, output stage.
#pragma once

#include <string>

#include "gen/passes/binding.h"
#include "src/hartley/recipe/table.h"

namespace xfm::hartley {

/// Throws std::runtime_error with the kernel's name and the rule that does not hold.
void check_structure(const gen::real::Draft& draft, const Row& row, const std::string& name);

}  // namespace xfm::hartley
