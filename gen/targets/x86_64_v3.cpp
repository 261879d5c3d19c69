// Processors with AVX2, since about 2013. Two registers of 256 bits: instructions that move numbers within
// each half of 128 bits are cheaper than those that cross the middle.
//
// g++ orders operations only after it has given out registers unless asked to. With instructions of three
// operands it gains three percent if it does so before, watching the registers; with those of two it loses
// ten.
#include "gen/targets/target.h"

namespace xfm::gen {

Target x86_64_v3() {
  static const Permutation permutations[] = {
      {"vblendpd", 8, 7, {0x11, 0x22, 0x44, 0x88}, {0, 1, 2, 3}},
      {"shufps", 4, 10, {0x0f, 0x0f, 0xf0, 0xf0}, {0, 1, 4, 5}},
      {"unpcklps", 4, 10, {1 << 0, 1 << 4, 1 << 1, 1 << 5}, {0, 4, 1, 5}},
      {"unpckhps", 4, 10, {1 << 2, 1 << 6, 1 << 3, 1 << 7}, {2, 6, 3, 7}},
      {"shufpd", 8, 10, {0x3, 0xc}, {0, 2}},
      {"vshufpd", 8, 10, {0x03, 0x30, 0x0c, 0xc0}, {0, 4, 2, 6}},
      {"vpermilps", 4, 10, {0x0f, 0x0f, 0x0f, 0x0f, 0xf0, 0xf0, 0xf0, 0xf0}, {0, 1, 2, 3, 4, 5, 6, 7}},
      {"vinsertf128", 8, 11, {1 << 0, 1 << 1, 1 << 4, 1 << 5}, {0, 1, 4, 5}},
      {"vperm2f128", 8, 12, {1 << 2, 1 << 3, 1 << 6, 1 << 7}, {2, 3, 6, 7}},
      {"vperm2f128", 8, 12, {1 << 2, 1 << 3, 1 << 4, 1 << 5}, {2, 3, 4, 5}},
      {"vpermpd", 8, 13, {0x0f, 0x0f, 0x0f, 0x0f}, {0, 1, 2, 3}},
  };
  // clang-format off
  return {
      .name = "x86-64-v3",
      .folder = "glibc-hwcaps/x86-64-v3",
      .compile_flags = "-march=x86-64-v3 -mtune=generic -mfpmath=sse -mno-avx512f",
      .gcc_flags = "-fschedule-insns -fsched-pressure",
      .vocabulary = "src/simd/x86_64_v3.h",
      .register_bytes = 32,
      .unaligned_is_free = true,
      .permutations = permutations,
      .batch_register_bytes = 32,
      .batch_lanes = {8, 4, 4},
  };
  // clang-format on
}

}  // namespace xfm::gen
