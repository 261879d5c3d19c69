// Constants for plain evaluations, from MPFR: nothing of the generator is used.
#pragma once

namespace xfm::test {

/// The T nearest to cos(2 pi num/den), rounded once; exact where the cosine is 0, 1/2 or 1.
template <class T>
T cosine(long num, long den);

/// The same for sin(2 pi num/den).
template <class T>
T sine(long num, long den) {
  return cosine<T>(4 * num - den, 4 * den);  // sin x = cos(x - pi/2)
}

}  // namespace xfm::test
