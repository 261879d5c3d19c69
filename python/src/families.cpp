#include "families.h"

#include <bit>
#include <type_traits>

#include <xfm_lookup.h>
#include <xfm_many.h>

#include "dct4.h"

#define TEXT_OF(value) #value
#define TEXT(value) TEXT_OF(value)

namespace {

// A function of xfm_many.h behind the common signature.
template <class T, xfmStatus (*f)(const T*, std::int64_t, std::int64_t, T*, std::int64_t, std::int64_t,
                                  std::int32_t, std::int64_t, std::int32_t)>
xfmStatus many(const void* src, std::int64_t src_stride, std::int64_t src_distance, void* dst,
               std::int64_t dst_stride, std::int64_t dst_distance, std::int32_t length, std::int64_t count,
               std::int32_t flag, void*) {
  return f(static_cast<const T*>(src), src_stride, src_distance, static_cast<T*>(dst), dst_stride,
           dst_distance, length, count, flag);
}

template <class T, xfmStatus (*f)(const T*, std::int64_t, std::int64_t, T*, std::int64_t, std::int64_t,
                                  std::int32_t, std::int64_t, std::int32_t, void*)>
xfmStatus many_wht(const void* src, std::int64_t src_stride, std::int64_t src_distance, void* dst,
                   std::int64_t dst_stride, std::int64_t dst_distance, std::int32_t length,
                   std::int64_t count, std::int32_t flag, void* buffer) {
  return f(static_cast<const T*>(src), src_stride, src_distance, static_cast<T*>(dst), dst_stride,
           dst_distance, wht_order(length), count, flag, buffer);
}

bool dft_served(std::int64_t length, Precision) {
  return XFM_DFT_MIN_LENGTH <= length && length <= XFM_DFT_MAX_LENGTH;
}

bool wht_served(std::int64_t length, Precision) {
  return (std::int64_t{1} << XFM_WHT_MIN_ORDER) <= length &&
         length <= (std::int64_t{1} << XFM_WHT_MAX_ORDER) && (length & (length - 1)) == 0;
}

// The library accepts some other lengths too, for which it computes no DCT-IV.
bool dct4_served(std::int64_t length, Precision precision) {
  if (length < 0 || length > INT32_MAX) return false;
  const auto n = static_cast<std::int32_t>(length);
  return (precision == Precision::single ? xfmDCT4IsServed_32f(n) : xfmDCT4IsServed_64f(n)) != 0;
}

constexpr char dft_lengths[] = TEXT(XFM_DFT_MIN_LENGTH) " to " TEXT(XFM_DFT_MAX_LENGTH);
constexpr char wht_lengths[] =
    "the powers of two from 2**" TEXT(XFM_WHT_MIN_ORDER) " to 2**" TEXT(XFM_WHT_MAX_ORDER);
constexpr char dct4_lengths[] = "the powers of two from " TEXT(XFM_DCT4_MIN_LENGTH) " to " TEXT(
    XFM_DCT4_MAX_LENGTH_32F) ", in double precision to " TEXT(XFM_DCT4_MAX_LENGTH_64F);

constexpr std::int32_t none = XFM_SCALE_NONE, root = XFM_SCALE_BY_SQRT_N;
constexpr std::int32_t forward_by_n = XFM_SCALE_FWD_BY_N, inverse_by_n = XFM_SCALE_INV_BY_N;

}  // namespace

// clang-format off
const Family families[FAMILIES] = {
  {"fft", Kind::complex_to_complex,
   {many<xfm32fc, xfmManyDFTFwd_CToC_32fc>, many<xfm64fc, xfmManyDFTFwd_CToC_64fc>},
   {none, root, forward_by_n}, dft_served, dft_lengths},
  {"ifft", Kind::complex_to_complex,
   {many<xfm32fc, xfmManyDFTInv_CToC_32fc>, many<xfm64fc, xfmManyDFTInv_CToC_64fc>},
   {inverse_by_n, root, none}, dft_served, dft_lengths},
  {"rfft", Kind::real_to_half,
   {many<xfm32f, xfmManyDFTFwd_RToCCS_32f>, many<xfm64f, xfmManyDFTFwd_RToCCS_64f>},
   {none, root, forward_by_n}, dft_served, dft_lengths},
  {"irfft", Kind::half_to_real,
   {many<xfm32f, xfmManyDFTInv_CCSToR_32f>, many<xfm64f, xfmManyDFTInv_CCSToR_64f>},
   {inverse_by_n, root, none}, dft_served, dft_lengths},
  {"hartley", Kind::real_to_real,
   {many<xfm32f, xfmManyHartley_32f>, many<xfm64f, xfmManyHartley_64f>},
   {none, root, forward_by_n}, dft_served, dft_lengths},
  {"wht", Kind::real_to_real,
   {many_wht<xfm32f, xfmManyWHT_32f>, many_wht<xfm64f, xfmManyWHT_64f>},
   {none, root, forward_by_n}, wht_served, wht_lengths},
  {"dct4", Kind::real_to_real,
   {dct4_batch<float>, dct4_batch<double>},
   {none, root, forward_by_n}, dct4_served, dct4_lengths},
};
// clang-format on

std::int32_t wht_order(std::int64_t length) { return std::countr_zero(static_cast<std::uint64_t>(length)); }
