// Where batches go one by one.
#pragma once

#include <string_view>

namespace xfm::many {

struct Singles {
  std::string_view target, family, type, digits;
};
inline constexpr Singles all_singles[] = {
#define SINGLES(target, family, type, digits) {#target, #family, #type, digits},
#include "src/many/singles.def"
#undef SINGLES
};

/// How many contiguous transforms a batch computes one by one at most, at length number `row` of a family; as
/// many as there are lanes, or more: all of them.
constexpr int singles(std::string_view target, std::string_view family, std::string_view type,
                      std::size_t row) {
#ifdef XFM_SINGLES  // to compare them
  return XFM_SINGLES;
#endif
  for (const Singles& of : all_singles) {
    if (of.target == target && of.family == family && of.type == type) return of.digits.at(row) - '0';
  }
  return 1;
}

}  // namespace xfm::many
