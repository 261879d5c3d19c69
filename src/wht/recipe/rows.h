// What the catalogue has to know of a kernel that is written by hand: all of it follows from the table of
// passes.
#pragma once

#include <string>

#include "gen/targets/target.h"

namespace xfm::wht {

struct Facts {
  int points;        ///< N
  std::string tree;  ///< "64 x 8 x 16": block, middle radix, last radix
  int adds;          ///< real operations
  int add_instructions, mult_instructions;
  bool vector_code;   ///< packed arithmetic
  bool two_variants;  ///< an aligned and an unaligned one, as functions of their own
  bool straight;      ///< no loop and no call
  int buffer_bytes;
};

Facts facts(int order, gen::Precision precision, const gen::Target& target);

}  // namespace xfm::wht
