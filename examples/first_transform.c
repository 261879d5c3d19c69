/* The shortest program that uses the library: one forward transform of eight complex numbers, in place,
 * printed. */
#include <stdio.h>

#include "xfm.h"

int main(void) {
  xfm32fc x[8] = {{1, 0}, {2, 0}, {3, 0}, {4, 0}, {0, 1}, {0, 2}, {0, 3}, {0, 4}};

  const xfmStatus status = xfmDFTFwd_CToC_8_32fc(x, x, XFM_SCALE_NONE);
  if (status != xfmStsOk) {
    fprintf(stderr, "transform failed with status %d\n", (int)status);
    return 1;
  }

  for (int k = 0; k < 8; ++k) printf("X[%d] = %9.5f %+9.5fi\n", k, x[k].re, x[k].im);
  return 0;
}
