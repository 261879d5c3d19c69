// The baseline: every x86-64 processor has SSE2. CMake reads the strings below too.
//
// -march replaces an earlier -march but leaves on single extensions that an embedding project may ask for.
// Without SSE3 nothing that builds on it is left, AVX and FMA included; the others extend the integer unit.
#include "gen/targets/target.h"

namespace xfm::gen {

Target x86_64() {
  static const Permutation permutations[] = {
      {"shufps", 4, 10, {0x0f, 0x0f, 0xf0, 0xf0}, {0, 1, 4, 5}},
      {"unpcklps", 4, 10, {1 << 0, 1 << 4, 1 << 1, 1 << 5}, {0, 4, 1, 5}},
      {"unpckhps", 4, 10, {1 << 2, 1 << 6, 1 << 3, 1 << 7}, {2, 6, 3, 7}},
      {"shufpd", 8, 10, {0x3, 0xc}, {0, 2}},
  };
  // clang-format off
  return {
      .name = "x86-64",
      .folder = "",
      .compile_flags = "-march=x86-64 -mtune=generic -mfpmath=sse -mno-sse3 -mno-popcnt -mno-lzcnt -mno-bmi -mno-bmi2 -mno-movbe -mno-tbm",
      .gcc_flags = "",
      .vocabulary = "src/simd/x86_64.h",
      .register_bytes = 16,
      .unaligned_is_free = false,
      .permutations = permutations,
      .batch_register_bytes = 16,
      .batch_lanes = {4, 2, 2},
  };
  // clang-format on
}

}  // namespace xfm::gen
