// The first transform on C++'s own complex numbers, by the kernel that the lookup finds for their number.
#include <complex>
#include <cstdio>
#include <vector>

#include "xfm_lookup.h"

// The standard says that an array of std::complex<float> may be accessed as an array of float with twice the
// elements; as such the kernels read and write it. docs/from-fftw.md has the details.
static xfm32fc* numbers(std::complex<float>* array) { return reinterpret_cast<xfm32fc*>(array); }

int main() {
  std::vector<std::complex<float>> x = {{1, 0}, {2, 0}, {3, 0}, {4, 0}, {0, 1}, {0, 2}, {0, 3}, {0, 4}};

  const xfmKernel_32fc transform = xfmLookupDFTFwd_CToC_32fc(static_cast<int>(x.size()));
  if (transform == nullptr) return 1;
  const xfmStatus status = transform(numbers(x.data()), numbers(x.data()), XFM_SCALE_NONE);
  if (status != xfmStsOk) {
    std::fprintf(stderr, "transform failed: %s\n", xfmStatusText(status));
    return 1;
  }

  for (std::size_t k = 0; k < x.size(); ++k)
    std::printf("X[%zu] = %9.5f %+9.5fi\n", k, double{x[k].real()}, double{x[k].imag()});
  return 0;
}
