// A batch: its entry tests, its road to memory, and what is left where no group of lanes can be filled any
// more.
#pragma once

#include <span>

#include "src/many/transposition.h"

namespace xfm::many {

/// Element k of transform t is at data[t * distance + k * stride].
template <class E>
struct Array {
  E* data;
  std::int64_t stride, distance;

  Address transform(std::int64_t t) const {
    return reinterpret_cast<Address>(data) + static_cast<Address>(t) * between();
  }
  /// From a transform to the next, in bytes.
  Address between() const { return static_cast<Address>(distance) * sizeof(E); }
  /// From an element to the next, in bytes.
  Address step() const { return static_cast<Address>(stride) * sizeof(E); }
  /// Whether the elements of neighbouring transforms are neighbours, as they are in lanes.
  bool in_lanes() const { return distance == 1; }
};

/// A row, and where the kernels of single calls win: up to so many contiguous transforms are faster one by
/// one, and from the number of lanes on all are.
template <class E>
struct Choice {
  const Row<E>* row;
  int singles;
};

template <class E, int lanes>
class Batch {
 public:
  Batch(const Choice<E>& choice, const Array<const E>& src, const Array<E>& dst, std::int32_t flag)
      : row_(*choice.row), singles_(choice.singles), src_(src), dst_(dst), flag_(flag) {}

  void run(std::int64_t count) const {
    const bool contiguous = src_.stride == 1 && dst_.stride == 1;
    const bool all_single = contiguous && singles_ >= lanes;
    const std::int64_t whole = all_single ? 0 : count / lanes * lanes, left = count - whole;
    if (whole > 0 && contiguous && row_.contiguous != nullptr) {
      row_.contiguous(src_.transform(0), src_.between(), dst_.transform(0), dst_.between(), whole / lanes,
                      *row_.factors.of(flag_));
    } else if (whole > 0) {
      groups(whole / lanes);
    }
    if (all_single || (contiguous && left <= singles_)) {
      row_.one_by_one(src_.transform(whole), src_.between(), dst_.transform(whole), dst_.between(), left,
                      flag_);
    } else if (left > 0) {
      pass(whole, 1, static_cast<int>(left));
    }
    if (dst_.in_lanes()) store_zeros(whole);
  }

 private:
  using Lanes = Transposition<E, lanes>;
  static constexpr int most_elements = 66;  ///< of a transform
  static constexpr int area_bytes = most_elements * Lanes::pitch;

  // As many at a time as there is room for.
  void groups(std::int64_t count) const {
    const int room = most_elements / (row_.in.size > row_.out.size ? row_.in.size : row_.out.size);
    const std::int64_t most = src_.in_lanes() && dst_.in_lanes() ? count : room;
    for (std::int64_t at = 0; at < count; at += most)
      pass(at * lanes, at + most < count ? most : count - at, lanes);
  }

  // Groups from this transform on; if the last is not full it is the only one. Where it is not full, its
  // other lanes compute its last transform again.
  void pass(std::int64_t first, std::int64_t groups, int of_last) const {
    alignas(64) char in_area[area_bytes];
    alignas(64) char out_area[area_bytes];
    const bool direct_in = src_.in_lanes() && of_last == lanes,
               direct_out = dst_.in_lanes() && of_last == lanes;
    if (!direct_in) {
      for (std::int64_t g = 0; g < groups; ++g) {
        Lanes::gather(addresses(src_, first + g * lanes, of_last), src_.step(), row_.in.size,
                      in_area + g * row_.in.size * Lanes::pitch);
      }
    }
    if (!direct_out) clear_zeros(out_area, groups);
    row_.body(direct_in ? side<const char>(src_, first, row_.in) : side<const char>(in_area, row_.in),
              direct_out ? side<char>(dst_, first, row_.out) : side<char>(out_area, row_.out), groups,
              *row_.factors.of(flag_));
    if (direct_out) return;
    for (std::int64_t g = 0; g < groups; ++g) {
      Lanes::scatter(out_area + g * row_.out.size * Lanes::pitch, addresses(dst_, first + g * lanes, of_last),
                     dst_.step(), row_.out.size, of_last);
    }
  }

  template <class Data>
  static typename Lanes::Addresses addresses(const Array<Data>& array, std::int64_t first, int count) {
    typename Lanes::Addresses all;
    for (int t = 0; t < lanes; ++t) all.of[t] = array.transform(first + (t < count ? t : count - 1));
    return all;
  }

  template <class Byte>
  static Side<Byte> side(Address first, Address step, Address group, const Places& places) {
    const auto at = [&](int k) { return reinterpret_cast<Byte*>(first + static_cast<Address>(k) * step); };
    return {at(0), at(places.third), at(places.last), static_cast<std::ptrdiff_t>(step) * places.step,
            static_cast<std::ptrdiff_t>(group)};
  }
  template <class Byte, class Data>
  static Side<Byte> side(const Array<Data>& array, std::int64_t first, const Places& places) {
    return side<Byte>(array.transform(first), array.step(), Lanes::pitch, places);
  }
  template <class Byte>
  static Side<Byte> side(Byte* area, const Places& places) {
    return side<Byte>(reinterpret_cast<Address>(area), Lanes::pitch,
                      static_cast<Address>(places.size) * Lanes::pitch, places);
  }

  // Kernels leave stored zeros to the batch, since they are the same in every group.
  void clear_zeros(char* area, std::int64_t groups) const {
    for (const int zero : row_.out.zeros) {
      for (std::int64_t g = 0; zero >= 0 && g < groups; ++g)
        __builtin_memset(area + (g * row_.out.size + zero) * Lanes::pitch, 0, Lanes::pitch);
    }
  }
  void store_zeros(std::int64_t count) const {
    for (const int zero : row_.out.zeros) {
      if (zero >= 0 && count > 0)
        __builtin_memset(
            reinterpret_cast<char*>(dst_.transform(0) + static_cast<Address>(zero) * dst_.step()), 0,
            static_cast<std::size_t>(count) * sizeof(E));
    }
  }

  const Row<E>& row_;
  int singles_;
  const Array<const E>& src_;
  const Array<E>& dst_;
  std::int32_t flag_;
};

/// The whole function: the tests in their order, then the batch.
template <class E, int lanes>
xfmStatus run(std::span<const Choice<E>> rows, int lowest, const Array<const E>& src, const Array<E>& dst,
              std::int32_t length, std::int64_t count, std::int32_t flag) {
  const std::int64_t row = std::int64_t{length} - lowest;
  if (row < 0 || row >= static_cast<std::int64_t>(rows.size()) || count < 0) return xfmStsBadSize;
  if (const xfmStatus status = check(src.data, dst.data, flag); status != xfmStsOk) return status;
  Batch<E, lanes>(rows[static_cast<std::size_t>(row)], src, dst, flag).run(count);
  return xfmStsOk;
}

}  // namespace xfm::many
