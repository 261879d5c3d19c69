#include "tests/support/layout.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace xfm::test {
namespace {

void add_pairs(std::vector<Cell>& all, int length) {
  for (int k = 1; 2 * k < length; ++k) {
    all.push_back({k, Part::real});
    all.push_back({k, Part::imaginary});
  }
}

}  // namespace

std::vector<Cell> cells(Layout layout, int length) {
  const bool even = length % 2 == 0;
  const Cell last = {length / 2, Part::real};  // of even lengths
  std::vector<Cell> all = {{0, Part::real}};
  if (layout == Layout::ccs) all.push_back({0, Part::zero});
  if (layout == Layout::perm && even) all.push_back(last);
  add_pairs(all, length);
  if (layout != Layout::perm && even) all.push_back(last);
  if (layout == Layout::ccs && even) all.push_back({length / 2, Part::zero});
  return all;
}

const RealFamily* real_family(const catalogue::Kernel& kernel) {
  const auto* const found =
      std::ranges::find(real_families, std::string_view(kernel.family), &RealFamily::name);
  return found == std::end(real_families) ? nullptr : found;
}

int scaled_outputs(const catalogue::Kernel& kernel) {
  const RealFamily* const family = real_family(kernel);
  return family != nullptr && family->forward ? kernel.length : kernel.written;
}

bool may_scale_before_narrowing(const catalogue::Kernel& kernel, int out) {
  static const std::set<int> lengths = {3,  5,  7,  9,  11, 12, 14, 15, 17, 18, 21, 22, 25, 27,
                                        28, 33, 34, 35, 39, 40, 45, 48, 49, 51, 54, 55, 57, 63};
  const RealFamily* const family = real_family(kernel);
  return family != nullptr && family->forward && kernel.precision == catalogue::Precision::binary32 &&
         lengths.contains(kernel.length) &&
         cells(family->layout, kernel.length)[static_cast<std::size_t>(out)].bin != 0;
}

}  // namespace xfm::test
