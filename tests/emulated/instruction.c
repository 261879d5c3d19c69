/* Executes one instruction of the feature that it is called with, and returns 0 if it got over it. */
#include <stdio.h>
#include <string.h>

#define FEATURE(name, instruction)                                 \
  if (strcmp(argv[1], name) == 0) {                                \
    __asm__ volatile(instruction ::: "xmm0", "xmm1", "eax", "cc"); \
    return puts(name) < 0;                                         \
  }

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  FEATURE("sse2", "addpd %%xmm0, %%xmm1")
  FEATURE("sse3", "movddup %%xmm0, %%xmm1")
  FEATURE("ssse3", "pshufb %%xmm0, %%xmm1")
  FEATURE("sse4_1", "blendps $1, %%xmm0, %%xmm1")
  FEATURE("sse4_2", "pcmpgtq %%xmm0, %%xmm1")
  FEATURE("popcnt", "popcnt %%eax, %%eax")
  FEATURE("avx", "vaddps %%xmm0, %%xmm1, %%xmm1")
  FEATURE("avx2", "vpermpd $0, %%ymm0, %%ymm1")
  FEATURE("fma", "vfmadd231ps %%xmm0, %%xmm0, %%xmm1")
  FEATURE("bmi2", "rorx $1, %%eax, %%eax")
  FEATURE("f16c", "vcvtph2ps %%xmm0, %%xmm1")
  FEATURE("movbe", "movbe -8(%%rsp), %%eax")
  FEATURE("avx512f", "vaddps %%zmm0, %%zmm1, %%zmm1")
  FEATURE("avx512vl", "vpermt2ps %%ymm0, %%ymm0, %%ymm1")
  FEATURE("avx512dq", "vbroadcastf32x2 %%xmm0, %%ymm1")
  fprintf(stderr, "no instruction of %s\n", argv[1]);
  return 2;
}
