/* A length that is known only at run time: by the generic function, or by a pointer to the kernel. */
#include <stdio.h>

#include "xfm_lookup.h"

static int transform_all(xfm32fc (*frames)[20], int count, int length) {
  const xfmKernel_32fc transform = xfmLookupDFTFwd_CToC_32fc(length);
  if (transform == NULL) return 1; /* not served */
  for (int i = 0; i < count; ++i) transform(frames[i], frames[i], XFM_SCALE_NONE);
  return 0;
}

int main(void) {
  xfm32fc frames[3][20] = {{{1, 0}}, {{2, 0}}, {{3, 0}}};
  const int refused = transform_all(frames, 3, 65);
  const int served = transform_all(frames, 3, 20);
  const xfmStatus status = xfmDFTFwd_CToC_32fc(frames[0], frames[0], 65, XFM_SCALE_NONE);
  printf("%d %d, %.0f; %s\n", refused, served, frames[2][19].re, xfmStatusText(status));
  return 0;
}
