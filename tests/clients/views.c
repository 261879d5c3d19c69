/* docs/from-fftw.md: compilers let an element of the real type be part of a complex number. Each function has
 * to notice what it did through the other view. */
#include <complex.h>
#include <stdio.h>

static float complex written_as_real(float complex* number, float* part) {
  *number = 1;
  *part = 2;
  return *number;
}

static float read_as_real(float complex* number, float* part) {
  *part = 1;
  *number = 2;
  return *part;
}

int main(void) {
  /* Called through pointers that compilers cannot follow, so that they do not see that both are one. */
  float complex (*volatile write)(float complex*, float*) = written_as_real;
  float (*volatile read)(float complex*, float*) = read_as_real;
  float complex number = 0;

  const float complex written = write(&number, (float*)&number);
  const float got = read(&number, (float*)&number);
  printf("%g %g\n", crealf(written), got);
  return crealf(written) != 2 || got != 2;
}
