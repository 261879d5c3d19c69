#include "tools/lanes.h"

#include <algorithm>
#include <stdexcept>

namespace xfm {
namespace {

struct Row {
  std::string_view target, family, type, lanes;
};
constexpr Row rows[] = {
#define LANES(target, family, type, lanes) {#target, #family, #type, lanes},
#include "tools/lanes.def"
};

}  // namespace

int most_lanes(const gen::Kernel& kernel, const gen::Target& target) {
  const bool single = kernel.type.complex && kernel.type.precision == gen::Precision::binary32;
  return target.lanes(single ? gen::Precision::binary32 : gen::Precision::binary64);
}

int chosen_lanes(const gen::Kernel& kernel, const gen::Target& target) {
  const auto* const row = std::find_if(std::begin(rows), std::end(rows), [&](const Row& of) {
    return of.target == target.name && of.family == kernel.family && of.type == kernel.type.suffix();
  });
  if (row == std::end(rows)) return kernel.network->width();
  constexpr int lowest = 2;  // the length of the first digit
  return row->lanes.at(static_cast<std::size_t>(kernel.length - lowest)) - '0';
}

}  // namespace xfm
