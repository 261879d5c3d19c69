// The equalities of docs/from-fftw.md that FFTW itself can confirm. It is given the same arrays, and a half
// spectrum of complex numbers is compared as the array of reals that it is.
#include <fftw3.h>
#include <gtest/gtest.h>

#include "tests/clients/precision.h"

namespace xfm::test {
namespace {

template <class Real>
struct Fftw;

#define FFTW_NAMES(real, prefix)                                 \
  template <>                                                    \
  struct Fftw<real> {                                            \
    using Plan = prefix##_plan;                                  \
    using Complex = prefix##_complex;                            \
    static constexpr auto dft = prefix##_plan_dft_1d;            \
    static constexpr auto dft_2d = prefix##_plan_dft_2d;         \
    static constexpr auto r2c = prefix##_plan_dft_r2c_1d;        \
    static constexpr auto c2r = prefix##_plan_dft_c2r_1d;        \
    static constexpr auto r2r = prefix##_plan_r2r_1d;            \
    static constexpr auto r2r_of_rank = prefix##_plan_r2r;       \
    static constexpr auto many_dft = prefix##_plan_many_dft;     \
    static constexpr auto many_r2c = prefix##_plan_many_dft_r2c; \
    static constexpr auto execute = prefix##_execute;            \
    static constexpr auto destroy = prefix##_destroy_plan;       \
  }
FFTW_NAMES(float, fftwf);
FFTW_NAMES(double, fftw);
#undef FFTW_NAMES

template <class Real>
void run(typename Fftw<Real>::Plan plan) {
  ASSERT_NE(plan, nullptr);
  Fftw<Real>::execute(plan);
  Fftw<Real>::destroy(plan);
}

template <class Real>
auto* fftw_complex_of(Reals<Real>& values) {
  return reinterpret_cast<typename Fftw<Real>::Complex*>(values.data());
}

template <class Real>
class SameAsFftw : public testing::Test {
 protected:
  static Reals<Real> input(int count) { return random_reals<Real>("from FFTW", count); }
  static Reals<Real> zeros(int count) { return Reals<Real>(static_cast<std::size_t>(count)); }

