/* Plans where FFTW's own library is missing, or xfm's. */
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
  {
    /* FFTW would be faster, but any plan is better than none. */
    const int n = 8;
    fftw_complex arrays[16];
    const fftw_plan plan =
        fftw_plan_many_dft(1, &n, 2, arrays, NULL, 1, 8, arrays, NULL, 1, 8, FFTW_FORWARD, FFTW_ESTIMATE);
    fprintf(stderr, "8, twice: %s\n", plan != NULL ? "planned" : "no plan");
    fftw_destroy_plan(plan);
  }
  fftw_forget_wisdom();
  fftw_cleanup();
  return 0;
}
