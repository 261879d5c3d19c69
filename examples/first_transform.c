#include <stdio.h>
#include <xfm.h>

int main(void) {
  xfm32fc x[8] = {{1, 0}, {2, 0}, {3, 0}, {4, 0}, {0, 1}, {0, 2}, {0, 3}, {0, 4}};
  if (xfmDFTFwd_CToC_8_32fc(x, x, XFM_SCALE_NONE) != xfmStsOk) return 1;
  for (int k = 0; k < 8; ++k) printf("X[%d] = %9.5f %+9.5fi\n", k, x[k].re, x[k].im);
  return 0;
}
