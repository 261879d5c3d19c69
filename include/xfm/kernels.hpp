/// @file
/// The lengths, element types and layouts that there are, and the C functions by these. Not for use by
/// itself.
#pragma once

#include <complex>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

#include "xfm.h"
#include "xfm/status.hpp"

namespace xfm {

/// The lengths of complex, real and Hartley transforms.
template <std::size_t N>
concept dft_length = N >= XFM_DFT_MIN_LENGTH&& N <= XFM_DFT_MAX_LENGTH;

/// The orders of Walsh-Hadamard transforms, whose lengths are powers of two.
template <std::size_t Order>
concept wht_order = Order >= XFM_WHT_MIN_ORDER&& Order <= XFM_WHT_MAX_ORDER;

/// The types of a sample.
template <class T>
concept sample = std::same_as<T, float> || std::same_as<T, double>;

/// How the half spectrum of a real sequence is packed, see docs/layouts.md.
enum class layout { ccs, pack, perm };

}  // namespace xfm

/// @cond
namespace xfm::detail {

struct dft_forward_family;
struct dft_inverse_family;
template <layout>
struct to_layout_family;
template <layout>
struct from_layout_family;
struct hartley_family;
struct wht_family;

/// The kernel of a length, or of an order.
template <class Family, class Element, std::size_t N>
inline constexpr std::nullptr_t kernel = nullptr;

/// The function that takes the length as an argument.
template <class Family, class Element>
inline constexpr std::nullptr_t generic = nullptr;

#define XFM_GENERIC(name, suffix, family, element) \
  template <>                                      \
  inline constexpr auto* generic<family, element> = &xfm##name##_##suffix;
#define XFM_KERNEL(n, name, suffix, family, element) \
  template <>                                        \
  inline constexpr auto* kernel<family, element, n> = &xfm##name##_##n##_##suffix;

// clang-format off
#define XFM_ORDERS(X, ...)                                                                                \
  X(1, __VA_ARGS__) X(2, __VA_ARGS__) X(3, __VA_ARGS__) X(4, __VA_ARGS__) X(5, __VA_ARGS__)               \
  X(6, __VA_ARGS__) X(7, __VA_ARGS__) X(8, __VA_ARGS__) X(9, __VA_ARGS__) X(10, __VA_ARGS__)              \
  X(11, __VA_ARGS__) X(12, __VA_ARGS__) X(13, __VA_ARGS__)
#define XFM_LENGTHS(X, ...)                                                                               \
  X(2, __VA_ARGS__) X(3, __VA_ARGS__) X(4, __VA_ARGS__) X(5, __VA_ARGS__) X(6, __VA_ARGS__)               \
  X(7, __VA_ARGS__) X(8, __VA_ARGS__) X(9, __VA_ARGS__) X(10, __VA_ARGS__) X(11, __VA_ARGS__)             \
  X(12, __VA_ARGS__) X(13, __VA_ARGS__) X(14, __VA_ARGS__) X(15, __VA_ARGS__) X(16, __VA_ARGS__)          \
  X(17, __VA_ARGS__) X(18, __VA_ARGS__) X(19, __VA_ARGS__) X(20, __VA_ARGS__) X(21, __VA_ARGS__)          \
  X(22, __VA_ARGS__) X(23, __VA_ARGS__) X(24, __VA_ARGS__) X(25, __VA_ARGS__) X(26, __VA_ARGS__)          \
  X(27, __VA_ARGS__) X(28, __VA_ARGS__) X(29, __VA_ARGS__) X(30, __VA_ARGS__) X(31, __VA_ARGS__)          \
  X(32, __VA_ARGS__) X(33, __VA_ARGS__) X(34, __VA_ARGS__) X(35, __VA_ARGS__) X(36, __VA_ARGS__)          \
  X(37, __VA_ARGS__) X(38, __VA_ARGS__) X(39, __VA_ARGS__) X(40, __VA_ARGS__) X(41, __VA_ARGS__)          \
  X(42, __VA_ARGS__) X(43, __VA_ARGS__) X(44, __VA_ARGS__) X(45, __VA_ARGS__) X(46, __VA_ARGS__)          \
  X(47, __VA_ARGS__) X(48, __VA_ARGS__) X(49, __VA_ARGS__) X(50, __VA_ARGS__) X(51, __VA_ARGS__)          \
  X(52, __VA_ARGS__) X(53, __VA_ARGS__) X(54, __VA_ARGS__) X(55, __VA_ARGS__) X(56, __VA_ARGS__)          \
  X(57, __VA_ARGS__) X(58, __VA_ARGS__) X(59, __VA_ARGS__) X(60, __VA_ARGS__) X(61, __VA_ARGS__)          \
  X(62, __VA_ARGS__) X(63, __VA_ARGS__) X(64, __VA_ARGS__)
#define XFM_FAMILY(numbers, name, suffix, ...) \
  XFM_GENERIC(name, suffix, __VA_ARGS__) numbers(XFM_KERNEL, name, suffix, __VA_ARGS__)

XFM_FAMILY(XFM_LENGTHS, DFTFwd_CToC, 32fc, dft_forward_family, std::complex<float>)
XFM_FAMILY(XFM_LENGTHS, DFTFwd_CToC, 64fc, dft_forward_family, std::complex<double>)
XFM_FAMILY(XFM_LENGTHS, DFTInv_CToC, 32fc, dft_inverse_family, std::complex<float>)
XFM_FAMILY(XFM_LENGTHS, DFTInv_CToC, 64fc, dft_inverse_family, std::complex<double>)
XFM_FAMILY(XFM_LENGTHS, DFTFwd_RToCCS, 32f, to_layout_family<layout::ccs>, float)
XFM_FAMILY(XFM_LENGTHS, DFTFwd_RToCCS, 64f, to_layout_family<layout::ccs>, double)
XFM_FAMILY(XFM_LENGTHS, DFTFwd_RToPack, 32f, to_layout_family<layout::pack>, float)
XFM_FAMILY(XFM_LENGTHS, DFTFwd_RToPack, 64f, to_layout_family<layout::pack>, double)
XFM_FAMILY(XFM_LENGTHS, DFTFwd_RToPerm, 32f, to_layout_family<layout::perm>, float)
XFM_FAMILY(XFM_LENGTHS, DFTFwd_RToPerm, 64f, to_layout_family<layout::perm>, double)
XFM_FAMILY(XFM_LENGTHS, DFTInv_CCSToR, 32f, from_layout_family<layout::ccs>, float)
XFM_FAMILY(XFM_LENGTHS, DFTInv_CCSToR, 64f, from_layout_family<layout::ccs>, double)
XFM_FAMILY(XFM_LENGTHS, DFTInv_PackToR, 32f, from_layout_family<layout::pack>, float)
XFM_FAMILY(XFM_LENGTHS, DFTInv_PackToR, 64f, from_layout_family<layout::pack>, double)
XFM_FAMILY(XFM_LENGTHS, DFTInv_PermToR, 32f, from_layout_family<layout::perm>, float)
XFM_FAMILY(XFM_LENGTHS, DFTInv_PermToR, 64f, from_layout_family<layout::perm>, double)
XFM_FAMILY(XFM_LENGTHS, Hartley, 32f, hartley_family, float)
XFM_FAMILY(XFM_LENGTHS, Hartley, 64f, hartley_family, double)
XFM_FAMILY(XFM_ORDERS, WHT, 32f, wht_family, float)
XFM_FAMILY(XFM_ORDERS, WHT, 64f, wht_family, double)
// clang-format on

#undef XFM_FAMILY
#undef XFM_LENGTHS
#undef XFM_ORDERS
#undef XFM_KERNEL
#undef XFM_GENERIC

/// The pointer that C takes. A std::complex<T> is two T in memory, real part first, by the standard's promise
/// [complex.numbers], and so is xfm32fc or xfm64fc. Nothing in C++ accesses numbers through the type of C,
/// only libxfm's machine code does, so no rule of aliasing is broken that a compiler could see.
template <class T>
auto address(T* data) noexcept {
  using element = std::remove_const_t<T>;
  if constexpr (sample<element>) {
    return data;
  } else {
    using number = std::conditional_t<std::same_as<element, std::complex<float>>, xfm32fc, xfm64fc>;
    static_assert(sizeof(number) == sizeof(element) && alignof(number) <= alignof(element));
    return reinterpret_cast<std::conditional_t<std::is_const_v<T>, const number, number>*>(data);
  }
}

/// The same function of a type that does not throw. C cannot say so, and noexcept callers need no way out
/// then.
template <class... Parameters>
auto nothrow(xfmStatus (*function)(Parameters...)) noexcept {
  return reinterpret_cast<xfmStatus (*)(Parameters...) noexcept>(function);
}

/// Calls the kernel of a length. Types have excluded all errors, so the status is of no interest.
template <class Family, std::size_t N, class In, class Out, class... More>
void run(const In* in, Out* out, scale factor, More... more) noexcept {
  static_cast<void>(
      nothrow(kernel<Family, In, N>)(address(in), address(out), static_cast<std::int32_t>(factor), more...));
}

/// Calls the function that takes the length as an argument. It refuses a length that is not served.
template <class Family, class In, class Out, class... More>
status run(const In* in, Out* out, std::size_t length, scale factor, More... more) noexcept {
  if (length > XFM_DFT_MAX_LENGTH)
    return status::bad_size;  // before it is narrowed; orders are shorter still
  return static_cast<status>(generic<Family, In>(address(in), address(out), static_cast<std::int32_t>(length),
                                                 static_cast<std::int32_t>(factor), more...));
}

/// A span whose extent follows from the length in angle brackets, never from the argument.
template <class T, std::size_t N>
using fixed = std::type_identity_t<std::span<T, N>>;

}  // namespace xfm::detail
/// @endcond
