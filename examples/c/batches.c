/* Batches: many transforms by one call. */
#include <stdio.h>

#include "xfm_many.h"

/* A matrix in rows, transformed in two dimensions. */
static xfmStatus transform_of_matrix(xfm32fc* x) {
  const xfmStatus rows = xfmManyDFTFwd_CToC_32fc(x, 1, 64, x, 1, 64, 64, 64, XFM_SCALE_NONE);
  if (rows != xfmStsOk) return rows;
  return xfmManyDFTFwd_CToC_32fc(x, 64, 1, x, 64, 1, 64, 64, XFM_SCALE_NONE); /* the columns */
}

/* The spectra of 48 samples each, every 12 samples of a recording. */
static xfmStatus spectra_of_frames(const float* recording, int64_t frames, float* spectra) {
  return xfmManyDFTFwd_RToCCS_32f(recording, 1, 12, spectra, 1, 50, 48, frames, XFM_SCALE_NONE);
}

/* Four channels, interleaved: the samples of a channel are four apart, the channels one. */
static xfmStatus spectra_of_channels(const double* interleaved, double* spectra) {
  return xfmManyDFTFwd_RToCCS_64f(interleaved, 4, 1, spectra, 1, 34, 32, 4, XFM_SCALE_NONE);
}

int main(void) {
  static xfm32fc matrix[64 * 64];
  static float recording[12 * 10 + 36], spectra[10 * 50];
  static double channels[4 * 32], of_channels[4 * 34];
  for (int i = 0; i < 64 * 64; ++i) matrix[i].re = 1;
  for (int i = 0; i < 12 * 10 + 36; ++i) recording[i] = (float)(i / 12);
  for (int i = 0; i < 4 * 32; ++i) channels[i] = i % 4;
  if (transform_of_matrix(matrix) != xfmStsOk || spectra_of_frames(recording, 10, spectra) != xfmStsOk ||
      spectra_of_channels(channels, of_channels) != xfmStsOk)
    return 1;
  printf("matrix %.0f\n", matrix[0].re);
  printf("frames %.0f %.0f\n", spectra[0], spectra[9 * 50]);
  printf("channels %.0f %.0f\n", of_channels[1 * 34], of_channels[3 * 34]);
  return 0;
}
