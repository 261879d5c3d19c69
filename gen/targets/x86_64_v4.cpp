// Processors with AVX-512 F, VL, BW, DQ and CD, since about 2017.
#include "gen/targets/target.h"

namespace xfm::gen {

Target x86_64_v4() {
  // clang-format off
  return {
      .name = "x86-64-v4",
      .folder = "glibc-hwcaps/x86-64-v4",
      .compile_flags = "-march=x86-64-v4 -mtune=generic -mfpmath=sse -mprefer-vector-width=256",
      .gcc_flags = "-fschedule-insns -fsched-pressure",
      .vocabulary = "src/simd/x86_64_v3.h",
      .register_bytes = 32,
      .registers = 32,
      .unaligned_is_free = true,
      .permutations = x86_64_v3().permutations,
  };
  // clang-format on
}

}  // namespace xfm::gen
