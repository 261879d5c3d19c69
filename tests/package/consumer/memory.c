/* A stranger's program that wants nothing of xfm but its core, in the common part of C and C++. */
#include <stdint.h>
#include <stdio.h>
#include <xfmcore.h>

int main(void) {
  void* const block = xfmMalloc(1000);
  const int aligned = block != NULL && (uintptr_t)block % 64 == 0;
  if (!aligned) fprintf(stderr, "the block is at %p\n", block);
  xfmFree(block);
  return !aligned;
}
