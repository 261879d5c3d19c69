/// @file
/// Windows of the MDCT. They satisfy the condition of Princen and Bradley, w[n]^2 + w[N + n]^2 = 1 in a
/// window of 2N, and are symmetric, so that overlapping frames add up to the signal (Princen and Bradley
/// 1986).
#pragma once

#include <cmath>
#include <cstddef>
#include <numbers>
#include <span>
#include <type_traits>

#include "xfm/kernels.hpp"

namespace xfm {

/// w[n] = sin(pi/2N * (n + 1/2)) in a span of 2N elements: xfm::sine_window<float>(window);
template <sample T>
void sine_window(std::span<std::type_identity_t<T>> window) noexcept {
  const std::size_t size = window.size();
  const double step = std::numbers::pi / static_cast<double>(size);
  for (std::size_t n = 0; n < size / 2; ++n)
    window[n] = window[size - 1 - n] = static_cast<T>(std::sin(step * (static_cast<double>(n) + 0.5)));
}

/// @cond
namespace detail {

/// The modified Bessel function of the first kind and order zero, by its power series, whose terms are all
/// positive.
inline double bessel_i0(double x) noexcept {
  double sum = 1;
  double term = 1;
  for (int k = 1; term > 1e-17 * sum; ++k) {
    term *= (x / 2 / k) * (x / 2 / k);
    sum += term;
  }
  return sum;
}

/// The Kaiser window of n + 1 points at point k, without its factor: of 1 - (2k/n - 1)^2 without the
/// subtractions.
inline double kaiser(std::size_t n, std::size_t k, double alpha) noexcept {
  const double area = static_cast<double>(k) * static_cast<double>(n - k);
  return bessel_i0(std::numbers::pi * alpha * 2 * std::sqrt(area) / static_cast<double>(n));
}

}  // namespace detail
/// @endcond

/// The Kaiser-Bessel-derived window: the square root of the running sum of a Kaiser window of N + 1 points,
/// in a span of 2N elements. Audio codecs use alpha = 4 for long blocks. A larger alpha, up to 200, has a
/// wider main lobe and lower side lobes.
template <sample T>
void kaiser_bessel_derived_window(std::span<std::type_identity_t<T>> window, double alpha) noexcept {
  const std::size_t n = window.size() / 2;
  long double sum = 0;  // the rounding of long sums would be seen in the condition
  for (std::size_t k = 0; k <= n; ++k) sum += detail::kaiser(n, k, alpha);
  long double running = 0;
  for (std::size_t k = 0; k < n; ++k) {
    running += detail::kaiser(n, k, alpha);
    window[k] = window[2 * n - 1 - k] = static_cast<T>(std::sqrt(running / sum));
  }
}

}  // namespace xfm
