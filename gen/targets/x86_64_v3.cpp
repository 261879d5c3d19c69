// Processors with AVX2, since about 2013.
#include "gen/targets/target.h"

namespace xfm::gen {

Target x86_64_v3() {
  // clang-format off
  return {
      .name = "x86-64-v3",
      .folder = "glibc-hwcaps/x86-64-v3",
      .compile_flags = "-march=x86-64-v3 -mtune=generic -mfpmath=sse -mno-avx512f",
      .vocabulary = "src/simd/x86_64_v3.h",
      .register_bytes = 32,
      .registers = 16,
      .unaligned_is_free = true,
      .permutations = x86_64().permutations,
  };
  // clang-format on
}

}  // namespace xfm::gen
