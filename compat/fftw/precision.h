// Every source of this folder is compiled once for each precision. Here are the names that differ.
#pragma once

#pragma GCC visibility push(default)
#include <fftw3.h>
#pragma GCC visibility pop

#include "xfm.h"
#include "xfm_lookup.h"
#include "xfm_many.h"

#ifdef XFM_FFTW_SINGLE
#define X(name) fftwf_##name
#define XFM_FFTW_FORTRAN(name) sfftw_##name
#define XFM_FFTW_NAME "fftw3f"
using Real = xfm32f;
using Complex = xfm32fc;
#define XFM_REAL(name) name##_32f
#define XFM_COMPLEX(name) name##_32fc
#define XFM_FFTW_REAL "32f"
#define XFM_FFTW_COMPLEX "32fc"
#else
#define X(name) fftw_##name
#define XFM_FFTW_FORTRAN(name) dfftw_##name
#define XFM_FFTW_NAME "fftw3"
using Real = xfm64f;
using Complex = xfm64fc;
#define XFM_REAL(name) name##_64f
#define XFM_COMPLEX(name) name##_64fc
#define XFM_FFTW_REAL "64f"
#define XFM_FFTW_COMPLEX "64fc"
#endif

using RealKernel = XFM_REAL(xfmKernel);
using ComplexKernel = XFM_COMPLEX(xfmKernel);
using RealBatch = decltype(&XFM_REAL(xfmManyHartley));
using ComplexBatch = decltype(&XFM_COMPLEX(xfmManyDFTFwd_CToC));
using Dct4State = XFM_REAL(xfmDCT4State);

// FFTW's complex type is two reals.
inline Real* reals(X(complex) * array) { return reinterpret_cast<Real*>(array); }
