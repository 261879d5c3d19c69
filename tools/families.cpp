#include "tools/families.h"

#include "src/dft/recipe/dft.h"
#include "src/hartley/recipe/hartley.h"
#include "src/real/recipe/real.h"
#include "src/wht/recipe/rows.h"
#include "tools/documentation.h"

namespace xfm {
namespace {

using gen::ElementType;
using gen::Precision;

Family complex_family(dft::Direction direction, const std::string& name) {
  return {.name = name,
          .types = {ElementType{Precision::binary32, true}, ElementType{Precision::binary64, true}},
          .lengths = dft::lengths(),
          .lowest = 2,
          .highest = 64,
          .vocabulary = "src/simd/x86_64.h",
          .documentation = documentation(direction),
          .make = [direction](int length, Precision precision, const std::string& tree) {
            return dft::make_kernel(length, precision, direction, tree);
          }};
}

Family real_family(real::Direction direction, real::Layout layout) {
  return {.name = real::family_name(direction, layout),
          .types = {ElementType{Precision::binary32, false}, ElementType{Precision::binary64, false}},
          .lengths = real::lengths(),
          .lowest = 2,
          .highest = 64,
          .vocabulary = "",
          .documentation = documentation(direction, layout),
          .make = [=](int length, Precision precision, const std::string& tree) {
            return real::make_kernel(length, precision, direction, layout, tree);
          }};
}

Family hartley_family() {
  return {.name = "Hartley",
          .types = {ElementType{Precision::binary32, false}, ElementType{Precision::binary64, false}},
          .lengths = hartley::lengths(),
          .lowest = 2,
          .highest = 64,
          .vocabulary = "",
          .documentation = hartley_documentation(),
          .make = hartley::make_kernel};
}

Family walsh_hadamard_family() {
  return {.name = "WHT",
          .types = {ElementType{Precision::binary32, false}, ElementType{Precision::binary64, false}},
          .lengths = wht::orders(),
          .lowest = wht::orders().front(),
          .highest = wht::orders().back(),
          .vocabulary = "",
          .documentation = walsh_hadamard_documentation(),
          .make = nullptr,
          .row = wht::row,
          .argument = "order",
          .takes_buffer = true};
}

}  // namespace

const std::vector<Family>& families() {
  static const std::vector<Family> all = {
      complex_family(dft::Direction::forward, "DFTFwd_CToC"),
      complex_family(dft::Direction::inverse, "DFTInv_CToC"),
      real_family(real::Direction::forward, real::Layout::ccs),
      real_family(real::Direction::forward, real::Layout::pack),
      real_family(real::Direction::forward, real::Layout::perm),
      real_family(real::Direction::inverse, real::Layout::ccs),
      real_family(real::Direction::inverse, real::Layout::pack),
      real_family(real::Direction::inverse, real::Layout::perm),
      hartley_family(),
      walsh_hadamard_family(),
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