  /// FFTW's real transform of this kind.
  static Reals<Real> r2r(Reals<Real> src, fftw_r2r_kind kind) {
    Reals<Real> dst(src.size());
    run<Real>(Fftw<Real>::r2r(static_cast<int>(src.size()), src.data(), dst.data(), kind, FFTW_ESTIMATE));
    return dst;
  }
};
using Precisions = testing::Types<float, double>;
TYPED_TEST_SUITE(SameAsFftw, Precisions);

constexpr int shortest = XFM_DFT_MIN_LENGTH, longest = XFM_DFT_MAX_LENGTH;

TYPED_TEST(SameAsFftw, ComplexTransforms) {
  using Real = TypeParam;
  for (int n = shortest; n <= longest; ++n) {
    for (const int sign : {FFTW_FORWARD, FFTW_BACKWARD}) {
      SCOPED_TRACE(n * sign);
      const auto transform = sign == FFTW_FORWARD ? Xfm<Real>::forward : Xfm<Real>::inverse;
      const auto x = this->input(2 * n);
      auto src = x, ours = this->zeros(2 * n), theirs = this->zeros(2 * n);
      run<Real>(Fftw<Real>::dft(n, fftw_complex_of(src), fftw_complex_of(theirs), sign, FFTW_ESTIMATE));
      EXPECT_EQ(transform(complex(src), complex(ours), n, XFM_SCALE_NONE), xfmStsOk);
      expect_close(ours, theirs, magnitude_of(x));
      EXPECT_EQ(transform(complex(src), complex(src), n, XFM_SCALE_NONE), xfmStsOk);
      expect_close(src, theirs, magnitude_of(x));
    }
  }
}

TYPED_TEST(SameAsFftw, CcsIsR2c) {
  using Real = TypeParam;
  for (int n = shortest; n <= longest; ++n) {
    SCOPED_TRACE(n);
    const int elements = 2 * (n / 2 + 1);
    auto src = this->input(n);
    const double magnitude = magnitude_of(src);
    auto ours = this->zeros(elements), theirs = this->zeros(elements);
    run<Real>(Fftw<Real>::r2c(n, src.data(), fftw_complex_of(theirs), FFTW_ESTIMATE));
    EXPECT_EQ(Xfm<Real>::to_ccs(src.data(), ours.data(), n, XFM_SCALE_NONE), xfmStsOk);
    expect_close(ours, theirs, magnitude);
  }
}

TYPED_TEST(SameAsFftw, CcsIsR2cInPlace) {
  using Real = TypeParam;
  for (int n = shortest; n <= longest; ++n) {
    SCOPED_TRACE(n);
    auto ours = this->input(2 * (n / 2 + 1)), theirs = ours;  // the padding holds something
    const double magnitude = magnitude_of(ours);
    run<Real>(Fftw<Real>::r2c(n, theirs.data(), fftw_complex_of(theirs), FFTW_ESTIMATE));
    EXPECT_EQ(Xfm<Real>::to_ccs(ours.data(), ours.data(), n, XFM_SCALE_NONE), xfmStsOk);
    expect_close(ours, theirs, magnitude);
  }
}

// Neither reads the imaginary parts that are zero in a half spectrum.
TYPED_TEST(SameAsFftw, InverseCcsIsC2r) {
  using Real = TypeParam;
  for (int n = shortest; n <= longest; ++n) {
    SCOPED_TRACE(n);
    const auto spectrum = this->input(2 * (n / 2 + 1));
    auto src = spectrum, ours = this->zeros(n), theirs = this->zeros(n);
    EXPECT_EQ(Xfm<Real>::from_ccs(src.data(), ours.data(), n, XFM_SCALE_NONE), xfmStsOk);
    EXPECT_EQ(src, spectrum) << "the input is kept";
    run<Real>(Fftw<Real>::c2r(n, fftw_complex_of(src), theirs.data(), FFTW_ESTIMATE));
    expect_close(ours, theirs, 2 * magnitude_of(spectrum));
    auto in_place = spectrum;
    EXPECT_EQ(Xfm<Real>::from_ccs(in_place.data(), in_place.data(), n, XFM_SCALE_NONE), xfmStsOk);
    in_place.resize(static_cast<std::size_t>(n));
    expect_close(in_place, theirs, 2 * magnitude_of(spectrum));
  }
}

/// FFTW's half-complex order, r0 r1 .. r(N/2) i((N-1)/2) .. i1, in the order of Pack.
template <class Real>
Reals<Real> pack_of_half_complex(const Reals<Real>& half) {
  const std::size_t n = half.size();
  Reals<Real> pack = {half[0]};
  for (std::size_t k = 1; k <= n / 2; ++k) {
    pack.push_back(half[k]);
    if (2 * k < n) pack.push_back(half[n - k]);
  }
  return pack;
}

TYPED_TEST(SameAsFftw, PackIsHalfComplexInAnotherOrder) {
  using Real = TypeParam;
  for (int n = shortest; n <= longest; ++n) {
    SCOPED_TRACE(n);
    const auto x = this->input(n);
    auto ours = this->zeros(n);
    EXPECT_EQ(Xfm<Real>::to_pack(x.data(), ours.data(), n, XFM_SCALE_NONE), xfmStsOk);
    expect_close(ours, pack_of_half_complex(this->r2r(x, FFTW_R2HC)), magnitude_of(x));
    const auto pack = pack_of_half_complex(x);
    EXPECT_EQ(Xfm<Real>::from_pack(pack.data(), ours.data(), n, XFM_SCALE_NONE), xfmStsOk);
    expect_close(ours, this->r2r(x, FFTW_HC2R), 2 * magnitude_of(x));
  }
}

TYPED_TEST(SameAsFftw, HartleyIsDht) {
  using Real = TypeParam;
  for (int n = shortest; n <= longest; ++n) {
    SCOPED_TRACE(n);
    const auto x = this->input(n);
    auto ours = this->zeros(n);
    EXPECT_EQ(Xfm<Real>::hartley(x.data(), ours.data(), n, XFM_SCALE_NONE), xfmStsOk);
    expect_close(ours, this->r2r(x, FFTW_DHT), 2 * magnitude_of(x));
  }
}

TYPED_TEST(SameAsFftw, WalshHadamardIsTransformOfTwoInEveryDimension) {
  using Real = TypeParam;
  for (int order = XFM_WHT_MIN_ORDER; order <= XFM_WHT_MAX_ORDER; ++order) {
    SCOPED_TRACE(order);
    const auto x = this->input(1 << order);
    auto src = x, ours = this->zeros(1 << order), theirs = ours;
    const std::vector<int> twos(static_cast<std::size_t>(order), 2);
    const std::vector<fftw_r2r_kind> kinds(twos.size(), FFTW_R2HC);
    run<Real>(
        Fftw<Real>::r2r_of_rank(order, twos.data(), src.data(), theirs.data(), kinds.data(), FFTW_ESTIMATE));
    EXPECT_EQ(Xfm<Real>::wht(x.data(), ours.data(), order, XFM_SCALE_NONE, nullptr), xfmStsOk);
    expect_close(ours, theirs, magnitude_of(x));
  }
}

TYPED_TEST(SameAsFftw, Redft11IsTwiceTheDct4) {
  using Real = TypeParam;
  for (int n = XFM_DCT4_MIN_LENGTH; n <= 1 << 12; n *= 2) {
    SCOPED_TRACE(n);
    const auto x = this->input(n);
    auto ours = this->zeros(n);
    dct4(x, ours);
    for (Real& value : ours) value *= 2;
    expect_close(ours, this->r2r(x, FFTW_REDFT11), 2 * magnitude_of(x));
  }
}

TYPED_TEST(SameAsFftw, Rodft11IsTwiceTheDct4OfReversedInputWithAlternatingSigns) {
  using Real = TypeParam;
  for (int n = XFM_DCT4_MIN_LENGTH; n <= 1 << 12; n *= 2) {
    SCOPED_TRACE(n);
    const auto x = this->input(n);
    auto ours = this->zeros(n);
    dct4(Reals<Real>(x.rbegin(), x.rend()), ours);
    for (std::size_t k = 0; k < ours.size(); ++k) ours[k] *= k % 2 == 0 ? Real{2} : Real{-2};
    expect_close(ours, this->r2r(x, FFTW_RODFT11), 2 * magnitude_of(x));
  }
}

TYPED_TEST(SameAsFftw, BatchesAreTheAdvancedInterface) {
  using Real = TypeParam;
  const int count = 11;
  for (const int n : {2, 15, 64}) {
    for (const bool columns : {false, true}) {
      SCOPED_TRACE(n);
      const int in_stride = columns ? count : 1, in_distance = columns ? 1 : n + 3;
      const int out_stride = columns ? 1 : 2, out_distance = columns ? n : 2 * n;
      auto src = this->input(2 * (n + 3) * count), ours = this->zeros(4 * n * count), theirs = ours;
      run<Real>(Fftw<Real>::many_dft(1, &n, count, fftw_complex_of(src), nullptr, in_stride, in_distance,
                                     fftw_complex_of(theirs), nullptr, out_stride, out_distance, FFTW_FORWARD,
                                     FFTW_ESTIMATE));
      EXPECT_EQ(Xfm<Real>::many_forward(complex(src), in_stride, in_distance, complex(ours), out_stride,
                                        out_distance, n, count, XFM_SCALE_NONE),
                xfmStsOk);
      expect_close(ours, theirs, 2 * n);
    }
  }
}

// FFTW counts the half spectrum in complex numbers, this library in reals.
TYPED_TEST(SameAsFftw, BatchesOfCcsHaveTwiceTheDistance) {
  using Real = TypeParam;
  const int count = 11;
  for (const int n : {2, 15, 64}) {
    SCOPED_TRACE(n);
    const int distance = n / 2 + 3;
    auto src = this->input(n * count), ours = this->zeros(2 * distance * count), theirs = ours;
    run<Real>(Fftw<Real>::many_r2c(1, &n, count, src.data(), nullptr, 1, n, fftw_complex_of(theirs), nullptr,
                                   1, distance, FFTW_ESTIMATE));
    EXPECT_EQ(
        Xfm<Real>::many_to_ccs(src.data(), 1, n, ours.data(), 1, 2 * distance, n, count, XFM_SCALE_NONE),
        xfmStsOk);
    expect_close(ours, theirs, n);
  }
}

TYPED_TEST(SameAsFftw, TwoDimensionsAreRowsThenColumns) {
  using Real = TypeParam;
  const int rows = 12, columns = 25;
  auto src = this->input(2 * rows * columns), theirs = this->zeros(2 * rows * columns);
  const double magnitude = magnitude_of(src);
  run<Real>(Fftw<Real>::dft_2d(rows, columns, fftw_complex_of(src), fftw_complex_of(theirs), FFTW_FORWARD,
                               FFTW_ESTIMATE));
  const auto many = Xfm<Real>::many_forward;
  auto* const x = complex(src);
  EXPECT_EQ(many(x, 1, columns, x, 1, columns, columns, rows, XFM_SCALE_NONE), xfmStsOk);
  EXPECT_EQ(many(x, columns, 1, x, columns, 1, rows, columns, XFM_SCALE_NONE), xfmStsOk);
  expect_close(src, theirs, magnitude);
}

}  // namespace
}  // namespace xfm::test
