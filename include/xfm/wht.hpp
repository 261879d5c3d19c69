/// @file
/// Walsh-Hadamard transforms of 2 to 2^13 points in natural order. An order in angle brackets chooses the
/// kernel at compile time, and the call cannot fail; without one the order follows from the size of the
/// spans, and the call returns a status. Spans may overlap in any way. The transform is its own inverse up to
/// a factor N, so both factors 1/N mean the same here.
///
/// From order 8 on a kernel needs work space. Without a wht_buffer each call allocates and frees it, and a
/// program that is out of memory crashes there.
#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "xfm/kernels.hpp"

namespace xfm {

/// Work space for transforms up to an order: as long and as aligned as they need, for one call at a time. The
/// constructor throws std::bad_alloc if there is no memory.
template <sample T, std::size_t Order = XFM_WHT_MAX_ORDER>
requires wht_order<Order>
class wht_buffer {
 public:
  /// Allocates the memory.
  wht_buffer() : blocks_(std::make_unique<block[]>(count())) {}
  /// The memory, as the C functions take it.
  void* data() noexcept { return blocks_.get(); }

 private:
  /// @cond
  struct alignas(16) block {
    std::byte bytes[16];
  };
  /// @endcond

  /// A longer transform may need less than a shorter one.
  static std::size_t count() noexcept {
    std::uint32_t most = 0;
    for (std::int32_t order = XFM_WHT_MIN_ORDER; order <= static_cast<std::int32_t>(Order); ++order) {
      std::uint32_t size = 0;
      if constexpr (std::same_as<T, float>) {
        xfmWHTGetBufferSize_32f(order, &size);
      } else {
        xfmWHTGetBufferSize_64f(order, &size);
      }
      most = size > most ? size : most;
    }
    return (most + sizeof(block) - 1) / sizeof(block);
  }

  std::unique_ptr<block[]> blocks_;
};

/// @cond
namespace detail {

template <std::size_t Order, class T, std::size_t N>
void wht_of_order(std::span<const T, N> in, std::span<T, N> out, scale factor, void* buffer) noexcept {
  run<wht_family, Order>(in.data(), out.data(), factor, buffer);
}

template <class T>
status wht_of_size(std::span<const T> in, std::span<T> out, scale factor, void* buffer) noexcept {
  if (in.size() != out.size() || !std::has_single_bit(in.size())) return status::bad_size;
  const auto order = static_cast<std::size_t>(std::bit_width(in.size()) - 1);
  return run<wht_family>(in.data(), out.data(), order, factor, buffer);
}

}  // namespace detail
/// @endcond

/// out[k] = s * sum over j of (-1)^popcount(j AND k) * in[j], N = 2^Order
template <std::size_t Order>
requires wht_order<Order>
void wht(detail::fixed<const float, std::size_t{1} << Order> in,
         detail::fixed<float, std::size_t{1} << Order> out, scale factor) noexcept {
  detail::wht_of_order<Order>(in, out, factor, nullptr);
}
/// The same in double precision.
template <std::size_t Order>
requires wht_order<Order>
void wht(detail::fixed<const double, std::size_t{1} << Order> in,
         detail::fixed<double, std::size_t{1} << Order> out, scale factor) noexcept {
  detail::wht_of_order<Order>(in, out, factor, nullptr);
}

/// The same in work space for this order or a higher one.
template <std::size_t Order, std::size_t Most>
requires(wht_order<Order>&& Order <= Most) void wht(detail::fixed<const float, std::size_t{1} << Order> in,
                                                    detail::fixed<float, std::size_t{1} << Order> out,
                                                    scale factor, wht_buffer<float, Most>& buffer) noexcept {
  detail::wht_of_order<Order>(in, out, factor, buffer.data());
}
/// The same in double precision.
template <std::size_t Order, std::size_t Most>
requires(wht_order<Order>&& Order <= Most) void wht(detail::fixed<const double, std::size_t{1} << Order> in,
                                                    detail::fixed<double, std::size_t{1} << Order> out,
                                                    scale factor, wht_buffer<double, Most>& buffer) noexcept {
  detail::wht_of_order<Order>(in, out, factor, buffer.data());
}

/// The same with N = in.size(), which must be that of out.
inline status wht(std::span<const float> in, std::span<float> out, scale factor) noexcept {
  return detail::wht_of_size(in, out, factor, nullptr);
}
/// The same in double precision.
inline status wht(std::span<const double> in, std::span<double> out, scale factor) noexcept {
  return detail::wht_of_size(in, out, factor, nullptr);
}

/// The same in work space for every order.
inline status wht(std::span<const float> in, std::span<float> out, scale factor,
                  wht_buffer<float>& buffer) noexcept {
  return detail::wht_of_size(in, out, factor, buffer.data());
}
/// The same in double precision.
inline status wht(std::span<const double> in, std::span<double> out, scale factor,
                  wht_buffer<double>& buffer) noexcept {
  return detail::wht_of_size(in, out, factor, buffer.data());
}

}  // namespace xfm
