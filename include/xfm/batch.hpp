/// @file
/// Where the transforms of a batch lie in memory.
#pragma once

#include <concepts>
#include <cstddef>
#include <span>
#include <type_traits>

namespace xfm {

/// Element k of transform t is memory[first + t * distance + k * stride].
struct places {
  std::size_t length = 0;       ///< elements of a transform
  std::size_t count = 0;        ///< transforms
  std::ptrdiff_t stride = 1;    ///< from an element to the next
  std::ptrdiff_t distance = 0;  ///< from a transform to the next
  std::size_t first = 0;        ///< where element 0 of transform 0 is
};

/// The elements of many transforms in memory of the caller. If any of them is not in the memory, the batch is
/// one of length 0, which every function refuses.
template <class T>
class batch {
 public:
  /// The elements at these places of the memory.
  constexpr batch(std::span<T> memory, const places& at) noexcept {
    if (at.length == 0 || !fits(memory.size(), at)) return;
    places_ = at;
    data_ = at.count == 0 ? memory.data() : memory.data() + at.first;
  }

  /// The same elements to be read.
  template <std::same_as<std::remove_const_t<T>> U>
  requires std::is_const_v<T>
  constexpr batch(const batch<U>& other) noexcept : places_(other.at()), data_(other.data()) {}

  /// Where they are.
  constexpr const places& at() const noexcept { return places_; }
  /// Element 0 of transform 0.
  constexpr T* data() const noexcept { return data_; }
  /// The elements of a transform.
  constexpr std::size_t length() const noexcept { return places_.length; }
  /// The number of transforms.
  constexpr std::size_t count() const noexcept { return places_.count; }

 private:
  /// The distance from the first to the last of several elements.
  static constexpr std::size_t size_of(std::ptrdiff_t step) noexcept {
    return step < 0 ? std::size_t{0} - static_cast<std::size_t>(step) : static_cast<std::size_t>(step);
  }
  static constexpr bool fits(std::size_t room, const places& at) noexcept {
    if (at.count == 0) return true;
    std::size_t below = 0, above = 0;
    const auto reach = [&](std::size_t number, std::ptrdiff_t step) {
      if (number == 1) return true;
      if (size_of(step) > (room - 1) / (number - 1)) return false;
      (step < 0 ? below : above) += (number - 1) * size_of(step);
      return true;
    };
    return room > 0 && at.first < room && reach(at.length, at.stride) && reach(at.count, at.distance) &&
           below <= at.first && above < room - at.first;
  }

  places places_;
  T* data_ = nullptr;
};

/// @cond
namespace detail {

/// All of a matrix; one of length 0 if its memory cannot be divided into transforms of this length.
template <class Memory>
constexpr auto matrix(Memory& memory, std::size_t length, bool by_columns) noexcept {
  const std::span all(memory);
  places at;
  if (length != 0 && all.size() % length == 0) {
    at.length = length;
    at.count = all.size() / length;
    at.stride = by_columns ? static_cast<std::ptrdiff_t>(at.count) : 1;
    at.distance = by_columns ? 1 : static_cast<std::ptrdiff_t>(length);
  }
  return batch<typename decltype(all)::element_type>(all, at);
}

}  // namespace detail
/// @endcond

/// The rows of a matrix whose rows follow each other: transforms that are contiguous.
template <class Memory>
constexpr auto rows(Memory&& memory, std::size_t length) noexcept {
  return detail::matrix(memory, length, false);
}

/// The columns of such a matrix, each of this length: neighbours in memory belong to different transforms.
template <class Memory>
constexpr auto columns(Memory&& memory, std::size_t length) noexcept {
  return detail::matrix(memory, length, true);
}

}  // namespace xfm
