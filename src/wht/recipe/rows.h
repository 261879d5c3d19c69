// What the catalogue records of a hand-written kernel; all of it follows from the table of passes.
#pragma once

#include <string>

#include "gen/targets/target.h"

namespace xfm::wht {

struct Facts {
  int points;        ///< N
  std::string tree;  ///< "64 x 8 x 16": block, middle radix, last radix
  int adds;          ///< real operations
  int add_instructions, mult_instructions;
  int lanes;          ///< elements in a register of its arithmetic; 1 if it goes element by element
  bool two_variants;  ///< an aligned and an unaligned one, as functions of their own
  int bodies;         ///< in the function itself: two if it holds both variants
  bool straight;      ///< no loop and no call
  int buffer_bytes;
};

Facts facts(int order, gen::Precision precision, const gen::Target& target);

}  // namespace xfm::wht
