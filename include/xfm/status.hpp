/// @file
/// The result of a call, and the factor of a transform.
#pragma once

#include <concepts>
#include <cstdint>
#include <stdexcept>
#include <utility>

#include "xfm.h"

/// The transforms of xfm for C++20, on spans. docs/cpp.md shows each part with examples.
namespace xfm {

/// The result of a call that can fail. The values are those of xfmStatus. There is none for a null pointer,
/// since spans have no null pointers.
enum class [[nodiscard]] status : xfmStatus{
    ok = xfmStsOk,
    bad_state = xfmStsBadState,  ///< an object that holds nothing: not made, or moved from
    bad_size = xfmStsBadSize,    ///< a length that is not served, or spans that do not fit together
    no_memory = xfmStsNullPtr,   ///< where C has this value, pointers are null for want of memory
    bad_scale = xfmStsBadScale,  ///< a number that was cast to a scale
};

/// The factor of a transform, as xfm.h states it for each family.
enum class scale : std::int32_t {
  forward_by_n = XFM_SCALE_FWD_BY_N,  ///< the forward direction carries 1/N
  inverse_by_n = XFM_SCALE_INV_BY_N,  ///< the inverse direction carries 1/N
  by_sqrt_n = XFM_SCALE_BY_SQRT_N,    ///< both directions carry 1/sqrt(N)
  none = XFM_SCALE_NONE,              ///< no factor in either direction
};

/// The status in words.
constexpr const char* to_string(status result) noexcept {
  switch (result) {
    case status::ok:
      return "ok";
    case status::bad_state:
      return "the object holds no transform";
    case status::bad_size:
      return "a length that is not served, or sizes that do not fit together";
    case status::no_memory:
      return "out of memory";
    case status::bad_scale:
      return "not a scale";
  }
  return "unknown status";
}

/// What check() throws.
class error : public std::runtime_error {
 public:
  /// Of this status.
  explicit error(status result) : std::runtime_error(to_string(result)), result_(result) {}
  /// The status.
  status code() const noexcept { return result_; }

 private:
  status result_;
};

/// Turns a failure into an exception: xfm::check(xfm::dft_forward(in, out, xfm::scale::none));
inline void check(status result) {
  if (result != status::ok) throw error(result);
}

/// The same for an object whose construction can fail: auto transform = xfm::check(xfm::dct4<float>(1024));
template <class T>
requires requires(const T& made) {
  { made.outcome() } -> std::same_as<status>;
} && std::movable<T> T check(T made) {
  check(made.outcome());
  return made;
}

}  // namespace xfm
