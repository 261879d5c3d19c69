/* A stranger's program, in the common part of C and C++: an impulse at place 1 must come out as one turn of
 * the unit circle, exp(-2 pi i k / 8). */
#include <stdio.h>
#include <xfm.h>

#define HALF_ROOT 0.70710678f
#define CLOSE 1e-6f

static int near(xfm32f x, xfm32f y) { return x - y < CLOSE && y - x < CLOSE; }

int main(void) {
  static const xfm32fc turn[8] = {{1, 0},  {HALF_ROOT, -HALF_ROOT}, {0, -1}, {-HALF_ROOT, -HALF_ROOT},
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
    if (near(result[k].re, turn[k].re) && near(result[k].im, turn[k].im)) continue;
    fprintf(stderr, "X[%d] = %g %+gi\n", k, result[k].re, result[k].im);
    wrong = 1;
  }
  if (xfmGetLibVersion()->major != 6 || xfmGetLibVersion()->minor != 1) {
    fprintf(stderr, "this is %s\n", xfmGetLibVersion()->version);
    wrong = 1;
  }
  return wrong;
}
