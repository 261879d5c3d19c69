/// @file
/// Where the bins of a half spectrum lie in each layout: docs/layouts.md as code.
#pragma once

#include <compare>
#include <complex>
#include <cstddef>
#include <iterator>

#include "xfm/kernels.hpp"

namespace xfm {

/// The number of elements that hold the half spectrum of N samples.
constexpr std::size_t element_count(layout packing, std::size_t length) noexcept {
  return packing == layout::ccs ? 2 * (length / 2 + 1) : length;
}

/// Whether the imaginary part of a bin, 0 to N/2, is always zero.
constexpr bool is_real_bin(std::size_t length, std::size_t bin) noexcept {
  return bin == 0 || 2 * bin == length;
}

/// The element that holds the real part of a bin, 0 to N/2. The imaginary part follows it, but Pack and Perm
/// have none of a real bin.
constexpr std::size_t real_part_at(layout packing, std::size_t length, std::size_t bin) noexcept {
  if (packing == layout::ccs) return 2 * bin;
  if (bin == 0) return 0;
  if (packing == layout::pack || length % 2 != 0) return 2 * bin - 1;
  return 2 * bin == length ? 1 : 2 * bin;
}

/// @cond
namespace detail {

/// Bin 0 to N/2.
template <layout Layout, class T>
constexpr std::complex<T> bin(const T* data, std::size_t length, std::size_t k) noexcept {
  const T* const real = data + real_part_at(Layout, length, k);
  return {*real, is_real_bin(length, k) ? T{0} : real[1]};
}

template <layout Layout, class T>
constexpr void set_bin(T* data, std::size_t length, std::size_t k, std::complex<T> value) noexcept {
  T* const real = data + real_part_at(Layout, length, k);
  *real = value.real();
  if (!is_real_bin(length, k)) {
    real[1] = value.imag();
  } else if constexpr (Layout == layout::ccs) {
    real[1] = 0;
  }
}

}  // namespace detail
/// @endcond

/// Goes through the bins 0 to N/2 in any order. It refers to the elements, not to the object that holds them,
/// and returns bins by value.
template <layout Layout, sample T>
class bin_iterator {
 public:
  // What every random-access iterator has.
  /// @cond
  using value_type = std::complex<T>;
  using difference_type = std::ptrdiff_t;
  using reference = value_type;
  using pointer = void;
  using iterator_category = std::input_iterator_tag;  // what C++17 calls it, since a reference is a value
  using iterator_concept = std::random_access_iterator_tag;

  constexpr bin_iterator() noexcept = default;
  constexpr bin_iterator(const T* data, std::size_t length, std::size_t k) noexcept
      : data_(data), length_(length), k_(static_cast<difference_type>(k)) {}

  constexpr value_type operator*() const noexcept { return (*this)[0]; }
  constexpr value_type operator[](difference_type n) const noexcept {
    return detail::bin<Layout>(data_, length_, static_cast<std::size_t>(k_ + n));
  }
  constexpr bin_iterator& operator+=(difference_type n) noexcept {
    k_ += n;
    return *this;
  }
  constexpr bin_iterator& operator-=(difference_type n) noexcept { return *this += -n; }
  constexpr bin_iterator& operator++() noexcept { return *this += 1; }
  constexpr bin_iterator& operator--() noexcept { return *this -= 1; }
  constexpr bin_iterator operator++(int) noexcept {
    const bin_iterator before = *this;
    ++*this;
    return before;
  }
  constexpr bin_iterator operator--(int) noexcept {
    const bin_iterator before = *this;
    --*this;
    return before;
  }
  friend constexpr bin_iterator operator+(bin_iterator a, difference_type n) noexcept { return a += n; }
  friend constexpr bin_iterator operator+(difference_type n, bin_iterator a) noexcept { return a += n; }
  friend constexpr bin_iterator operator-(bin_iterator a, difference_type n) noexcept { return a -= n; }
  friend constexpr difference_type operator-(bin_iterator a, bin_iterator b) noexcept { return a.k_ - b.k_; }
  friend constexpr bool operator==(bin_iterator a, bin_iterator b) noexcept { return a.k_ == b.k_; }
  friend constexpr auto operator<=>(bin_iterator a, bin_iterator b) noexcept { return a.k_ <=> b.k_; }
  /// @endcond

 private:
  const T* data_ = nullptr;
  std::size_t length_ = 0;
  difference_type k_ = 0;
};

}  // namespace xfm
