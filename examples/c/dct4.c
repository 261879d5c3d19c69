/* The DCT-IV: a state is made once, then run as often as needed. */
#include <stdio.h>

#include "xfm.h"

/* Applied twice, the transform gives the input times N/2. */
static int there_and_back(float* x, int length) {
  xfmDCT4State_32f* state;
  if (xfmDCT4InitAlloc_32f(&state, length) != xfmStsOk) return 1;
  xfmDCT4_32f(x, x, state);
  xfmDCT4_32f(x, x, state);
  xfmDCT4Free_32f(state);
  return 0;
}

static float x[1024], y[1024];

/* As docs/dct4.md has it. */
static int run(void) {
  xfmDCT4State_32f* state;
  if (xfmDCT4InitAlloc_32f(&state, 1024) != xfmStsOk) return 1;
  xfmDCT4_32f(x, y, state); /* as often as you like */
  xfmDCT4Free_32f(state);
  return 0;
}

int main(void) {
  float data[8] = {1, 2, 3, 4, 5, 6, 7, 8};
  x[0] = 1;
  if (there_and_back(data, 8) != 0 || run() != 0) return 1;
  printf("%.3f %.3f, %.3f\n", data[0], data[7], y[0]);
  return 0;
}
