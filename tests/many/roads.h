// Where a batch's elements are: on the roads that batches have to memory, and elsewhere.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "tools/many_catalogue.h"

namespace xfm::test {

using catalogue::Places;

/// The places of a batch of `count` transforms of `size` elements, in an array with a margin.
struct Road {
  const char* name;
  Places places;
  std::int64_t last_element, last_transform;

  std::int64_t element_span() const { return last_element * places.stride; }
  std::int64_t transform_span() const { return last_transform * places.distance; }

  /// The index of element 0 of transform 0.
  std::int64_t origin() const {
    return margin - std::min<std::int64_t>(element_span(), 0) - std::min<std::int64_t>(transform_span(), 0);
  }
  std::int64_t index(std::int64_t transform, std::int64_t element) const {
    return origin() + transform * places.distance + element * places.stride;
  }
  /// How many elements the array has.
  std::int64_t room() const { return 2 * margin + 1 + std::abs(element_span()) + std::abs(transform_span()); }

  static constexpr std::int64_t margin = 3;
};

inline std::vector<Road> roads(std::int64_t size, std::int64_t count) {
  const std::int64_t wide = std::max<std::int64_t>(count, 1);
  const auto road = [&](const char* name, std::int64_t stride, std::int64_t distance) {
    return Road{name, {stride, distance}, size - 1, wide - 1};
  };
  return {
      road("lanes", wide, 1),
      road("contiguous", 1, size),
      road("scattered", 3, 3 * size + 2),
      road("lanes with gaps", wide + 3, 1),
      road("contiguous with gaps", 1, size + 5),
      road("every other lane", 2 * wide + 1, 2),
      road("contiguous, the last first", 1, -size - 1),
      road("elements backwards", -1, size),
      road("lanes backwards", wide, -1),
      road("lanes, elements backwards", -wide - 1, 1),
      road("all backwards", -2, -2 * size - 1),
  };
}

}  // namespace xfm::test
