// The baseline: every x86-64 processor has SSE2. The build reads name, folder, flags and vocabulary from the
// lines below too.
#include "gen/targets/target.h"

namespace xfm::gen {

Target x86_64() {
  static const Permutation permutations[] = {
      {"shufps", 1, {0x0f, 0x0f, 0xf0, 0xf0}, {0, 1, 4, 5}},
      {"unpcklps", 1, {1 << 0, 1 << 4, 1 << 1, 1 << 5}, {0, 4, 1, 5}},
      {"unpckhps", 1, {1 << 2, 1 << 6, 1 << 3, 1 << 7}, {2, 6, 3, 7}},
      {"shufpd", 1, {0x3, 0xc}, {0, 2}},
  };
  return {
      .name = "x86-64",
      .folder = "",
      .compile_flags = "-march=x86-64 -mno-sse3 -mtune=generic",
      .vocabulary = "src/dft/vectors.h",
      .register_bytes = 16,
      .registers = 16,
      .permutations = permutations,
  };
}

}  // namespace xfm::gen
