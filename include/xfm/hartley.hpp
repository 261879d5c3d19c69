/// @file
/// Hartley transforms of 2 to 64 points. A length in angle brackets chooses the kernel at compile time, and
/// the call cannot fail; without one the length is that of the spans, and the call returns a status. Spans
/// may overlap in any way. The transform is its own inverse up to a factor N, so both factors 1/N mean the
/// same here.
#pragma once

#include <cstddef>
#include <span>

#include "xfm/kernels.hpp"

namespace xfm {

/// out[k] = s * sum over j of in[j] * (cos(2 pi j k / N) + sin(2 pi j k / N))
template <std::size_t N>
requires dft_length<N>
void hartley(detail::fixed<const float, N> in, detail::fixed<float, N> out, scale factor) noexcept {
  detail::run<detail::hartley_family, N>(in.data(), out.data(), factor);
}
/// The same in double precision.
template <std::size_t N>
requires dft_length<N>
void hartley(detail::fixed<const double, N> in, detail::fixed<double, N> out, scale factor) noexcept {
  detail::run<detail::hartley_family, N>(in.data(), out.data(), factor);
}

/// @cond
namespace detail {

template <class T>
status hartley_of_size(std::span<const T> in, std::span<T> out, scale factor) noexcept {
  if (in.size() != out.size()) return status::bad_size;
  return run<hartley_family>(in.data(), out.data(), in.size(), factor);
}

}  // namespace detail
/// @endcond

/// The same with N = in.size(), which must be that of out.
inline status hartley(std::span<const float> in, std::span<float> out, scale factor) noexcept {
  return detail::hartley_of_size(in, out, factor);
}
/// The same in double precision.
inline status hartley(std::span<const double> in, std::span<double> out, scale factor) noexcept {
  return detail::hartley_of_size(in, out, factor);
}

}  // namespace xfm
