// The equalities of docs/from-fftw.md with libraries that are not needed here: what their manuals say an
// array holds, written out, beside this library's result.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>

#include "tests/clients/precision.h"

namespace xfm::test {
namespace {

using Extended = long double;
using Spectrum = std::vector<std::complex<Extended>>;
using Expected = std::vector<Extended>;

constexpr auto pi = std::numbers::pi_v<Extended>;

/// exp(-2 pi i turns / n)
std::complex<Extended> root(std::size_t turns, std::size_t n) {
  return std::polar(Extended{1}, -2 * pi * static_cast<Extended>(turns % n) / static_cast<Extended>(n));
}

/// y(j) = sum over k of x(k) exp(-2 pi i j k / n), as numpy and scipy define it.
template <class Real>
Spectrum spectrum_of(const Reals<Real>& x) {
  Spectrum y(x.size());
  for (std::size_t j = 0; j < x.size(); ++j)
    for (std::size_t k = 0; k < x.size(); ++k) y[j] += Extended{x[k]} * root(j * k, x.size());
  return y;
}

/// numpy.fft.rfft and kiss_fftr: the complex numbers y(0) .. y(n/2).
Expected half_spectrum(const Spectrum& y) {
  Expected result;
  for (std::size_t j = 0; j <= y.size() / 2; ++j) {
    result.push_back(y[j].real());
    result.push_back(y[j].imag());
  }
  return result;
}

/// FFTPACK's rfftf and scipy.fftpack.rfft:
/// y(0), Re y(1), Im y(1), .., Re y(n/2) if n is even, .., Re y(n/2), Im y(n/2) if n is odd.
Expected fftpack_order(const Spectrum& y) {
  Expected result = {y[0].real()};
  for (std::size_t j = 1; 2 * j < y.size(); ++j) {
    result.push_back(y[j].real());
    result.push_back(y[j].imag());
  }
  if (y.size() % 2 == 0) result.push_back(y[y.size() / 2].real());
  return result;
}

/// PFFFT's ordered real transform and kissfft.hh's transform_real, for even n: complex numbers, of which the
/// first consists of y(0) and y(n/2).
Expected first_and_middle_together(const Spectrum& y) {
  Expected result = {y[0].real(), y[y.size() / 2].real()};
  for (std::size_t j = 1; j < y.size() / 2; ++j) {
    result.push_back(y[j].real());
    result.push_back(y[j].imag());
  }
  return result;
}

template <class Real>
Reals<Real> rounded_to(const Expected& values) {
  Reals<Real> result;
  for (const Extended value : values) result.push_back(static_cast<Real>(value));
  return result;
}

template <class Values>
Values times(Values values, Extended factor) {
  for (auto& value : values) value = static_cast<typename Values::value_type>(factor * value);
  return values;
}

template <class Real>
class SameAsDefinition : public testing::Test {
 protected:
  static Reals<Real> input(int count) { return random_reals<Real>("from definitions", count); }

