#include "tests/dct4/reference.h"

#include <mpfr.h>

#include <cmath>
#include <complex>
#include <numbers>

namespace xfm::test {
namespace {

using Complex = std::complex<long double>;
constexpr long double pi = std::numbers::pi_v<long double>;

/// A number of 200 bits as a sum of three binary64 values, which hold more bits than binary128.
template <class Function>
Wide evaluate(const Function& function) {
  mpfr_t value;
  mpfr_init2(value, 200);
  function(value);
  Wide sum = 0;
  for (int i = 0; i < 3; ++i) {
    const double part = mpfr_get_d(value, MPFR_RNDN);
    sum += Wide{part};
    mpfr_sub_d(value, value, part, MPFR_RNDN);
  }
  mpfr_clear(value);
  return sum;
}

/// exp(-2 pi i k / n), the angle reduced before it is rounded.
Complex unit(std::int64_t k, std::int64_t n) {
  const long double angle = 2 * pi * static_cast<long double>(k % n) / static_cast<long double>(n);
  return {std::cos(angle), -std::sin(angle)};
}

/// X[k] = sum over n of x[offset + step n] exp(-2 pi i n k / count), by halves.
std::vector<Complex> fourier(const std::vector<Complex>& x, std::size_t offset, std::size_t step) {
  const std::size_t count = x.size() / step;
  if (count == 1) return {x[offset]};
  const auto even = fourier(x, offset, 2 * step), odd = fourier(x, offset + step, 2 * step);
  std::vector<Complex> result(count);
  for (std::size_t k = 0; k < count / 2; ++k) {
    const Complex rotated = odd[k] * unit(static_cast<std::int64_t>(k), static_cast<std::int64_t>(count));
    result[k] = even[k] + rotated;
    result[k + count / 2] = even[k] - rotated;
  }
  return result;
}

}  // namespace

Wide cosine_of_turn(long k, unsigned long n) {
  return evaluate([&](mpfr_ptr value) {
    mpfr_set_si(value, k, MPFR_RNDN);
    mpfr_cosu(value, value, n, MPFR_RNDN);
  });
}
Wide cosine_of(double angle) {
  return evaluate([&](mpfr_ptr value) {
    mpfr_set_d(value, angle, MPFR_RNDN);
    mpfr_cos(value, value, MPFR_RNDN);
  });
}
Wide sine_of(double angle) {
  return evaluate([&](mpfr_ptr value) {
    mpfr_set_d(value, angle, MPFR_RNDN);
    mpfr_sin(value, value, MPFR_RNDN);
  });
}

// pi/N (j + 1/2) (k + 1/2) = 2 pi (2 j + 1) (2 k + 1) / (8 N)
std::vector<Wide> direct_dct4(const std::vector<Wide>& x) {
  const std::size_t n = x.size();
  std::vector<Wide> cosines(8 * n);
  for (std::size_t a = 0; a <= 2 * n; ++a) {
    const Wide value = cosine_of_turn(static_cast<long>(a), 8 * n);
    cosines[a] = value;
    cosines[4 * n - a] = -value;
    cosines[4 * n + a] = -value;
    cosines[(8 * n - a) % (8 * n)] = value;
  }
  std::vector<Wide> y(n);
  for (std::size_t k = 0; k < n; ++k)
    for (std::size_t j = 0; j < n; ++j) y[k] += x[j] * cosines[(2 * j + 1) * (2 * k + 1) % (8 * n)];
  return y;
}

// With z[n] = (x[2n] + i x[N-1-2n]) w[n], Z its Fourier transform and w[n] = exp(-2 pi i (8 n + 1) / (16 N)),
// the product Z[k] w[k] is y[2k] - i y[N-1-2k].
std::vector<long double> fast_dct4(const std::vector<long double>& x) {
  const std::size_t n = x.size();
  const auto twist = [&](std::size_t i) {
    return unit(8 * static_cast<std::int64_t>(i) + 1, 16 * static_cast<std::int64_t>(n));
  };
  std::vector<Complex> z(n / 2);
  for (std::size_t i = 0; i < n / 2; ++i) z[i] = Complex(x[2 * i], x[n - 1 - 2 * i]) * twist(i);
  z = fourier(z, 0, 1);
  std::vector<long double> y(n);
  for (std::size_t k = 0; k < n / 2; ++k) {
    const Complex out = z[k] * twist(k);
    y[2 * k] = out.real();
    y[n - 1 - 2 * k] = -out.imag();
  }
  return y;
}

// Blocks of 4096 terms: an angle is the sum of one that depends on the block and one that depends on the
// place in it.
template <class T>
long double one_output(const T* x, std::int64_t length, std::int64_t k) {
  const std::int64_t block = std::min<std::int64_t>(length, 4096), odd = 2 * k + 1;
  std::vector<Complex> inner;
  for (std::int64_t j = 0; j < block; ++j) inner.push_back(unit((2 * j + 1) * odd, 8 * length));
  long double sum = 0;
  for (std::int64_t start = 0; start < length; start += block) {
    const Complex outer = unit(2 * start * odd, 8 * length);
    long double real = 0, imaginary = 0;
    for (std::int64_t j = 0; j < block; ++j) {
      const auto value = static_cast<long double>(x[start + j]);
      real += value * inner[static_cast<std::size_t>(j)].real();
      imaginary += value * inner[static_cast<std::size_t>(j)].imag();
    }
    sum += real * outer.real() - imaginary * outer.imag();
  }
  return sum;
}
template long double one_output(const float*, std::int64_t, std::int64_t);
template long double one_output(const double*, std::int64_t, std::int64_t);

double error_bound(double bound_4096, std::int64_t length) {
  const auto growth = [](double n) { return std::sqrt(n) * (std::log2(n) + 2); };
  return bound_4096 * growth(static_cast<double>(length)) / growth(4096);
}

}  // namespace xfm::test
