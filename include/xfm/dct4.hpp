/// @file
/// The DCT-IV of 2^k points.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <type_traits>
#include <utility>

#include "xfm/kernels.hpp"

namespace xfm {

/// out[k] = sum over j of in[j] * cos(pi/N * (j + 1/2) * (k + 1/2)), without a factor: applied twice, the
/// transform gives the input times N/2.
///
/// An object holds tables and work areas, so it serves one call at a time. It may be moved, and a call of one
/// that holds nothing returns status::bad_state. Its construction throws nothing: see outcome(), or let
/// check() throw.
template <sample T>
class dct4 {
 public:
  /// The shortest length.
  static constexpr std::size_t min_length = XFM_DCT4_MIN_LENGTH;
  /// The longest length: 2^26, in double precision 2^25.
  static constexpr std::size_t max_length =
      std::is_same_v<T, float> ? XFM_DCT4_MAX_LENGTH_32F : XFM_DCT4_MAX_LENGTH_64F;

  /// Powers of two in this range. The C functions accept some others too, for which they compute no DCT-IV.
  static constexpr bool is_served(std::size_t length) noexcept {
    return std::has_single_bit(length) && length >= min_length && length <= max_length;
  }

  /// Holds nothing.
  dct4() noexcept = default;

  /// The transform of this length, with its tables.
  explicit dct4(std::size_t length) noexcept {
    if (!is_served(length)) {
      outcome_ = status::bad_size;
      return;
    }
    state* made = nullptr;
    outcome_ = static_cast<status>(make(&made, static_cast<std::int32_t>(length)));
    state_.reset(made);
    if (*this) length_ = length;
  }

  /// Leaves the other one without a transform.
  dct4(dct4&& other) noexcept { swap(other); }
  /// Likewise.
  dct4& operator=(dct4&& other) noexcept {
    dct4 moved(std::move(other));
    swap(moved);
    return *this;
  }

  /// status::ok, or why there is no transform.
  status outcome() const noexcept { return outcome_; }
  /// Whether there is a transform.
  explicit operator bool() const noexcept { return outcome_ == status::ok; }

  /// N, or 0 if there is no transform.
  std::size_t length() const noexcept { return length_; }

  /// Both spans have N elements. They may be the same, but must not overlap in any other way.
  status operator()(std::span<const T> in, std::span<T> out) noexcept {
    if (!*this) return status::bad_state;
    if (in.size() != length_ || out.size() != length_) return status::bad_size;
    return static_cast<status>(run(in.data(), out.data(), state_.get()));
  }
  /// In place.
  status operator()(std::span<T> data) noexcept { return (*this)(data, data); }

 private:
  static constexpr bool single = std::is_same_v<T, float>;
  using state = std::conditional_t<single, xfmDCT4State_32f, xfmDCT4State_64f>;

  static xfmStatus make(xfmDCT4State_32f** made, std::int32_t length) {
    return xfmDCT4InitAlloc_32f(made, length);
  }
  static xfmStatus make(xfmDCT4State_64f** made, std::int32_t length) {
    return xfmDCT4InitAlloc_64f(made, length);
  }
  static xfmStatus run(const float* in, float* out, xfmDCT4State_32f* of) { return xfmDCT4_32f(in, out, of); }
  static xfmStatus run(const double* in, double* out, xfmDCT4State_64f* of) {
    return xfmDCT4_64f(in, out, of);
  }
  /// @cond
  struct release {
    void operator()(xfmDCT4State_32f* of) const noexcept { xfmDCT4Free_32f(of); }
    void operator()(xfmDCT4State_64f* of) const noexcept { xfmDCT4Free_64f(of); }
  };
  /// @endcond

  void swap(dct4& other) noexcept {
    std::swap(state_, other.state_);
    std::swap(length_, other.length_);
    std::swap(outcome_, other.outcome_);
  }

  std::unique_ptr<state, release> state_;
  std::size_t length_ = 0;
  status outcome_ = status::bad_state;
};

}  // namespace xfm
