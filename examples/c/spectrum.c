#include <math.h>
#include <stdio.h>
#include <xfm.h>

int main(void) {
  float samples[48], spectrum[50];
  for (int n = 0; n < 48; ++n) samples[n] = cosf(2 * 3.14159265f * 5 / 48 * (float)n); /* five periods */

  if (xfmDFTFwd_RToCCS_48_32f(samples, spectrum, XFM_SCALE_FWD_BY_N) != xfmStsOk) return 1;

  for (int k = 0; k <= 24; ++k) { /* bin k: real part, imaginary part */
    const float magnitude = hypotf(spectrum[2 * k], spectrum[2 * k + 1]);
    if (magnitude > 0.1f) printf("bin %d: %.2f\n", k, magnitude);
  }
  return 0;
}
