/// @file
/// Real DFTs of 2 to 64 points, to and from half spectra in the three packed layouts: the type of the
/// spectrum says which. A length in angle brackets chooses the kernel at compile time, and the call cannot
/// fail; without one the lengths are compared at run time, and the call returns a status. Samples and
/// elements may overlap in any way.
#pragma once

#include <cstddef>
#include <span>
#include <type_traits>

#include "xfm/half_spectrum.hpp"
#include "xfm/kernels.hpp"

namespace xfm {
/// @cond
namespace detail {

template <class S>
using sample_of = typename view_of<S>::sample_type;

}  // namespace detail
/// @endcond

/// Bin k = s * sum over j of in[j] * exp(-2 pi i j k / N), k = 0 .. N/2
template <std::size_t N, writable_half_spectrum S>
requires(detail::view_of<S>::extent == N) void dft_forward(detail::fixed<const detail::sample_of<S>, N> in,
                                                           S&& out, scale factor) noexcept {
  detail::run<detail::to_layout_family<detail::view_of<S>::packing>, N>(in.data(), out.data(), factor);
}

/// The same with N = in.size(), which must be out.length().
template <writable_half_spectrum S>
status dft_forward(std::span<const detail::sample_of<S>> in, S&& out, scale factor) noexcept {
  if (in.size() != out.length()) return status::bad_size;
  return detail::run<detail::to_layout_family<detail::view_of<S>::packing>>(in.data(), out.data(), in.size(),
                                                                            factor);
}

/// out[j] = s * sum over k of X[k] * exp(+2 pi i j k / N), j, k = 0 .. N-1, X[N-k] = conj(X[k])
template <std::size_t N, any_half_spectrum S>
requires(detail::view_of<S>::extent ==
         N) void dft_inverse(const S& in, detail::fixed<detail::sample_of<S>, N> out, scale factor) noexcept {
  detail::run<detail::from_layout_family<S::packing>, N>(in.data(), out.data(), factor);
}

/// The same with N = in.length(), which must be out.size().
template <any_half_spectrum S>
status dft_inverse(const S& in, std::span<std::type_identity_t<detail::sample_of<S>>> out,
                   scale factor) noexcept {
  if (in.length() != out.size()) return status::bad_size;
  return detail::run<detail::from_layout_family<S::packing>>(in.data(), out.data(), out.size(), factor);
}

}  // namespace xfm
