// What the rules of the breakdown tables mean, apart from how they are carried out.
#pragma once

#include "gen/algorithms/tree.h"
#include "gen/math/constant.h"
#include "gen/math/number.h"

namespace xfm::dft {

/// The sign of i in the exponent: forward transforms have -.
enum class Direction { forward, inverse };

/// The root of unity of a direction, exp(-+2 pi i t), and any other constant of the forward transform turned
/// so.
gen::ComplexConstant root(gen::Turn t, Direction direction);
gen::ComplexConstant turned(const gen::ComplexConstant& w, Direction direction);

inline Direction opposite(Direction d) {
  return d == Direction::forward ? Direction::inverse : Direction::forward;
}

/// The transform length of a tree.
int length_of(const gen::Tree& tree);

/// A rule with more than two arguments is nested to the right: PFA(a,b,c) is PFA(a,PFA(b,c)).
gen::Tree first_of(const gen::Tree& tree);
gen::Tree rest_of(const gen::Tree& tree);

/// Whether some prime of the tree is done by Rader's algorithm in split form: named so, or as a number from
/// 13 up.
bool uses_rader_split(const gen::Tree& tree);

/// The index maps of CT(a,b) and PFA(a,b).
gen::TwoStages stages_of(const gen::Tree& tree);

}  // namespace xfm::dft
