// Processors with SSE4.2, since about 2009: the baseline's registers.
#include "gen/targets/target.h"

namespace xfm::gen {

Target x86_64_v2() {
  // clang-format off
  return {
      .name = "x86-64-v2",
      .folder = "glibc-hwcaps/x86-64-v2",
      .compile_flags = "-march=x86-64-v2 -mtune=generic -mfpmath=sse -mno-avx",
      .gcc_flags = "",
      .vocabulary = "src/simd/x86_64.h",
      .register_bytes = 16,
      .unaligned_is_free = false,
      .permutations = x86_64().permutations,
      .batch_register_bytes = 16,
      .batch_lanes = {4, 2, 2},
  };
  // clang-format on
}

}  // namespace xfm::gen
