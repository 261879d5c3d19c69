/// @file
/// Half spectra of real sequences, bins 0 to N/2, as types that know how they are packed: docs/layouts.md.
///
/// xfm::ccs<float, 64> owns the elements of 64 samples, xfm::ccs<float> those of a length that the
/// constructor takes. xfm::ccs_view<float, 64> and xfm::ccs_view<float> are the same over memory of the
/// caller; a view of const float only reads. So with pack and perm.
#pragma once

#include <array>
#include <cassert>
#include <complex>
#include <concepts>
#include <cstddef>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "xfm/bins.hpp"
#include "xfm/kernels.hpp"

namespace xfm {

/// A view of a half spectrum. T may be const. N is the number of samples, or std::dynamic_extent.
template <layout Layout, class T, std::size_t N = std::dynamic_extent>
requires sample<std::remove_const_t<T>> &&
    (N == std::dynamic_extent || dft_length<N>)class half_spectrum_view {
 public:
  using element_type = T;                              ///< an element, maybe const
  using sample_type = std::remove_const_t<T>;          ///< float or double
  using value_type = std::complex<sample_type>;        ///< a bin
  using iterator = bin_iterator<Layout, sample_type>;  ///< returns bins by value

  static constexpr layout packing = Layout;  ///< the layout
  static constexpr std::size_t extent = N;   ///< in samples
  /// In elements.
  static constexpr std::size_t element_extent =
      N == std::dynamic_extent ? std::dynamic_extent : element_count(Layout, N);

  /// Over an array of the right size.
  constexpr half_spectrum_view(std::type_identity_t<std::span<T, element_extent>> elements) noexcept
      requires(N != std::dynamic_extent)
      : data_(elements.data()), length_(N) {}

  /// Over memory that has at least the elements of this length. If it has fewer, the view is one of no
  /// samples, which every transform refuses.
  constexpr half_spectrum_view(std::type_identity_t<std::span<T>> memory, std::size_t length) noexcept
      requires(N == std::dynamic_extent)
      : data_(memory.data()), length_(fits(memory.size(), length) ? length : 0) {}

  /// Of the same elements, which may be const now, and whose number need not be part of the type any more.
  template <class U, std::size_t M>
  requires std::convertible_to<U (*)[], T (*)[]> &&
      (M == N ||
       N == std::dynamic_extent) constexpr half_spectrum_view(half_spectrum_view<Layout, U, M> other) noexcept
      : data_(other.data()), length_(other.length()) {}

  /// Itself: owned half spectra and views have the same members.
  constexpr half_spectrum_view view() const noexcept { return *this; }
  /// The first element.
  constexpr T* data() const noexcept { return data_; }
  /// The elements, in the order of the layout.
  constexpr std::span<T, element_extent> elements() const noexcept {
    return std::span<T, element_extent>(data_, length() == 0 ? 0 : element_count(Layout, length()));
  }

  /// The number of samples.
  constexpr std::size_t length() const noexcept { return N == std::dynamic_extent ? length_ : N; }
  /// The number of bins, N/2 + 1.
  constexpr std::size_t size() const noexcept { return length() == 0 ? 0 : length() / 2 + 1; }

  /// Bin k, 0 to N - 1: those beyond N/2 are conjugates.
  constexpr value_type bin(std::size_t k) const noexcept {
    assert(k < length());
    if (k < size()) return detail::bin<Layout, sample_type>(data_, length(), k);
    return std::conj(detail::bin<Layout, sample_type>(data_, length(), length() - k));
  }
  /// The same.
  constexpr value_type operator[](std::size_t k) const noexcept { return bin(k); }

  /// Stores bin k, 0 to N/2. The imaginary part of a real bin is ignored; CCS has +0 there.
  constexpr void set_bin(std::size_t k, value_type value) const noexcept requires(!std::is_const_v<T>) {
    assert(k < size());
    detail::set_bin<Layout>(data_, length(), k, value);
  }

  /// The bins 0 to N/2, to be read.
  constexpr iterator begin() const noexcept { return {data_, length(), 0}; }
  /// Behind the last one.
  constexpr iterator end() const noexcept { return {data_, length(), size()}; }

 private:
  static constexpr bool fits(std::size_t room, std::size_t length) noexcept {
    return length <= room && element_count(Layout, length) <= room;
  }

  T* data_;
  std::size_t length_;
};

/// A half spectrum that owns its elements. With N in the type it is a plain array: like that of a std::array
/// its default constructor leaves them as they are, and `half_spectrum<...> x{}` sets them to zero. Without N
/// it allocates, which may throw std::bad_alloc.
template <layout Layout, sample T, std::size_t N = std::dynamic_extent>
requires(N == std::dynamic_extent || dft_length<N>) class half_spectrum {
 public:
  using view_type = half_spectrum_view<Layout, T, N>;              ///< a view of its elements
  using const_view_type = half_spectrum_view<Layout, const T, N>;  ///< a view that only reads
  using sample_type = T;                                           ///< float or double
  using value_type = std::complex<T>;                              ///< a bin

  static constexpr layout packing = Layout;  ///< the layout
  static constexpr std::size_t extent = N;   ///< in samples

  /// Leaves the elements as they are.
  half_spectrum() requires(N != std::dynamic_extent) = default;

  /// The half spectrum of a sequence of this length, all zeros.
  explicit half_spectrum(std::size_t length) requires(N == std::dynamic_extent)
      : elements_(length == 0 ? 0 : element_count(Layout, length)), length_{length} {}

  /// A view of the elements.
  constexpr view_type view() noexcept {
    if constexpr (N == std::dynamic_extent) {
      return view_type(elements_, length_.value);
    } else {
      return view_type(elements_);
    }
  }
  /// A view that only reads.
  constexpr const_view_type view() const noexcept {
    if constexpr (N == std::dynamic_extent) {
      return const_view_type(elements_, length_.value);
    } else {
      return const_view_type(elements_);
    }
  }
  /// The same as view().
  constexpr operator view_type() noexcept { return view(); }
  /// The same as view().
  constexpr operator const_view_type() const noexcept { return view(); }

  /// The first element.
  constexpr T* data() noexcept { return elements_.data(); }
  /// The first element, to be read.
  constexpr const T* data() const noexcept { return elements_.data(); }
  /// The elements, in the order of the layout.
  constexpr auto elements() noexcept { return view().elements(); }
  /// The elements, to be read.
  constexpr auto elements() const noexcept { return view().elements(); }

  /// The number of samples; 0 if the elements were moved elsewhere.
  constexpr std::size_t length() const noexcept { return view().length(); }
  /// The number of bins, N/2 + 1.
  constexpr std::size_t size() const noexcept { return view().size(); }

  /// Bin k, 0 to N - 1: those beyond N/2 are conjugates.
  constexpr value_type bin(std::size_t k) const noexcept { return view().bin(k); }
  /// The same.
  constexpr value_type operator[](std::size_t k) const noexcept { return bin(k); }
  /// Stores bin k, 0 to N/2. The imaginary part of a real bin is ignored; CCS has +0 there.
  constexpr void set_bin(std::size_t k, value_type value) noexcept { view().set_bin(k, value); }

  /// The bins 0 to N/2, to be read.
  constexpr auto begin() const noexcept { return view().begin(); }
  /// Behind the last one.
  constexpr auto end() const noexcept { return view().end(); }

 private:
  /// @cond
  struct run_time_length {
    std::size_t value;
  };
  struct fixed_length {};
  /// @endcond
  static constexpr bool is_fixed = N != std::dynamic_extent;

  std::conditional_t<is_fixed, std::array<T, element_count(Layout, is_fixed ? N : 0)>, std::vector<T>>
      elements_;
  [[no_unique_address]] std::conditional_t<is_fixed, fixed_length, run_time_length> length_;
};

/// A half spectrum in the layout CCS.
template <sample T, std::size_t N = std::dynamic_extent>
using ccs = half_spectrum<layout::ccs, T, N>;
/// A half spectrum in the layout Pack.
template <sample T, std::size_t N = std::dynamic_extent>
using pack = half_spectrum<layout::pack, T, N>;
/// A half spectrum in the layout Perm.
template <sample T, std::size_t N = std::dynamic_extent>
using perm = half_spectrum<layout::perm, T, N>;

/// The same in memory of the caller.
template <class T, std::size_t N = std::dynamic_extent>
using ccs_view = half_spectrum_view<layout::ccs, T, N>;
/// The same in memory of the caller.
template <class T, std::size_t N = std::dynamic_extent>
using pack_view = half_spectrum_view<layout::pack, T, N>;
/// The same in memory of the caller.
template <class T, std::size_t N = std::dynamic_extent>
using perm_view = half_spectrum_view<layout::perm, T, N>;

/// @cond
namespace detail {

template <class>
inline constexpr bool is_view = false;
template <layout Layout, class T, std::size_t N>
inline constexpr bool is_view<half_spectrum_view<Layout, T, N>> = true;

/// The view type of a half spectrum, owned or not, of const elements if that is const.
template <class S>
using view_of = decltype(std::declval<S&>().view());

}  // namespace detail
/// @endcond

/// A half spectrum, owned or a view.
template <class S>
concept any_half_spectrum = requires(S& s) {
  s.view();
}
&&detail::is_view<detail::view_of<S>>;

/// One whose elements may be written.
template <class S>
concept writable_half_spectrum =
    any_half_spectrum<S> && !std::is_const_v<typename detail::view_of<S>::element_type>;

/// One whose length is part of its type.
template <class S>
concept fixed_half_spectrum = any_half_spectrum<S> && detail::view_of<S>::extent != std::dynamic_extent;

/// @cond
namespace detail {

template <class From, class To>
constexpr void copy_bins(const From& from, const To& to) noexcept {
  for (std::size_t k = 0; k < from.size(); ++k) to.set_bin(k, from.bin(k));
}

}  // namespace detail
/// @endcond

/// Moves a half spectrum to another layout, without arithmetic. The two must not overlap.
template <fixed_half_spectrum From, writable_half_spectrum To>
requires(fixed_half_spectrum<To>&& detail::view_of<From>::extent ==
         detail::view_of<To>::extent) constexpr void convert(const From& from, To&& to) noexcept {
  detail::copy_bins(from.view(), to.view());
}

/// The same if a length is known at run time only: they must be equal.
template <any_half_spectrum From, writable_half_spectrum To>
requires(!fixed_half_spectrum<From> || !fixed_half_spectrum<To>) constexpr status
    convert(const From& from, To&& to) noexcept {
  if (from.length() != to.length()) return status::bad_size;
  detail::copy_bins(from.view(), to.view());
  return status::ok;
}

}  // namespace xfm
