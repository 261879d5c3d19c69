/* A consumer that uses only the core of xfm, in the common subset of C and C++. */
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
