/// @file
/// The modified discrete cosine transform (MDCT): frames of 2N samples that overlap by half, N coefficients
/// each, and the samples recovered from the coefficients (Princen and Bradley 1986; Malvar 1992).
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <memory>
#include <new>
#include <span>

#include "xfm/dct4.hpp"
#include "xfm/window.hpp"

namespace xfm {

/// The first half of an MDCT: 2N samples, each multiplied by its element of the window, become N, whose
/// DCT-IV is the MDCT. If the windowed frame is (a, b, c, d), the result is (-reverse(c) - d, a -
/// reverse(b)). N is even; the result must not overlap the frame.
template <sample T>
status fold(std::span<const std::type_identity_t<T>> frame, std::span<const std::type_identity_t<T>> window,
            std::span<std::type_identity_t<T>> folded) noexcept {
  const std::size_t n = folded.size(), half = n / 2;
  if (n % 2 != 0 || frame.size() != 2 * n || window.size() != 2 * n) return status::bad_size;
  const auto windowed = [&](std::size_t i) { return window[i] * frame[i]; };
  for (std::size_t i = 0; i < half; ++i) {
    folded[i] = -windowed(n + half - 1 - i) - windowed(n + half + i);
    folded[half + i] = windowed(i) - windowed(n - 1 - i);
  }
  return status::ok;
}

/// The transpose of fold(), the second half of an inverse MDCT: (p, q), the DCT-IV of N coefficients, becomes
/// the frame (q, -reverse(q), -reverse(p), -p) times the window. Added to its neighbours at distance N it
/// gives the signal.
template <sample T>
status unfold(std::span<const std::type_identity_t<T>> folded,
              std::span<const std::type_identity_t<T>> window,
              std::span<std::type_identity_t<T>> frame) noexcept {
  const std::size_t n = folded.size(), half = n / 2;
  if (n % 2 != 0 || frame.size() != 2 * n || window.size() != 2 * n) return status::bad_size;
  const auto put = [&](std::size_t i, T value) { frame[i] = window[i] * value; };
  for (std::size_t i = 0; i < half; ++i) {
    put(i, folded[half + i]);
    put(n - 1 - i, -folded[half + i]);
    put(n + half - 1 - i, -folded[i]);
    put(n + half + i, -folded[i]);
  }
  return status::ok;
}

/// The MDCT of one signal, with the overlap that an inverse leaves to the next.
///
///     coefficients[k] = s * sum over n of window[n] * frame[n] * cos(pi/N * (n + 1/2 + N/2) * (k + 1/2)),
///     n = 0 .. 2N-1,   k = 0 .. N-1
///
/// The factor s has N/2 where other transforms have N, since that is what the two directions together
/// multiply by: 2/N, sqrt(2/N) or 1. With a window that satisfies the condition of Princen and Bradley, and
/// any scale but none, the inverse of unchanged coefficients is the signal, one block late.
///
/// An object serves one call at a time. It may be moved. Its construction throws nothing: see outcome(), or
/// let check() throw.
template <sample T>
class mdct {
 public:
  /// The size of the window is 2N, where N is a power of two that dct4 serves. The object keeps a copy.
  mdct(std::span<const T> window, scale factor) noexcept : transform_(window.size() / 2) {
    const std::size_t n = window.size() / 2;
    outcome_ = window.size() % 2 == 0 ? transform_.outcome() : status::bad_size;
    if (outcome_ != status::ok) return;
    memory_.reset(new (std::nothrow) T[7 * n]());
    if (!memory_) {
      outcome_ = status::no_memory;
      return;
    }
    set_window(forward_window(), window, part_of(factor, scale::forward_by_n));
    set_window(inverse_window(), window, part_of(factor, scale::inverse_by_n));
  }

  /// status::ok, or why there is no transform.
  status outcome() const noexcept {
    const bool moved = outcome_ == status::ok && !transform_;
    return moved ? status::bad_state : outcome_;
  }
  /// Whether there is a transform.
  explicit operator bool() const noexcept { return outcome() == status::ok; }

  /// N: the coefficients of a frame, and the samples that a frame advances.
  std::size_t length() const noexcept { return *this ? transform_.length() : 0; }

  /// From 2N samples, of which the last N are the first of the next frame, to N coefficients elsewhere.
  status forward(std::span<const T> frame, std::span<T> coefficients) noexcept {
    if (!*this) return status::bad_state;
    if (coefficients.size() != length()) return status::bad_size;
    if (const status folded = fold<T>(frame, forward_window(), coefficients); folded != status::ok)
      return folded;
    return transform_(coefficients);
  }

  /// From N coefficients to N finished samples: the first half of this frame added to the second half of the
  /// one before, which is silence at first. Coefficients and samples may be the same span.
  status inverse(std::span<const T> coefficients, std::span<T> samples) noexcept {
    if (!*this) return status::bad_state;
    if (coefficients.size() != length() || samples.size() != length()) return status::bad_size;
    if (const status done = transform_(coefficients, folded()); done != status::ok) return done;
    const auto frame = this->frame();
    std::copy_n(frame.begin() + static_cast<std::ptrdiff_t>(length()), length(), samples.begin());
    const status done = unfold<T>(folded(), inverse_window(), frame);
    std::transform(samples.begin(), samples.end(), frame.begin(), samples.begin(), std::plus<>());
    return done;
  }

  /// Forgets the overlap, for another signal.
  void reset() noexcept {
    if (*this) std::fill_n(frame().data(), frame().size(), T{0});
  }

 private:
  // The parts of memory_.
  std::span<T> part(std::size_t first, std::size_t count) const noexcept {
    return {memory_.get() + first * length(), count * length()};
  }
  std::span<T> forward_window() const noexcept { return part(0, 2); }
  std::span<T> inverse_window() const noexcept { return part(2, 2); }
  std::span<T> frame() const noexcept { return part(4, 2); }  ///< the last one that was unfolded
  std::span<T> folded() const noexcept { return part(6, 1); }

  /// The factor of the direction that this scale belongs to.
  double part_of(scale factor, scale direction) const noexcept {
    const double both = 2 / static_cast<double>(length());
    if (factor == direction) return both;
    return factor == scale::by_sqrt_n ? std::sqrt(both) : 1;
  }
  static void set_window(std::span<T> to, std::span<const T> window, double factor) noexcept {
    std::transform(window.begin(), window.end(), to.begin(), [=](T w) { return static_cast<T>(factor * w); });
  }

  dct4<T> transform_;
  std::unique_ptr<T[]> memory_;
  status outcome_ = status::bad_state;
};

}  // namespace xfm
