/* The code of docs/from-fftw.md, checked by what it must give. tests/clients compares the calls with FFTW's.
 */
#include <math.h>
#include <stdio.h>

#include "xfm.h"
#include "xfm_lookup.h"
#include "xfm_many.h"

static void many(xfm64fc* x, int64_t xs, int64_t xd, xfm64fc* y, int64_t ys, int64_t yd, int n,
                 int64_t count) {
  /* fftw_plan_many_dft(1, &n, count, x, NULL, xs, xd, y, NULL, ys, yd, FFTW_FORWARD, ..) */
  xfmManyDFTFwd_CToC_64fc(x, xs, xd, y, ys, yd, n, count, XFM_SCALE_NONE);
}

static void many_real(double* x, int64_t xs, int64_t xd, double* y, int64_t yd, int n, int64_t count) {
  /* fftw_plan_many_dft_r2c(1, &n, count, x, NULL, xs, xd, y, NULL, 1, yd, ..): yd counts reals here */
  xfmManyDFTFwd_RToCCS_64f(x, xs, xd, y, 1, 2 * yd, n, count, XFM_SCALE_NONE);
}

static void two_dimensions(xfm64fc* x, int rows, int columns) {
  /* fftw_plan_dft_2d(rows, columns, x, x, FFTW_FORWARD, ..) */
  xfmManyDFTFwd_CToC_64fc(x, 1, columns, x, 1, columns, columns, rows, XFM_SCALE_NONE);
  xfmManyDFTFwd_CToC_64fc(x, columns, 1, x, columns, 1, rows, columns, XFM_SCALE_NONE);
}

static void pack_of_half_complex(const double* h, double* p, int n) {
  int k;
  p[0] = h[0];
  for (k = 1; 2 * k < n; ++k) {
    p[2 * k - 1] = h[k];
    p[2 * k] = h[n - k];
  }
  if (n % 2 == 0) p[n - 1] = h[n / 2];
}

static void dst4(const double* x, double* y, int n, xfmDCT4State_64f* state) {
  int j, k;
  for (j = 0; j < n; ++j) y[j] = x[n - 1 - j];
  xfmDCT4_64f(y, y, state);
  for (k = 1; k < n; k += 2) y[k] = -y[k];
}

static int check(const char* what, double greatest_error) {
  printf("%s: %s\n", what, greatest_error < 1e-12 ? "right" : "WRONG");
  return greatest_error < 1e-12 ? 0 : 1;
}

/* Ones at (1, 2) of a 4 x 6 matrix, and nothing else, are a product of two waves. */
static double error_of_matrix(void) {
  xfm64fc x[24] = {{0, 0}};
  double error = 0;
  x[1 * 6 + 2].re = 1;
  two_dimensions(x, 4, 6);
  for (int r = 0; r < 4; ++r)
    for (int c = 0; c < 6; ++c) {
      const double angle = -2 * acos(-1) * (r * 1 / 4.0 + c * 2 / 6.0);
      error = fmax(error, hypot(x[r * 6 + c].re - cos(angle), x[r * 6 + c].im - sin(angle)));
    }
  return error;
}

/* Bin 1 of three transforms of five points, which lie side by side and are written one after the other. */
static double error_of_many(void) {
  xfm64fc x[15], y[15];
  double real[15], spectrum[18], error = 0;
  for (int i = 0; i < 15; ++i) x[i] = (xfm64fc){real[i] = i * i % 7, 0};
  many(x, 3, 1, y, 1, 5, 5, 3);
  many_real(real, 3, 1, spectrum, 3, 5, 3);
  for (int t = 0; t < 3; ++t) {
    double re = 0, im = 0;
    for (int j = 0; j < 5; ++j) {
      re += real[3 * j + t] * cos(2 * acos(-1) * j / 5);
      im -= real[3 * j + t] * sin(2 * acos(-1) * j / 5);
    }
    error = fmax(error, hypot(y[5 * t + 1].re - re, y[5 * t + 1].im - im));
    error = fmax(error, hypot(spectrum[6 * t + 2] - re, spectrum[6 * t + 3] - im));
  }
  return error;
}

/* Half-complex: R0 R1 R2 R3 I2 I1. */
static double error_of_pack(void) {
  const double h[6] = {0, 1, 2, 3, -2, -1}, expected[6] = {0, 1, -1, 2, -2, 3};
  double p[6], error = 0;
  pack_of_half_complex(h, p, 6);
  for (int e = 0; e < 6; ++e) error = fmax(error, fabs(p[e] - expected[e]));
  return error;
}

static double error_of_dst4(void) {
  const double x[8] = {3, 1, 4, 1, 5, 9, 2, 6};
  double y[8], error = 0;
  xfmDCT4State_64f* state;
  if (!xfmDCT4IsServed_64f(8) || xfmDCT4InitAlloc_64f(&state, 8) != xfmStsOk) return 1;
  dst4(x, y, 8, state);
  xfmDCT4Free_64f(state);
  for (int k = 0; k < 8; ++k) {
    double sum = 0;
    for (int j = 0; j < 8; ++j) sum += x[j] * sin(acos(-1) / 8 * (j + 0.5) * (k + 0.5));
    error = fmax(error, fabs(y[k] - sum));
  }
  return error;
}

int main(void) {
  return check("matrix", error_of_matrix()) + check("many", error_of_many()) +
         check("pack", error_of_pack()) + check("DST-IV", error_of_dst4());
}
