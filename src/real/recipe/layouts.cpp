#include "src/real/recipe/layouts.h"

namespace xfm::real {

const char* name_of(Layout layout) {
  switch (layout) {
    case Layout::ccs:
      return "CCS";
    case Layout::pack:
      return "Pack";
    default:
      return "Perm";
  }
}

int size_of(Layout layout, int length) { return layout == Layout::ccs ? length / 2 * 2 + 2 : length; }

// CCS: all bins as pairs. Pack: the zeros left out. Perm: the same, but the last real bin of an even length
// comes second, so that the others stay pairs.
int element(Layout layout, int length, int k, int part) {
  const bool even = length % 2 == 0;
  if (layout == Layout::ccs) return 2 * k + part;
  if (k == 0) return 0;
  if (layout == Layout::perm && even) return 2 * k == length ? 1 : 2 * k + part;
  return 2 * k - 1 + part;
}

gen::PerLane zeros(Layout layout, int length) {
  if (layout != Layout::ccs) return {};
  if (length % 2 == 0) return {1, length + 1};
  return {1};
}

}  // namespace xfm::real
