// Which kernels have outputs that are fixed to the bit, and by what equations.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "tests/bits/number.h"

namespace xfm::test {

template <class T>
using Transform = std::function<Points<T>(const Points<T>&)>;

/// From length to plain evaluation of the forward transform; a length may have several.
std::multimap<int, Transform<float>> equations_32fc();
std::multimap<int, Transform<double>> equations_64fc();

}  // namespace xfm::test
