#include "gen/targets/target.h"

#include <algorithm>
#include <bit>
#include <stdexcept>

namespace xfm::gen {

bool Permutation::fixed() const {
  return std::all_of(sources.begin(), sources.end(),
                     [](std::uint64_t set) { return std::has_single_bit(set); });
}

std::span<const Target> targets() {
  static const Target all[] = {x86_64(), x86_64_v2(), x86_64_v3(), x86_64_v4()};
  return all;
}

const Target& target(std::string_view name) {
  const auto all = targets();
  const auto found = std::find_if(all.begin(), all.end(), [&](const Target& t) { return t.name == name; });
  if (found == all.end()) throw std::out_of_range("no target " + std::string(name));
  return *found;
}

}  // namespace xfm::gen
