/* Real transforms and back, in the memory of the samples. */
#include <math.h>
#include <stdio.h>

#include "xfm.h"

/* In Pack the mean is element 0. There are as many elements as samples, so one array does for both. */
static xfmStatus remove_mean(double* samples) {
  const xfmStatus status = xfmDFTFwd_RToPack_60_64f(samples, samples, XFM_SCALE_INV_BY_N);
  if (status != xfmStsOk) return status;
  samples[0] = 0;
  return xfmDFTInv_PackToR_60_64f(samples, samples, XFM_SCALE_INV_BY_N);
}

int main(void) {
  double samples[60], mean = 0;
  for (int n = 0; n < 60; ++n) samples[n] = n;
  if (remove_mean(samples) != xfmStsOk) return 1;
  for (int n = 0; n < 60; ++n) mean += samples[n] / 60;
  printf("%.1f .. %.1f, mean %.1f\n", samples[0], samples[59], fabs(mean));
  return 0;
}
