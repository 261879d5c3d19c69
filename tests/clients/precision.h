// One set of names for the two precisions: of this library's functions, and of what tests need.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tests/support/random.h"
#include "tests/support/reference.h"
#include "xfm.h"
#include "xfm_many.h"

namespace xfm::test {

template <class Real>
struct Xfm;

#define XFM_NAMES(real, suffix, precision_name)                           \
  template <>                                                             \
  struct Xfm<real> {                                                      \
    using Complex = xfm##suffix##fc;                                      \
    using Dct4State = xfmDCT4State_##suffix##f;                           \
    static constexpr Precision precision = Precision::precision_name;     \
    static constexpr auto forward = xfmDFTFwd_CToC_##suffix##fc;          \
    static constexpr auto inverse = xfmDFTInv_CToC_##suffix##fc;          \
    static constexpr auto to_ccs = xfmDFTFwd_RToCCS_##suffix##f;          \
    static constexpr auto to_pack = xfmDFTFwd_RToPack_##suffix##f;        \
    static constexpr auto to_perm = xfmDFTFwd_RToPerm_##suffix##f;        \
    static constexpr auto from_ccs = xfmDFTInv_CCSToR_##suffix##f;        \
    static constexpr auto from_pack = xfmDFTInv_PackToR_##suffix##f;      \
    static constexpr auto from_perm = xfmDFTInv_PermToR_##suffix##f;      \
    static constexpr auto hartley = xfmHartley_##suffix##f;               \
    static constexpr auto wht = xfmWHT_##suffix##f;                       \
    static constexpr auto dct4_init = xfmDCT4InitAlloc_##suffix##f;       \
    static constexpr auto dct4 = xfmDCT4_##suffix##f;                     \
    static constexpr auto dct4_free = xfmDCT4Free_##suffix##f;            \
    static constexpr auto many_forward = xfmManyDFTFwd_CToC_##suffix##fc; \
    static constexpr auto many_to_ccs = xfmManyDFTFwd_RToCCS_##suffix##f; \
  }
XFM_NAMES(float, 32, binary32);
XFM_NAMES(double, 64, binary64);
#undef XFM_NAMES

template <class Real>
using Reals = std::vector<Real>;

/// Uniform in -1..1, of a stream of this name.
template <class Real>
Reals<Real> random_reals(const std::string& name, int count) {
  Random random(name);
  Reals<Real> values(static_cast<std::size_t>(count));
  for (Real& value : values) value = static_cast<Real>(random.even());
  return values;
}

/// Real parts at even places, imaginary ones at odd places: the array that both libraries see as complex.
template <class Real>
auto* complex(Reals<Real>& values) {
  return reinterpret_cast<typename Xfm<Real>::Complex*>(values.data());
}

/// Every element as expected, up to what both sides may round: no output of these transforms is greater than
/// the sum of the magnitudes of its inputs.
template <class Real, class Expected>
void expect_close(const Reals<Real>& got, const std::vector<Expected>& expected, double magnitude) {
  ASSERT_EQ(got.size(), expected.size());
  for (std::size_t i = 0; i < got.size(); ++i) {
    EXPECT_NEAR(static_cast<double>(got[i]), static_cast<double>(expected[i]),
                relative_bound(Xfm<Real>::precision) * magnitude)
        << "element " << i;
  }
}

template <class Real>
double magnitude_of(const Reals<Real>& values) {
  double sum = 0;
  for (const Real value : values) sum += value < 0 ? -double{value} : double{value};
  return sum;
}

/// The DCT-IV, of a state for this call only.
template <class Real>
void dct4(const Reals<Real>& src, Reals<Real>& dst) {
  typename Xfm<Real>::Dct4State* state = nullptr;
  ASSERT_EQ(Xfm<Real>::dct4_init(&state, static_cast<std::int32_t>(src.size())), xfmStsOk);
  EXPECT_EQ(Xfm<Real>::dct4(src.data(), dst.data(), state), xfmStsOk);
  EXPECT_EQ(Xfm<Real>::dct4_free(state), xfmStsOk);
}

}  // namespace xfm::test
