/* A consumer of batches, in the common subset of C and C++: three transforms side by side, of impulses at
 * place 0. */
#include <stdio.h>
#include <xfm_many.h>

#define LENGTH 4
#define COUNT 3

int main(void) {
  xfm32f x[LENGTH * COUNT] = {1, 2, 3};
  int k, t, wrong = 0;

  const xfmStatus status = xfmManyHartley_32f(x, COUNT, 1, x, COUNT, 1, LENGTH, COUNT, XFM_SCALE_NONE);
  if (status != xfmStsOk) {
    fprintf(stderr, "status %d\n", (int)status);
    return 1;
  }
  for (k = 0; k < LENGTH; ++k) {
    for (t = 0; t < COUNT; ++t) {
      if (x[k * COUNT + t] == (xfm32f)(t + 1)) continue;
      fprintf(stderr, "H[%d] of %d = %g\n", k, t, x[k * COUNT + t]);
      wrong = 1;
    }
  }
  return wrong;
}
