// Processors with AVX-512 F, VL, BW, DQ and CD, since about 2017. Kernels have registers of 256 bits. Batches
// use those of 512 bits in real transforms, wherever they compute in binary64: that gains up to a third. In
// binary32 it would gain a twentieth, and leave twice as many transforms of a count to partly filled
// registers; batches of complex binary64 numbers would have outgrown the nearest cache.
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
      .unaligned_is_free = true,
      .permutations = x86_64_v3().permutations,
      .batch_register_bytes = 64,
      .batch_lanes = {8, 8, 4},
  };
  // clang-format on
}

}  // namespace xfm::gen
