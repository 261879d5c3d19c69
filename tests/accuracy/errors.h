// How far the entries of a kernel's matrix are from the definition of its transform.
#pragma once

#include <vector>

#include "tests/support/reference.h"

namespace xfm::test {

struct Errors {
  double worst = 0, rms = 0;
  int worst_out = 0, worst_in = 0;  ///< real scalars of dst and src
};

/// Over the matrix that the unit vectors yield, one for each real scalar of src. An entry that is NaN is
/// infinitely wrong. The mean is over scalars that are read and computed, so not over zeros of a layout.
Errors errors_of_matrix(const catalogue::Kernel& kernel, const Definition& definition);

/// What no output is off by more than, as tests/bounds certifies it.
struct Certified {
  double norm = 0;  ///< for |x|_2 = 1
  double unit = 0;  ///< for inputs in -1 .. 1
};

struct Measured {
  catalogue::Kernel kernel;
  Errors errors;
  Certified certified{};
};

/// Every kernel of the catalogue against its definition.
std::vector<Measured> measure_all();

}  // namespace xfm::test
