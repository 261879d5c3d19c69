/// @file
/// Transforms of batches. Each gives the bits of single calls. The two batches must have as many transforms,
/// and must be the same places or not overlap at all; a batch of none is no error.
#pragma once

#include <bit>
#include <complex>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "xfm/batch.hpp"
#include "xfm/bins.hpp"
#include "xfm/kernels.hpp"
#include "xfm/wht.hpp"
#include "xfm_many.h"

namespace xfm {
/// @cond
namespace detail {

template <class Family, class Element>
inline constexpr std::nullptr_t many = nullptr;

// clang-format off
#define XFM_MANY(name, suffix, family, element) \
  template <> inline constexpr auto* many<family, element> = &xfmMany##name##_##suffix;
XFM_MANY(DFTFwd_CToC, 32fc, dft_forward_family, std::complex<float>)
XFM_MANY(DFTFwd_CToC, 64fc, dft_forward_family, std::complex<double>)
XFM_MANY(DFTInv_CToC, 32fc, dft_inverse_family, std::complex<float>)
XFM_MANY(DFTInv_CToC, 64fc, dft_inverse_family, std::complex<double>)
XFM_MANY(DFTFwd_RToCCS, 32f, to_layout_family<layout::ccs>, float)
XFM_MANY(DFTFwd_RToCCS, 64f, to_layout_family<layout::ccs>, double)
XFM_MANY(DFTFwd_RToPack, 32f, to_layout_family<layout::pack>, float)
XFM_MANY(DFTFwd_RToPack, 64f, to_layout_family<layout::pack>, double)
XFM_MANY(DFTFwd_RToPerm, 32f, to_layout_family<layout::perm>, float)
XFM_MANY(DFTFwd_RToPerm, 64f, to_layout_family<layout::perm>, double)
XFM_MANY(DFTInv_CCSToR, 32f, from_layout_family<layout::ccs>, float)
XFM_MANY(DFTInv_CCSToR, 64f, from_layout_family<layout::ccs>, double)
XFM_MANY(DFTInv_PackToR, 32f, from_layout_family<layout::pack>, float)
XFM_MANY(DFTInv_PackToR, 64f, from_layout_family<layout::pack>, double)
XFM_MANY(DFTInv_PermToR, 32f, from_layout_family<layout::perm>, float)
XFM_MANY(DFTInv_PermToR, 64f, from_layout_family<layout::perm>, double)
XFM_MANY(Hartley, 32f, hartley_family, float)
XFM_MANY(Hartley, 64f, hartley_family, double)
XFM_MANY(WHT, 32f, wht_family, float)
XFM_MANY(WHT, 64f, wht_family, double)
#undef XFM_MANY
// clang-format on

/// `number` is the length or the order, as the family counts.
template <class Family, class T, class... More>
status run_many(batch<const T> in, batch<T> out, std::size_t number, scale factor, More... more) noexcept {
  if (in.count() != out.count() || in.length() == 0 || out.length() == 0 || number > XFM_DFT_MAX_LENGTH)
    return status::bad_size;
  if (in.count() == 0) return status::ok;  // and no memory, perhaps
  return static_cast<status>(
      many<Family, T>(address(in.data()), in.at().stride, in.at().distance, address(out.data()),
                      out.at().stride, out.at().distance, static_cast<std::int32_t>(number),
                      static_cast<std::int64_t>(in.count()), static_cast<std::int32_t>(factor), more...));
}

template <class Family, class T>
status many_of_length(batch<const T> in, batch<T> out, scale factor) noexcept {
  if (in.length() != out.length()) return status::bad_size;
  return run_many<Family>(in, out, in.length(), factor);
}

template <layout Layout, class T>
status many_to_layout(batch<const T> in, batch<T> out, scale factor) noexcept {
  if (out.length() != element_count(Layout, in.length())) return status::bad_size;
  return run_many<to_layout_family<Layout>>(in, out, in.length(), factor);
}

template <layout Layout, class T>
status many_from_layout(batch<const T> in, batch<T> out, scale factor) noexcept {
  if (in.length() != element_count(Layout, out.length())) return status::bad_size;
  return run_many<from_layout_family<Layout>>(in, out, out.length(), factor);
}

template <class T>
status many_wht(batch<const T> in, batch<T> out, scale factor, void* buffer) noexcept {
  if (in.length() != out.length() || !std::has_single_bit(in.length())) return status::bad_size;
  return run_many<wht_family>(in, out, static_cast<std::size_t>(std::bit_width(in.length()) - 1), factor,
                              buffer);
}

}  // namespace detail
/// @endcond

/// Forward complex DFTs.
inline status dft_forward(batch<const std::complex<float>> in, batch<std::complex<float>> out,
                          scale factor) noexcept {
  return detail::many_of_length<detail::dft_forward_family>(in, out, factor);
}
/// The same in double precision.
inline status dft_forward(batch<const std::complex<double>> in, batch<std::complex<double>> out,
                          scale factor) noexcept {
  return detail::many_of_length<detail::dft_forward_family>(in, out, factor);
}
/// Inverse complex DFTs.
inline status dft_inverse(batch<const std::complex<float>> in, batch<std::complex<float>> out,
                          scale factor) noexcept {
  return detail::many_of_length<detail::dft_inverse_family>(in, out, factor);
}
/// The same in double precision.
inline status dft_inverse(batch<const std::complex<double>> in, batch<std::complex<double>> out,
                          scale factor) noexcept {
  return detail::many_of_length<detail::dft_inverse_family>(in, out, factor);
}

/// Real DFTs of in.length() samples: xfm::dft_forward<xfm::layout::ccs>(in, out, factor). The length of out
/// is that of the layout, element_count(layout::ccs, in.length()).
template <layout Layout>
status dft_forward(batch<const float> in, batch<float> out, scale factor) noexcept {
  return detail::many_to_layout<Layout>(in, out, factor);
}
/// The same in double precision.
template <layout Layout>
status dft_forward(batch<const double> in, batch<double> out, scale factor) noexcept {
  return detail::many_to_layout<Layout>(in, out, factor);
}

/// Inverse real DFTs. The length of in is that of the layout, element_count(layout::ccs, out.length()).
template <layout Layout>
status dft_inverse(batch<const float> in, batch<float> out, scale factor) noexcept {
  return detail::many_from_layout<Layout>(in, out, factor);
}
/// The same in double precision.
template <layout Layout>
status dft_inverse(batch<const double> in, batch<double> out, scale factor) noexcept {
  return detail::many_from_layout<Layout>(in, out, factor);
}

/// Hartley transforms.
inline status hartley(batch<const float> in, batch<float> out, scale factor) noexcept {
  return detail::many_of_length<detail::hartley_family>(in, out, factor);
}
/// The same in double precision.
inline status hartley(batch<const double> in, batch<double> out, scale factor) noexcept {
  return detail::many_of_length<detail::hartley_family>(in, out, factor);
}

/// Walsh-Hadamard transforms.
inline status wht(batch<const float> in, batch<float> out, scale factor) noexcept {
  return detail::many_wht(in, out, factor, nullptr);
}
/// The same in double precision.
inline status wht(batch<const double> in, batch<double> out, scale factor) noexcept {
  return detail::many_wht(in, out, factor, nullptr);
}
/// The same in work space for every order.
inline status wht(batch<const float> in, batch<float> out, scale factor, wht_buffer<float>& buffer) noexcept {
  return detail::many_wht(in, out, factor, buffer.data());
}
/// The same in double precision.
inline status wht(batch<const double> in, batch<double> out, scale factor,
                  wht_buffer<double>& buffer) noexcept {
  return detail::many_wht(in, out, factor, buffer.data());
}

}  // namespace xfm
