// The real transforms whose outputs are fixed to the bit, operation by operation. The factor s comes last.
#pragma once

#include <functional>
#include <map>

#include "tests/real/half_spectrum.h"
#include "tests/support/layout.h"

namespace xfm::test {

template <class T>
using Forward = std::function<HalfSpectrum<OneOf<T>>(const Samples<T>& x, T s)>;

template <class T>
using Inverse = std::function<Samples<OneOf<T>>(const HalfSpectrum<T>& spectrum, T s, Layout layout)>;

/// By length.
template <class T>
std::map<int, Forward<T>> forward_equations();
template <class T>
std::map<int, Inverse<T>> inverse_equations();

/// N = 13, the first length that needs a convolution.
template <class T>
HalfSpectrum<OneOf<T>> forward13(const Samples<T>& x, T s);

}  // namespace xfm::test
