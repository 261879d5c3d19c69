// xfm's own libraries, found when the first transform asks for them: programs that FFTW serves start without
// them, and those of single transforms without that of batches.
#pragma once

#include "precision.h"

/// Thrown by all functions below if a library or what is asked of it is not there. The first time that a
/// library is missed, stderr has it.
struct OursMissing {};

/// The kernel of a family at a length, and the batches of a family, by names as in "DFTFwd_CToC".
ComplexKernel complex_kernel(const char* family, int length);
RealKernel real_kernel(const char* family, int length);
ComplexBatch complex_batch(const char* family);
RealBatch real_batch(const char* family);

struct Dct4Functions {
  decltype(&XFM_REAL(xfmDCT4InitAlloc)) init;
  decltype(&XFM_REAL(xfmDCT4)) run;
  decltype(&XFM_REAL(xfmDCT4Free)) free;
};
const Dct4Functions& dct4_functions();
