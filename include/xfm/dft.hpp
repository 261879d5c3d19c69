/// @file
/// Complex DFTs of 2 to 64 points. A length in angle brackets chooses the kernel at compile time, and the
/// call cannot fail; without one the length is that of the spans, and the call returns a status. Spans may
/// overlap in any way.
#pragma once

#include <complex>
#include <cstddef>
#include <span>

#include "xfm/kernels.hpp"

namespace xfm {
/// @cond
namespace detail {

template <class Family, class T>
status dft(std::span<const T> in, std::span<T> out, scale factor) noexcept {
  if (in.size() != out.size()) return status::bad_size;
  return run<Family>(in.data(), out.data(), in.size(), factor);
}

}  // namespace detail
/// @endcond

/// out[k] = s * sum over n of in[n] * exp(-2 pi i n k / N)
template <std::size_t N>
requires dft_length<N>
void dft_forward(detail::fixed<const std::complex<float>, N> in, detail::fixed<std::complex<float>, N> out,
                 scale factor) noexcept {
  detail::run<detail::dft_forward_family, N>(in.data(), out.data(), factor);
}
/// The same in double precision.
template <std::size_t N>
requires dft_length<N>
void dft_forward(detail::fixed<const std::complex<double>, N> in, detail::fixed<std::complex<double>, N> out,
                 scale factor) noexcept {
  detail::run<detail::dft_forward_family, N>(in.data(), out.data(), factor);
}

/// The same with N = in.size(), which must be that of out.
inline status dft_forward(std::span<const std::complex<float>> in, std::span<std::complex<float>> out,
                          scale factor) noexcept {
  return detail::dft<detail::dft_forward_family>(in, out, factor);
}
/// The same in double precision.
inline status dft_forward(std::span<const std::complex<double>> in, std::span<std::complex<double>> out,
                          scale factor) noexcept {
  return detail::dft<detail::dft_forward_family>(in, out, factor);
}

/// out[n] = s * sum over k of in[k] * exp(+2 pi i n k / N)
template <std::size_t N>
requires dft_length<N>
void dft_inverse(detail::fixed<const std::complex<float>, N> in, detail::fixed<std::complex<float>, N> out,
                 scale factor) noexcept {
  detail::run<detail::dft_inverse_family, N>(in.data(), out.data(), factor);
}
/// The same in double precision.
template <std::size_t N>
requires dft_length<N>
void dft_inverse(detail::fixed<const std::complex<double>, N> in, detail::fixed<std::complex<double>, N> out,
                 scale factor) noexcept {
  detail::run<detail::dft_inverse_family, N>(in.data(), out.data(), factor);
}

/// The same with N = in.size(), which must be that of out.
inline status dft_inverse(std::span<const std::complex<float>> in, std::span<std::complex<float>> out,
                          scale factor) noexcept {
  return detail::dft<detail::dft_inverse_family>(in, out, factor);
}
/// The same in double precision.
inline status dft_inverse(std::span<const std::complex<double>> in, std::span<std::complex<double>> out,
                          scale factor) noexcept {
  return detail::dft<detail::dft_inverse_family>(in, out, factor);
}

}  // namespace xfm