  /// A real transform to this order and back, the latter as libraries have it that do not divide by n.
  template <class Transform, class Order>
  static void expect_order(Transform forward, Transform inverse, Order order, int n) {
    SCOPED_TRACE(n);
    const auto x = input(n);
    const Expected expected = order(spectrum_of(x));
    Reals<Real> got(expected.size());
    EXPECT_EQ(forward(x.data(), got.data(), n, XFM_SCALE_NONE), xfmStsOk);
    expect_close(got, expected, magnitude_of(x));

    const auto exact = rounded_to<Real>(expected);
    Reals<Real> back(x.size());
    EXPECT_EQ(inverse(exact.data(), back.data(), n, XFM_SCALE_NONE), xfmStsOk);
    expect_close(back, times(Expected(x.begin(), x.end()), n), 2 * magnitude_of(exact));
    EXPECT_EQ(inverse(exact.data(), back.data(), n, XFM_SCALE_INV_BY_N), xfmStsOk);
    expect_close(back, x, 2 * magnitude_of(exact) / n);
  }
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(SameAsDefinition, Precisions);

constexpr int shortest = XFM_DFT_MIN_LENGTH, longest = XFM_DFT_MAX_LENGTH;

TYPED_TEST(SameAsDefinition, CcsIsRfft) {
  using Names = Xfm<TypeParam>;
  for (int n = shortest; n <= longest; ++n)
    this->expect_order(Names::to_ccs, Names::from_ccs, half_spectrum, n);
}

TYPED_TEST(SameAsDefinition, PackIsFftpack) {
  using Names = Xfm<TypeParam>;
  for (int n = shortest; n <= longest; ++n)
    this->expect_order(Names::to_pack, Names::from_pack, fftpack_order, n);
}

TYPED_TEST(SameAsDefinition, PermOfEvenLengthHasFirstAndMiddleTogether) {
  using Names = Xfm<TypeParam>;
  for (int n = shortest; n <= longest; n += 2)
    this->expect_order(Names::to_perm, Names::from_perm, first_and_middle_together, n);
}

TYPED_TEST(SameAsDefinition, PermOfOddLengthIsPack) {
  using Names = Xfm<TypeParam>;
  for (int n = shortest + 1; n <= longest; n += 2)
    this->expect_order(Names::to_perm, Names::from_perm, fftpack_order, n);
}

/// numpy.fft.fft of real data with each norm: the factor of the sum.
TYPED_TEST(SameAsDefinition, FlagsAreNorms) {
  using Real = TypeParam;
  struct Norm {
    std::int32_t flag;
    double (*forward)(double n), (*inverse)(double n);
  };
  const auto one = [](double) { return 1.0; };
  const auto nth = [](double n) { return 1 / n; };
  const auto ortho = [](double n) { return 1 / std::sqrt(n); };
  for (const Norm norm : {Norm{XFM_SCALE_INV_BY_N, one, nth},       // norm="backward", the default
                          Norm{XFM_SCALE_BY_SQRT_N, ortho, ortho},  // norm="ortho"
                          Norm{XFM_SCALE_FWD_BY_N, nth, one}}) {    // norm="forward"
    for (int n = shortest; n <= longest; ++n) {
      SCOPED_TRACE(n);
      const auto x = this->input(n);
      const auto spectrum = spectrum_of(x);
      Expected forward, inverse;
      for (const auto& y : spectrum) {
        forward.insert(forward.end(), {norm.forward(n) * y.real(), norm.forward(n) * y.imag()});
        inverse.insert(inverse.end(), {norm.inverse(n) * y.real(), -norm.inverse(n) * y.imag()});
      }
      Reals<Real> src;
      for (const Real value : x) src.insert(src.end(), {value, 0});
      Reals<Real> got(src.size());
      EXPECT_EQ(Xfm<Real>::forward(complex(src), complex(got), n, norm.flag), xfmStsOk);
      expect_close(got, forward, magnitude_of(x) * norm.forward(n));
      EXPECT_EQ(Xfm<Real>::inverse(complex(src), complex(got), n, norm.flag), xfmStsOk);
      expect_close(got, inverse, magnitude_of(x) * norm.inverse(n));
    }
  }
}

/// scipy.fft.dct and dst of type 4: y(k) = 2 sum over j of x(j) f(pi (2 j + 1) (2 k + 1) / (4 n)), f being
/// cos or sin.
template <class Real, class Function>
Expected type_4(const Reals<Real>& x, Function f) {
  const std::size_t n = x.size();
  Expected y(n);
  for (std::size_t k = 0; k < n; ++k)
    for (std::size_t j = 0; j < n; ++j) {
      const std::size_t turn = (2 * j + 1) * (2 * k + 1) % (8 * n);
      y[k] += 2 * Extended{x[j]} * f(pi * static_cast<Extended>(turn) / static_cast<Extended>(4 * n));
    }
  return y;
}
Extended cos_of(Extended angle) { return std::cos(angle); }
Extended sin_of(Extended angle) { return std::sin(angle); }

TYPED_TEST(SameAsDefinition, DctOfType4) {
  for (int n = XFM_DCT4_MIN_LENGTH; n <= 512; n *= 2) {
    SCOPED_TRACE(n);
    const auto x = this->input(n);
    auto got = x;
    dct4(x, got);
    const Expected twice = type_4(x, cos_of);
    expect_close(times(got, 2), twice, 2 * magnitude_of(x));
    // norm="ortho" has the factor sqrt(1/(2n)), so it is this DCT-IV times sqrt(2/n).
    expect_close(times(got, std::sqrt(Extended{2} / n)), times(twice, std::sqrt(Extended{0.5L} / n)),
                 magnitude_of(x));
  }
}

// Of reversed input with alternating signs, or of input with alternating signs, reversed: the same.
TYPED_TEST(SameAsDefinition, DstOfType4) {
  using Real = TypeParam;
  for (int n = XFM_DCT4_MIN_LENGTH; n <= 512; n *= 2) {
    SCOPED_TRACE(n);
    const auto x = this->input(n);
    const Expected twice = type_4(x, sin_of);
    const auto alternate = [](Reals<Real> values) {
      for (std::size_t k = 1; k < values.size(); k += 2) values[k] = -values[k];
      return values;
    };
    auto got = x;
    dct4(Reals<Real>(x.rbegin(), x.rend()), got);
    expect_close(times(alternate(got), 2), twice, 2 * magnitude_of(x));
    dct4(alternate(x), got);
    expect_close(times(Reals<Real>(got.rbegin(), got.rend()), 2), twice, 2 * magnitude_of(x));
  }
}

/// scipy.linalg.hadamard(n) @ x: H(2n) = [[H(n), H(n)], [H(n), -H(n)]].
template <class Real>
Expected hadamard(const Reals<Real>& x) {
  if (x.size() == 1) return {x[0]};
  const auto middle = x.begin() + static_cast<std::ptrdiff_t>(x.size() / 2);
  const Expected low = hadamard(Reals<Real>(x.begin(), middle)),
                 high = hadamard(Reals<Real>(middle, x.end()));
  Expected y;
  for (std::size_t k = 0; k < low.size(); ++k) y.push_back(low[k] + high[k]);
  for (std::size_t k = 0; k < low.size(); ++k) y.push_back(low[k] - high[k]);
  return y;
}

TYPED_TEST(SameAsDefinition, WalshHadamardIsHadamardsMatrix) {
  using Real = TypeParam;
  for (int order = XFM_WHT_MIN_ORDER; order <= XFM_WHT_MAX_ORDER; ++order) {
    SCOPED_TRACE(order);
    const auto x = this->input(1 << order);
    auto got = x;
    EXPECT_EQ(Xfm<Real>::wht(x.data(), got.data(), order, XFM_SCALE_NONE, nullptr), xfmStsOk);
    expect_close(got, hadamard(x), magnitude_of(x));
  }
}

}  // namespace
}  // namespace xfm::test
