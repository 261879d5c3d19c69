/* The first transform on an array of C99's own complex numbers. */
#include <complex.h>
#include <stdio.h>

#include "xfm.h"

/* A complex number of C and one of xfm are both two values of the real type, the real part first, and aligned
 * as these. docs/from-fftw.md says what a compiler may assume of the two views. */
static xfm32fc* numbers(float complex* array) { return (xfm32fc*)array; }

int main(void) {
  float complex x[8] = {1, 2, 3, 4, 1 * I, 2 * I, 3 * I, 4 * I};

  const xfmStatus status = xfmDFTFwd_CToC_8_32fc(numbers(x), numbers(x), XFM_SCALE_NONE);
  if (status != xfmStsOk) {
    fprintf(stderr, "transform failed with status %d\n", (int)status);
    return 1;
  }

  for (int k = 0; k < 8; ++k) printf("X[%d] = %9.5f %+9.5fi\n", k, crealf(x[k]), cimagf(x[k]));
  return 0;
}
