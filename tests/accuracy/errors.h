// How far the entries of a kernel's matrix are from the definition.
#pragma once

#include <vector>

#include "tests/support/reference.h"

namespace xfm::test {

struct Errors {
  double worst = 0, rms = 0;
};

/// Of the matrix that all unit vectors give, each real scalar of src in turn. An entry that is NaN is
/// infinitely wrong. The mean is that of the scalars that are read and computed: zeros of a layout are
/// neither.
Errors errors_of_matrix(const catalogue::Kernel& kernel, const Definition& definition);

struct Measured {
  catalogue::Kernel kernel;
  Errors errors;
};

/// Every kernel of the catalogue against its definition.
std::vector<Measured> measure_all();

}  // namespace xfm::test
