// What the rules of the breakdown tables mean, apart from how they are carried out.
#pragma once

#include "gen/number.h"
#include "gen/tree.h"

namespace xfm::dft {

/// The transform length of a tree.
int length_of(const gen::Tree& tree);

/// A rule with more than two arguments is nested to the right: PFA(a,b,c) is PFA(a,PFA(b,c)).
gen::Tree first_of(const gen::Tree& tree);
gen::Tree rest_of(const gen::Tree& tree);

/// The index maps of CT(a,b) and PFA(a,b).
gen::TwoStages stages_of(const gen::Tree& tree);

}  // namespace xfm::dft
