// The DCT-IV by its definition, from MPFR and in extended precision: nothing of the library is used.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace xfm::test {

using Wide = __float128;

/// cos(2 pi k / n) and the cosine and sine of a number, correctly rounded to more bits than binary64 has.
Wide cosine_of_turn(long k, unsigned long n);
Wide cosine_of(double angle);
Wide sine_of(double angle);

/// Every output by direct summation in binary128.
std::vector<Wide> direct_dct4(const std::vector<Wide>& x);

/// Every output by a complex Fourier transform of half the length, in extended precision (64 bits).
std::vector<long double> fast_dct4(const std::vector<long double>& x);

/// One output by direct summation in extended precision, for lengths that are too long for the others.
template <class T>
long double one_output(const T* x, std::int64_t length, std::int64_t k);

/// The greatest error allowed for inputs in -1 .. 1, scaled from the one at length 4096: it grows with the
/// root of the length and with the number of levels.
double error_bound(double bound_4096, std::int64_t length);

}  // namespace xfm::test
