/* Plans without FFTW's own library. */
#include <fftw3.h>
#include <stdio.h>

static void try_length(int n) {
  fftw_complex array[200];
  const fftw_plan plan = fftw_plan_dft_1d(n, array, array, FFTW_FORWARD, FFTW_ESTIMATE);
  fprintf(stderr, "%d: %s\n", n, plan != NULL ? "planned" : "no plan");
  fftw_destroy_plan(plan);
}

int main(void) {
  try_length(8);
  try_length(100);
  try_length(200);
  fftw_forget_wisdom();
  fftw_cleanup();
  return 0;
}
