// Values and statements of the plain evaluations. A value has the precision of the element; a statement is an
// expression in binary64, and what it makes is rounded to the element's precision once, at its end. So one
// text says what the kernels of either precision do, since in binary64 the two are the same.
#pragma once

#include <vector>

namespace xfm::test {

/// The end of a statement.
template <class T>
T narrow(double statement) {
  return static_cast<T>(statement);
}

/// Bins 0 to N/2. The imaginary parts of bin 0 and, for even N, of bin N/2 are not looked at.
template <class T>
struct HalfSpectrum {
  explicit HalfSpectrum(std::size_t length) : re(length / 2 + 1), im(length / 2 + 1) {}
  std::vector<T> re, im;
};

template <class T>
using Samples = std::vector<T>;

/// The sign of an output is turned behind its factor.
template <class T>
T turned(T scaled) {
  return T(0) - scaled;
}

}  // namespace xfm::test
