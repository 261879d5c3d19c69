/* A consumer, in the common subset of C and C++: an impulse at place 1 must give one round of the unit
 * circle, exp(-2 pi i k / 8), and one at place 0 of a DCT-IV as cos(pi/64 (k + 1/2) / 2). */
#include <stdio.h>
#include <xfm.h>

#define HALF_ROOT 0.70710678f
#define CLOSE 1e-6f

static int near(xfm32f x, xfm32f y) { return x - y < CLOSE && y - x < CLOSE; }

static int dct4_is_wrong(void) {
  xfmDCT4State_32f* state;
  xfm32f x[64] = {1};
  xfmStatus status = xfmDCT4InitAlloc_32f(&state, 64);
  if (status == xfmStsOk) status = xfmDCT4_32f(x, x, state);
  if (status == xfmStsOk) status = xfmDCT4Free_32f(state);
  if (status == xfmStsOk && near(x[0], 0.9999247f) && near(x[31], 0.7157308f)) return 0;
  fprintf(stderr, "DCT-IV: status %d, %g, %g\n", (int)status, x[0], x[31]);
  return 1;
}

int main(void) {
  static const xfm32fc circle[8] = {{1, 0},  {HALF_ROOT, -HALF_ROOT}, {0, -1}, {-HALF_ROOT, -HALF_ROOT},
                                    {-1, 0}, {-HALF_ROOT, HALF_ROOT}, {0, 1},  {HALF_ROOT, HALF_ROOT}};
  static const xfm32fc impulse[8] = {{0, 0}, {1, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}};
  xfm32fc result[8] = {{0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}, {0, 0}};
  int wrong = 0;
  int k;

  const xfmStatus status = xfmDFTFwd_CToC_32fc(impulse, result, 8, XFM_SCALE_NONE);
  if (status != xfmStsOk) {
    fprintf(stderr, "status %d\n", (int)status);
    return 1;
  }
  for (k = 0; k < 8; ++k) {
    if (near(result[k].re, circle[k].re) && near(result[k].im, circle[k].im)) continue;
    fprintf(stderr, "X[%d] = %g %+gi\n", k, result[k].re, result[k].im);
    wrong = 1;
  }
  if (xfmGetLibVersion()->major != 6 || xfmGetLibVersion()->minor != 1) {
    fprintf(stderr, "this is %s\n", xfmGetLibVersion()->version);
    wrong = 1;
  }
  return wrong || dct4_is_wrong();
}
