/* The lookup as C sees it: the same kernels as from C++. */
#include "xfm_lookup.h"

xfmKernel_32fc found_in_c(int32_t length);
xfmKernel_32fc found_in_c(int32_t length) { return xfmLookupDFTFwd_CToC_32fc(length); }
