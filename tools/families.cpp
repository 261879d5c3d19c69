#include "tools/families.h"

#include <numeric>

#include "src/dft/recipe/dft.h"
#include "src/hartley/recipe/hartley.h"
#include "src/real/recipe/real.h"
#include "tools/documentation.h"

namespace xfm {
namespace {

using gen::Direction;
using gen::Precision;
using gen::Target;
using real::Layout;

struct Making {
  std::string documentation;
  Designer design;
};

Making complex_of(Direction direction) {
  return {documentation(direction),
          [=](int length, Precision precision, const std::string& tree, const Target& target) {
            return dft::design(length, precision, direction, tree, target);
          }};
}

Making real_of(Direction direction, Layout layout) {
  return {documentation(direction, layout),
          [=](int length, Precision precision, const std::string& tree, const Target&) {
            return real::design(length, precision, direction, layout, tree);
          }};
}

Making hartley_of() {
  return {hartley_documentation(), [](int length, Precision precision, const std::string& plan,
                                      const Target&) { return hartley::design(length, precision, plan); }};
}

Family generated(const char* name, int lowest, int highest, bool complex, Making making) {
  return {name, lowest, highest, complex, std::move(making.documentation), std::move(making.design)};
}

}  // namespace

std::vector<gen::ElementType> Family::types() const {
  return {{Precision::binary32, complex}, {Precision::binary64, complex}};
}

std::vector<int> Family::lengths() const {
  std::vector<int> all(static_cast<std::size_t>(highest - lowest + 1));
  std::iota(all.begin(), all.end(), lowest);
  return all;
}

gen::Kernel Family::make(int length, Precision precision, const std::string& tree,
                         const Target& target) const {
  return gen::make_kernel(design(length, precision, tree, target));
}

const std::vector<Family>& families() {
  static const std::vector<Family> all = {
#define GENERATED(name, lowest, highest, complex, making) generated(#name, lowest, highest, complex, making),
#define BY_HAND(name, lowest, highest, documentation) \
  Family{#name, lowest, highest, false, documentation, {}},
#include "tools/families.def"
  };
  return all;
}

const std::vector<std::string>& plain_functions() {
  static const std::vector<std::string> all = {
      "xfmGetLibVersion",   "xfmWHTGetBufferSize_32f", "xfmWHTGetBufferSize_64f",
      "xfmDCT4GetSize_32f", "xfmDCT4Init_32f",         "xfmDCT4InitAlloc_32f",
      "xfmDCT4_32f",        "xfmDCT4Free_32f",         "xfmDCT4GetSize_64f",
      "xfmDCT4Init_64f",    "xfmDCT4InitAlloc_64f",    "xfmDCT4_64f",
      "xfmDCT4Free_64f",
  };
  return all;
}

}  // namespace xfm
