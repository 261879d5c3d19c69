// Data that reveal a difference of one bit: where rounding, signs of zero, or the limits of a format matter.
#pragma once

#include <span>

#include "tests/support/random.h"

namespace xfm::test {

struct Data {
  const char* name;
  double (*draw)(Random& random, Precision precision);
  bool overflows = false;  ///< some sums are infinite, and some sums of those NaN
};

std::span<const Data> all_data();

Array draw(const Data& data, Random& random, Precision precision, int count);

}  // namespace xfm::test
