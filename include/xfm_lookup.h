/* clang-format off */
/**
 * @file xfm_lookup.h
 * @brief xfm: the kernel of a length as a pointer, a text for a status, and which lengths are DCT-IVs.
 *
 * For programs that learn a length at run time and then transform many times:
 *
 *     const xfmKernel_32fc transform = xfmLookupDFTFwd_CToC_32fc(length);
 *     if (transform == NULL) return unserved(length);
 *     for (i = 0; i < count; ++i) transform(frames[i], frames[i], XFM_SCALE_NONE);
 *
 * The pointer is that of the function in xfm.h, so what is said there of the family holds. A program that is linked with
 * a static library, and asks for a length that the compiler does not know, gets the kernels of all lengths, as it does by
 * a generic function. Where the length is known, name the kernel itself.
 *
 * Everything is in this header, and libxfm exports none of it. A function that is not called leaves nothing in the
 * program. Any number of threads may call all functions at once.
 */
/* The functions below are written by xfmgen from the list of families: build the target "header" to renew them. */
#ifndef XFM_LOOKUP_H
#define XFM_LOOKUP_H

#include <stddef.h>

#include "xfm.h"

/** @cond */
/* In C every file has its own copy. In C++ inline functions may call these, so they must be the same in every file;
 * hidden, so that a library which includes this header does not export them. */
#ifdef __cplusplus
#define XFM_LOOKUP_INLINE inline
#define XFM_LOOKUP_NONE nullptr
extern "C" {
#else
#define XFM_LOOKUP_INLINE static inline
#define XFM_LOOKUP_NONE NULL
#endif
/** @endcond */
#if defined(__GNUC__)
#pragma GCC visibility push(hidden)
#endif

/** @name Kernels
 * Functions for one length. Those of Walsh-Hadamard transforms take a work buffer as well.
 * @{ */
/** Complex transforms, binary32. */
typedef xfmStatus (*xfmKernel_32fc)(const xfm32fc* src, xfm32fc* dst, int32_t flag);
/** Complex transforms, binary64. */
typedef xfmStatus (*xfmKernel_64fc)(const xfm64fc* src, xfm64fc* dst, int32_t flag);
/** Real and Hartley transforms, binary32. */
typedef xfmStatus (*xfmKernel_32f)(const xfm32f* src, xfm32f* dst, int32_t flag);
/** Real and Hartley transforms, binary64. */
typedef xfmStatus (*xfmKernel_64f)(const xfm64f* src, xfm64f* dst, int32_t flag);
/** Walsh-Hadamard transforms, binary32. */
typedef xfmStatus (*xfmKernelWHT_32f)(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
/** Walsh-Hadamard transforms, binary64. */
typedef xfmStatus (*xfmKernelWHT_64f)(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
/** @} */

/** @name Lookup DFTFwd_CToC
 * @{ */
/** The kernel xfmDFTFwd_CToC_N_32fc, or xfmDFTFwd_CToC_N_64fc, of this length N, 2 to 64; null for any other. */
XFM_LOOKUP_INLINE xfmKernel_32fc xfmLookupDFTFwd_CToC_32fc(int32_t length) {
  static const xfmKernel_32fc kernels[] = {
    xfmDFTFwd_CToC_2_32fc, xfmDFTFwd_CToC_3_32fc, xfmDFTFwd_CToC_4_32fc, xfmDFTFwd_CToC_5_32fc, xfmDFTFwd_CToC_6_32fc,
    xfmDFTFwd_CToC_7_32fc, xfmDFTFwd_CToC_8_32fc, xfmDFTFwd_CToC_9_32fc, xfmDFTFwd_CToC_10_32fc, xfmDFTFwd_CToC_11_32fc,
    xfmDFTFwd_CToC_12_32fc, xfmDFTFwd_CToC_13_32fc, xfmDFTFwd_CToC_14_32fc, xfmDFTFwd_CToC_15_32fc,
    xfmDFTFwd_CToC_16_32fc, xfmDFTFwd_CToC_17_32fc, xfmDFTFwd_CToC_18_32fc, xfmDFTFwd_CToC_19_32fc,
    xfmDFTFwd_CToC_20_32fc, xfmDFTFwd_CToC_21_32fc, xfmDFTFwd_CToC_22_32fc, xfmDFTFwd_CToC_23_32fc,
    xfmDFTFwd_CToC_24_32fc, xfmDFTFwd_CToC_25_32fc, xfmDFTFwd_CToC_26_32fc, xfmDFTFwd_CToC_27_32fc,
    xfmDFTFwd_CToC_28_32fc, xfmDFTFwd_CToC_29_32fc, xfmDFTFwd_CToC_30_32fc, xfmDFTFwd_CToC_31_32fc,
    xfmDFTFwd_CToC_32_32fc, xfmDFTFwd_CToC_33_32fc, xfmDFTFwd_CToC_34_32fc, xfmDFTFwd_CToC_35_32fc,
    xfmDFTFwd_CToC_36_32fc, xfmDFTFwd_CToC_37_32fc, xfmDFTFwd_CToC_38_32fc, xfmDFTFwd_CToC_39_32fc,
    xfmDFTFwd_CToC_40_32fc, xfmDFTFwd_CToC_41_32fc, xfmDFTFwd_CToC_42_32fc, xfmDFTFwd_CToC_43_32fc,
    xfmDFTFwd_CToC_44_32fc, xfmDFTFwd_CToC_45_32fc, xfmDFTFwd_CToC_46_32fc, xfmDFTFwd_CToC_47_32fc,
    xfmDFTFwd_CToC_48_32fc, xfmDFTFwd_CToC_49_32fc, xfmDFTFwd_CToC_50_32fc, xfmDFTFwd_CToC_51_32fc,
    xfmDFTFwd_CToC_52_32fc, xfmDFTFwd_CToC_53_32fc, xfmDFTFwd_CToC_54_32fc, xfmDFTFwd_CToC_55_32fc,
    xfmDFTFwd_CToC_56_32fc, xfmDFTFwd_CToC_57_32fc, xfmDFTFwd_CToC_58_32fc, xfmDFTFwd_CToC_59_32fc,
    xfmDFTFwd_CToC_60_32fc, xfmDFTFwd_CToC_61_32fc, xfmDFTFwd_CToC_62_32fc, xfmDFTFwd_CToC_63_32fc,
    xfmDFTFwd_CToC_64_32fc,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
XFM_LOOKUP_INLINE xfmKernel_64fc xfmLookupDFTFwd_CToC_64fc(int32_t length) {
  static const xfmKernel_64fc kernels[] = {
    xfmDFTFwd_CToC_2_64fc, xfmDFTFwd_CToC_3_64fc, xfmDFTFwd_CToC_4_64fc, xfmDFTFwd_CToC_5_64fc, xfmDFTFwd_CToC_6_64fc,
    xfmDFTFwd_CToC_7_64fc, xfmDFTFwd_CToC_8_64fc, xfmDFTFwd_CToC_9_64fc, xfmDFTFwd_CToC_10_64fc, xfmDFTFwd_CToC_11_64fc,
    xfmDFTFwd_CToC_12_64fc, xfmDFTFwd_CToC_13_64fc, xfmDFTFwd_CToC_14_64fc, xfmDFTFwd_CToC_15_64fc,
    xfmDFTFwd_CToC_16_64fc, xfmDFTFwd_CToC_17_64fc, xfmDFTFwd_CToC_18_64fc, xfmDFTFwd_CToC_19_64fc,
    xfmDFTFwd_CToC_20_64fc, xfmDFTFwd_CToC_21_64fc, xfmDFTFwd_CToC_22_64fc, xfmDFTFwd_CToC_23_64fc,
    xfmDFTFwd_CToC_24_64fc, xfmDFTFwd_CToC_25_64fc, xfmDFTFwd_CToC_26_64fc, xfmDFTFwd_CToC_27_64fc,
    xfmDFTFwd_CToC_28_64fc, xfmDFTFwd_CToC_29_64fc, xfmDFTFwd_CToC_30_64fc, xfmDFTFwd_CToC_31_64fc,
    xfmDFTFwd_CToC_32_64fc, xfmDFTFwd_CToC_33_64fc, xfmDFTFwd_CToC_34_64fc, xfmDFTFwd_CToC_35_64fc,
    xfmDFTFwd_CToC_36_64fc, xfmDFTFwd_CToC_37_64fc, xfmDFTFwd_CToC_38_64fc, xfmDFTFwd_CToC_39_64fc,
    xfmDFTFwd_CToC_40_64fc, xfmDFTFwd_CToC_41_64fc, xfmDFTFwd_CToC_42_64fc, xfmDFTFwd_CToC_43_64fc,
    xfmDFTFwd_CToC_44_64fc, xfmDFTFwd_CToC_45_64fc, xfmDFTFwd_CToC_46_64fc, xfmDFTFwd_CToC_47_64fc,
    xfmDFTFwd_CToC_48_64fc, xfmDFTFwd_CToC_49_64fc, xfmDFTFwd_CToC_50_64fc, xfmDFTFwd_CToC_51_64fc,
    xfmDFTFwd_CToC_52_64fc, xfmDFTFwd_CToC_53_64fc, xfmDFTFwd_CToC_54_64fc, xfmDFTFwd_CToC_55_64fc,
    xfmDFTFwd_CToC_56_64fc, xfmDFTFwd_CToC_57_64fc, xfmDFTFwd_CToC_58_64fc, xfmDFTFwd_CToC_59_64fc,
    xfmDFTFwd_CToC_60_64fc, xfmDFTFwd_CToC_61_64fc, xfmDFTFwd_CToC_62_64fc, xfmDFTFwd_CToC_63_64fc,
    xfmDFTFwd_CToC_64_64fc,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
/** @} */

/** @name Lookup DFTInv_CToC
 * @{ */
/** The kernel xfmDFTInv_CToC_N_32fc, or xfmDFTInv_CToC_N_64fc, of this length N, 2 to 64; null for any other. */
XFM_LOOKUP_INLINE xfmKernel_32fc xfmLookupDFTInv_CToC_32fc(int32_t length) {
  static const xfmKernel_32fc kernels[] = {
    xfmDFTInv_CToC_2_32fc, xfmDFTInv_CToC_3_32fc, xfmDFTInv_CToC_4_32fc, xfmDFTInv_CToC_5_32fc, xfmDFTInv_CToC_6_32fc,
    xfmDFTInv_CToC_7_32fc, xfmDFTInv_CToC_8_32fc, xfmDFTInv_CToC_9_32fc, xfmDFTInv_CToC_10_32fc, xfmDFTInv_CToC_11_32fc,
    xfmDFTInv_CToC_12_32fc, xfmDFTInv_CToC_13_32fc, xfmDFTInv_CToC_14_32fc, xfmDFTInv_CToC_15_32fc,
    xfmDFTInv_CToC_16_32fc, xfmDFTInv_CToC_17_32fc, xfmDFTInv_CToC_18_32fc, xfmDFTInv_CToC_19_32fc,
    xfmDFTInv_CToC_20_32fc, xfmDFTInv_CToC_21_32fc, xfmDFTInv_CToC_22_32fc, xfmDFTInv_CToC_23_32fc,
    xfmDFTInv_CToC_24_32fc, xfmDFTInv_CToC_25_32fc, xfmDFTInv_CToC_26_32fc, xfmDFTInv_CToC_27_32fc,
    xfmDFTInv_CToC_28_32fc, xfmDFTInv_CToC_29_32fc, xfmDFTInv_CToC_30_32fc, xfmDFTInv_CToC_31_32fc,
    xfmDFTInv_CToC_32_32fc, xfmDFTInv_CToC_33_32fc, xfmDFTInv_CToC_34_32fc, xfmDFTInv_CToC_35_32fc,
    xfmDFTInv_CToC_36_32fc, xfmDFTInv_CToC_37_32fc, xfmDFTInv_CToC_38_32fc, xfmDFTInv_CToC_39_32fc,
    xfmDFTInv_CToC_40_32fc, xfmDFTInv_CToC_41_32fc, xfmDFTInv_CToC_42_32fc, xfmDFTInv_CToC_43_32fc,
    xfmDFTInv_CToC_44_32fc, xfmDFTInv_CToC_45_32fc, xfmDFTInv_CToC_46_32fc, xfmDFTInv_CToC_47_32fc,
    xfmDFTInv_CToC_48_32fc, xfmDFTInv_CToC_49_32fc, xfmDFTInv_CToC_50_32fc, xfmDFTInv_CToC_51_32fc,
    xfmDFTInv_CToC_52_32fc, xfmDFTInv_CToC_53_32fc, xfmDFTInv_CToC_54_32fc, xfmDFTInv_CToC_55_32fc,
    xfmDFTInv_CToC_56_32fc, xfmDFTInv_CToC_57_32fc, xfmDFTInv_CToC_58_32fc, xfmDFTInv_CToC_59_32fc,
    xfmDFTInv_CToC_60_32fc, xfmDFTInv_CToC_61_32fc, xfmDFTInv_CToC_62_32fc, xfmDFTInv_CToC_63_32fc,
    xfmDFTInv_CToC_64_32fc,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
XFM_LOOKUP_INLINE xfmKernel_64fc xfmLookupDFTInv_CToC_64fc(int32_t length) {
  static const xfmKernel_64fc kernels[] = {
    xfmDFTInv_CToC_2_64fc, xfmDFTInv_CToC_3_64fc, xfmDFTInv_CToC_4_64fc, xfmDFTInv_CToC_5_64fc, xfmDFTInv_CToC_6_64fc,
    xfmDFTInv_CToC_7_64fc, xfmDFTInv_CToC_8_64fc, xfmDFTInv_CToC_9_64fc, xfmDFTInv_CToC_10_64fc, xfmDFTInv_CToC_11_64fc,
    xfmDFTInv_CToC_12_64fc, xfmDFTInv_CToC_13_64fc, xfmDFTInv_CToC_14_64fc, xfmDFTInv_CToC_15_64fc,
    xfmDFTInv_CToC_16_64fc, xfmDFTInv_CToC_17_64fc, xfmDFTInv_CToC_18_64fc, xfmDFTInv_CToC_19_64fc,
    xfmDFTInv_CToC_20_64fc, xfmDFTInv_CToC_21_64fc, xfmDFTInv_CToC_22_64fc, xfmDFTInv_CToC_23_64fc,
    xfmDFTInv_CToC_24_64fc, xfmDFTInv_CToC_25_64fc, xfmDFTInv_CToC_26_64fc, xfmDFTInv_CToC_27_64fc,
    xfmDFTInv_CToC_28_64fc, xfmDFTInv_CToC_29_64fc, xfmDFTInv_CToC_30_64fc, xfmDFTInv_CToC_31_64fc,
    xfmDFTInv_CToC_32_64fc, xfmDFTInv_CToC_33_64fc, xfmDFTInv_CToC_34_64fc, xfmDFTInv_CToC_35_64fc,
    xfmDFTInv_CToC_36_64fc, xfmDFTInv_CToC_37_64fc, xfmDFTInv_CToC_38_64fc, xfmDFTInv_CToC_39_64fc,
    xfmDFTInv_CToC_40_64fc, xfmDFTInv_CToC_41_64fc, xfmDFTInv_CToC_42_64fc, xfmDFTInv_CToC_43_64fc,
    xfmDFTInv_CToC_44_64fc, xfmDFTInv_CToC_45_64fc, xfmDFTInv_CToC_46_64fc, xfmDFTInv_CToC_47_64fc,
    xfmDFTInv_CToC_48_64fc, xfmDFTInv_CToC_49_64fc, xfmDFTInv_CToC_50_64fc, xfmDFTInv_CToC_51_64fc,
    xfmDFTInv_CToC_52_64fc, xfmDFTInv_CToC_53_64fc, xfmDFTInv_CToC_54_64fc, xfmDFTInv_CToC_55_64fc,
    xfmDFTInv_CToC_56_64fc, xfmDFTInv_CToC_57_64fc, xfmDFTInv_CToC_58_64fc, xfmDFTInv_CToC_59_64fc,
    xfmDFTInv_CToC_60_64fc, xfmDFTInv_CToC_61_64fc, xfmDFTInv_CToC_62_64fc, xfmDFTInv_CToC_63_64fc,
    xfmDFTInv_CToC_64_64fc,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
/** @} */

/** @name Lookup DFTFwd_RToCCS
 * @{ */
/** The kernel xfmDFTFwd_RToCCS_N_32f, or xfmDFTFwd_RToCCS_N_64f, of this length N, 2 to 64; null for any other. */
XFM_LOOKUP_INLINE xfmKernel_32f xfmLookupDFTFwd_RToCCS_32f(int32_t length) {
  static const xfmKernel_32f kernels[] = {
    xfmDFTFwd_RToCCS_2_32f, xfmDFTFwd_RToCCS_3_32f, xfmDFTFwd_RToCCS_4_32f, xfmDFTFwd_RToCCS_5_32f,
    xfmDFTFwd_RToCCS_6_32f, xfmDFTFwd_RToCCS_7_32f, xfmDFTFwd_RToCCS_8_32f, xfmDFTFwd_RToCCS_9_32f,
    xfmDFTFwd_RToCCS_10_32f, xfmDFTFwd_RToCCS_11_32f, xfmDFTFwd_RToCCS_12_32f, xfmDFTFwd_RToCCS_13_32f,
    xfmDFTFwd_RToCCS_14_32f, xfmDFTFwd_RToCCS_15_32f, xfmDFTFwd_RToCCS_16_32f, xfmDFTFwd_RToCCS_17_32f,
    xfmDFTFwd_RToCCS_18_32f, xfmDFTFwd_RToCCS_19_32f, xfmDFTFwd_RToCCS_20_32f, xfmDFTFwd_RToCCS_21_32f,
    xfmDFTFwd_RToCCS_22_32f, xfmDFTFwd_RToCCS_23_32f, xfmDFTFwd_RToCCS_24_32f, xfmDFTFwd_RToCCS_25_32f,
    xfmDFTFwd_RToCCS_26_32f, xfmDFTFwd_RToCCS_27_32f, xfmDFTFwd_RToCCS_28_32f, xfmDFTFwd_RToCCS_29_32f,
    xfmDFTFwd_RToCCS_30_32f, xfmDFTFwd_RToCCS_31_32f, xfmDFTFwd_RToCCS_32_32f, xfmDFTFwd_RToCCS_33_32f,
    xfmDFTFwd_RToCCS_34_32f, xfmDFTFwd_RToCCS_35_32f, xfmDFTFwd_RToCCS_36_32f, xfmDFTFwd_RToCCS_37_32f,
    xfmDFTFwd_RToCCS_38_32f, xfmDFTFwd_RToCCS_39_32f, xfmDFTFwd_RToCCS_40_32f, xfmDFTFwd_RToCCS_41_32f,
    xfmDFTFwd_RToCCS_42_32f, xfmDFTFwd_RToCCS_43_32f, xfmDFTFwd_RToCCS_44_32f, xfmDFTFwd_RToCCS_45_32f,
    xfmDFTFwd_RToCCS_46_32f, xfmDFTFwd_RToCCS_47_32f, xfmDFTFwd_RToCCS_48_32f, xfmDFTFwd_RToCCS_49_32f,
    xfmDFTFwd_RToCCS_50_32f, xfmDFTFwd_RToCCS_51_32f, xfmDFTFwd_RToCCS_52_32f, xfmDFTFwd_RToCCS_53_32f,
    xfmDFTFwd_RToCCS_54_32f, xfmDFTFwd_RToCCS_55_32f, xfmDFTFwd_RToCCS_56_32f, xfmDFTFwd_RToCCS_57_32f,
    xfmDFTFwd_RToCCS_58_32f, xfmDFTFwd_RToCCS_59_32f, xfmDFTFwd_RToCCS_60_32f, xfmDFTFwd_RToCCS_61_32f,
    xfmDFTFwd_RToCCS_62_32f, xfmDFTFwd_RToCCS_63_32f, xfmDFTFwd_RToCCS_64_32f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
XFM_LOOKUP_INLINE xfmKernel_64f xfmLookupDFTFwd_RToCCS_64f(int32_t length) {
  static const xfmKernel_64f kernels[] = {
    xfmDFTFwd_RToCCS_2_64f, xfmDFTFwd_RToCCS_3_64f, xfmDFTFwd_RToCCS_4_64f, xfmDFTFwd_RToCCS_5_64f,
    xfmDFTFwd_RToCCS_6_64f, xfmDFTFwd_RToCCS_7_64f, xfmDFTFwd_RToCCS_8_64f, xfmDFTFwd_RToCCS_9_64f,
    xfmDFTFwd_RToCCS_10_64f, xfmDFTFwd_RToCCS_11_64f, xfmDFTFwd_RToCCS_12_64f, xfmDFTFwd_RToCCS_13_64f,
    xfmDFTFwd_RToCCS_14_64f, xfmDFTFwd_RToCCS_15_64f, xfmDFTFwd_RToCCS_16_64f, xfmDFTFwd_RToCCS_17_64f,
    xfmDFTFwd_RToCCS_18_64f, xfmDFTFwd_RToCCS_19_64f, xfmDFTFwd_RToCCS_20_64f, xfmDFTFwd_RToCCS_21_64f,
    xfmDFTFwd_RToCCS_22_64f, xfmDFTFwd_RToCCS_23_64f, xfmDFTFwd_RToCCS_24_64f, xfmDFTFwd_RToCCS_25_64f,
    xfmDFTFwd_RToCCS_26_64f, xfmDFTFwd_RToCCS_27_64f, xfmDFTFwd_RToCCS_28_64f, xfmDFTFwd_RToCCS_29_64f,
    xfmDFTFwd_RToCCS_30_64f, xfmDFTFwd_RToCCS_31_64f, xfmDFTFwd_RToCCS_32_64f, xfmDFTFwd_RToCCS_33_64f,
    xfmDFTFwd_RToCCS_34_64f, xfmDFTFwd_RToCCS_35_64f, xfmDFTFwd_RToCCS_36_64f, xfmDFTFwd_RToCCS_37_64f,
    xfmDFTFwd_RToCCS_38_64f, xfmDFTFwd_RToCCS_39_64f, xfmDFTFwd_RToCCS_40_64f, xfmDFTFwd_RToCCS_41_64f,
    xfmDFTFwd_RToCCS_42_64f, xfmDFTFwd_RToCCS_43_64f, xfmDFTFwd_RToCCS_44_64f, xfmDFTFwd_RToCCS_45_64f,
    xfmDFTFwd_RToCCS_46_64f, xfmDFTFwd_RToCCS_47_64f, xfmDFTFwd_RToCCS_48_64f, xfmDFTFwd_RToCCS_49_64f,
    xfmDFTFwd_RToCCS_50_64f, xfmDFTFwd_RToCCS_51_64f, xfmDFTFwd_RToCCS_52_64f, xfmDFTFwd_RToCCS_53_64f,
    xfmDFTFwd_RToCCS_54_64f, xfmDFTFwd_RToCCS_55_64f, xfmDFTFwd_RToCCS_56_64f, xfmDFTFwd_RToCCS_57_64f,
    xfmDFTFwd_RToCCS_58_64f, xfmDFTFwd_RToCCS_59_64f, xfmDFTFwd_RToCCS_60_64f, xfmDFTFwd_RToCCS_61_64f,
    xfmDFTFwd_RToCCS_62_64f, xfmDFTFwd_RToCCS_63_64f, xfmDFTFwd_RToCCS_64_64f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
/** @} */

/** @name Lookup DFTFwd_RToPack
 * @{ */
/** The kernel xfmDFTFwd_RToPack_N_32f, or xfmDFTFwd_RToPack_N_64f, of this length N, 2 to 64; null for any other. */
XFM_LOOKUP_INLINE xfmKernel_32f xfmLookupDFTFwd_RToPack_32f(int32_t length) {
  static const xfmKernel_32f kernels[] = {
    xfmDFTFwd_RToPack_2_32f, xfmDFTFwd_RToPack_3_32f, xfmDFTFwd_RToPack_4_32f, xfmDFTFwd_RToPack_5_32f,
    xfmDFTFwd_RToPack_6_32f, xfmDFTFwd_RToPack_7_32f, xfmDFTFwd_RToPack_8_32f, xfmDFTFwd_RToPack_9_32f,
    xfmDFTFwd_RToPack_10_32f, xfmDFTFwd_RToPack_11_32f, xfmDFTFwd_RToPack_12_32f, xfmDFTFwd_RToPack_13_32f,
    xfmDFTFwd_RToPack_14_32f, xfmDFTFwd_RToPack_15_32f, xfmDFTFwd_RToPack_16_32f, xfmDFTFwd_RToPack_17_32f,
    xfmDFTFwd_RToPack_18_32f, xfmDFTFwd_RToPack_19_32f, xfmDFTFwd_RToPack_20_32f, xfmDFTFwd_RToPack_21_32f,
    xfmDFTFwd_RToPack_22_32f, xfmDFTFwd_RToPack_23_32f, xfmDFTFwd_RToPack_24_32f, xfmDFTFwd_RToPack_25_32f,
    xfmDFTFwd_RToPack_26_32f, xfmDFTFwd_RToPack_27_32f, xfmDFTFwd_RToPack_28_32f, xfmDFTFwd_RToPack_29_32f,
    xfmDFTFwd_RToPack_30_32f, xfmDFTFwd_RToPack_31_32f, xfmDFTFwd_RToPack_32_32f, xfmDFTFwd_RToPack_33_32f,
    xfmDFTFwd_RToPack_34_32f, xfmDFTFwd_RToPack_35_32f, xfmDFTFwd_RToPack_36_32f, xfmDFTFwd_RToPack_37_32f,
    xfmDFTFwd_RToPack_38_32f, xfmDFTFwd_RToPack_39_32f, xfmDFTFwd_RToPack_40_32f, xfmDFTFwd_RToPack_41_32f,
    xfmDFTFwd_RToPack_42_32f, xfmDFTFwd_RToPack_43_32f, xfmDFTFwd_RToPack_44_32f, xfmDFTFwd_RToPack_45_32f,
    xfmDFTFwd_RToPack_46_32f, xfmDFTFwd_RToPack_47_32f, xfmDFTFwd_RToPack_48_32f, xfmDFTFwd_RToPack_49_32f,
    xfmDFTFwd_RToPack_50_32f, xfmDFTFwd_RToPack_51_32f, xfmDFTFwd_RToPack_52_32f, xfmDFTFwd_RToPack_53_32f,
    xfmDFTFwd_RToPack_54_32f, xfmDFTFwd_RToPack_55_32f, xfmDFTFwd_RToPack_56_32f, xfmDFTFwd_RToPack_57_32f,
    xfmDFTFwd_RToPack_58_32f, xfmDFTFwd_RToPack_59_32f, xfmDFTFwd_RToPack_60_32f, xfmDFTFwd_RToPack_61_32f,
    xfmDFTFwd_RToPack_62_32f, xfmDFTFwd_RToPack_63_32f, xfmDFTFwd_RToPack_64_32f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
XFM_LOOKUP_INLINE xfmKernel_64f xfmLookupDFTFwd_RToPack_64f(int32_t length) {
  static const xfmKernel_64f kernels[] = {
    xfmDFTFwd_RToPack_2_64f, xfmDFTFwd_RToPack_3_64f, xfmDFTFwd_RToPack_4_64f, xfmDFTFwd_RToPack_5_64f,
    xfmDFTFwd_RToPack_6_64f, xfmDFTFwd_RToPack_7_64f, xfmDFTFwd_RToPack_8_64f, xfmDFTFwd_RToPack_9_64f,
    xfmDFTFwd_RToPack_10_64f, xfmDFTFwd_RToPack_11_64f, xfmDFTFwd_RToPack_12_64f, xfmDFTFwd_RToPack_13_64f,
    xfmDFTFwd_RToPack_14_64f, xfmDFTFwd_RToPack_15_64f, xfmDFTFwd_RToPack_16_64f, xfmDFTFwd_RToPack_17_64f,
    xfmDFTFwd_RToPack_18_64f, xfmDFTFwd_RToPack_19_64f, xfmDFTFwd_RToPack_20_64f, xfmDFTFwd_RToPack_21_64f,
    xfmDFTFwd_RToPack_22_64f, xfmDFTFwd_RToPack_23_64f, xfmDFTFwd_RToPack_24_64f, xfmDFTFwd_RToPack_25_64f,
    xfmDFTFwd_RToPack_26_64f, xfmDFTFwd_RToPack_27_64f, xfmDFTFwd_RToPack_28_64f, xfmDFTFwd_RToPack_29_64f,
    xfmDFTFwd_RToPack_30_64f, xfmDFTFwd_RToPack_31_64f, xfmDFTFwd_RToPack_32_64f, xfmDFTFwd_RToPack_33_64f,
    xfmDFTFwd_RToPack_34_64f, xfmDFTFwd_RToPack_35_64f, xfmDFTFwd_RToPack_36_64f, xfmDFTFwd_RToPack_37_64f,
    xfmDFTFwd_RToPack_38_64f, xfmDFTFwd_RToPack_39_64f, xfmDFTFwd_RToPack_40_64f, xfmDFTFwd_RToPack_41_64f,
    xfmDFTFwd_RToPack_42_64f, xfmDFTFwd_RToPack_43_64f, xfmDFTFwd_RToPack_44_64f, xfmDFTFwd_RToPack_45_64f,
    xfmDFTFwd_RToPack_46_64f, xfmDFTFwd_RToPack_47_64f, xfmDFTFwd_RToPack_48_64f, xfmDFTFwd_RToPack_49_64f,
    xfmDFTFwd_RToPack_50_64f, xfmDFTFwd_RToPack_51_64f, xfmDFTFwd_RToPack_52_64f, xfmDFTFwd_RToPack_53_64f,
    xfmDFTFwd_RToPack_54_64f, xfmDFTFwd_RToPack_55_64f, xfmDFTFwd_RToPack_56_64f, xfmDFTFwd_RToPack_57_64f,
    xfmDFTFwd_RToPack_58_64f, xfmDFTFwd_RToPack_59_64f, xfmDFTFwd_RToPack_60_64f, xfmDFTFwd_RToPack_61_64f,
    xfmDFTFwd_RToPack_62_64f, xfmDFTFwd_RToPack_63_64f, xfmDFTFwd_RToPack_64_64f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
/** @} */

/** @name Lookup DFTFwd_RToPerm
 * @{ */
/** The kernel xfmDFTFwd_RToPerm_N_32f, or xfmDFTFwd_RToPerm_N_64f, of this length N, 2 to 64; null for any other. */
XFM_LOOKUP_INLINE xfmKernel_32f xfmLookupDFTFwd_RToPerm_32f(int32_t length) {
  static const xfmKernel_32f kernels[] = {
    xfmDFTFwd_RToPerm_2_32f, xfmDFTFwd_RToPerm_3_32f, xfmDFTFwd_RToPerm_4_32f, xfmDFTFwd_RToPerm_5_32f,
    xfmDFTFwd_RToPerm_6_32f, xfmDFTFwd_RToPerm_7_32f, xfmDFTFwd_RToPerm_8_32f, xfmDFTFwd_RToPerm_9_32f,
    xfmDFTFwd_RToPerm_10_32f, xfmDFTFwd_RToPerm_11_32f, xfmDFTFwd_RToPerm_12_32f, xfmDFTFwd_RToPerm_13_32f,
    xfmDFTFwd_RToPerm_14_32f, xfmDFTFwd_RToPerm_15_32f, xfmDFTFwd_RToPerm_16_32f, xfmDFTFwd_RToPerm_17_32f,
    xfmDFTFwd_RToPerm_18_32f, xfmDFTFwd_RToPerm_19_32f, xfmDFTFwd_RToPerm_20_32f, xfmDFTFwd_RToPerm_21_32f,
    xfmDFTFwd_RToPerm_22_32f, xfmDFTFwd_RToPerm_23_32f, xfmDFTFwd_RToPerm_24_32f, xfmDFTFwd_RToPerm_25_32f,
    xfmDFTFwd_RToPerm_26_32f, xfmDFTFwd_RToPerm_27_32f, xfmDFTFwd_RToPerm_28_32f, xfmDFTFwd_RToPerm_29_32f,
    xfmDFTFwd_RToPerm_30_32f, xfmDFTFwd_RToPerm_31_32f, xfmDFTFwd_RToPerm_32_32f, xfmDFTFwd_RToPerm_33_32f,
    xfmDFTFwd_RToPerm_34_32f, xfmDFTFwd_RToPerm_35_32f, xfmDFTFwd_RToPerm_36_32f, xfmDFTFwd_RToPerm_37_32f,
    xfmDFTFwd_RToPerm_38_32f, xfmDFTFwd_RToPerm_39_32f, xfmDFTFwd_RToPerm_40_32f, xfmDFTFwd_RToPerm_41_32f,
    xfmDFTFwd_RToPerm_42_32f, xfmDFTFwd_RToPerm_43_32f, xfmDFTFwd_RToPerm_44_32f, xfmDFTFwd_RToPerm_45_32f,
    xfmDFTFwd_RToPerm_46_32f, xfmDFTFwd_RToPerm_47_32f, xfmDFTFwd_RToPerm_48_32f, xfmDFTFwd_RToPerm_49_32f,
    xfmDFTFwd_RToPerm_50_32f, xfmDFTFwd_RToPerm_51_32f, xfmDFTFwd_RToPerm_52_32f, xfmDFTFwd_RToPerm_53_32f,
    xfmDFTFwd_RToPerm_54_32f, xfmDFTFwd_RToPerm_55_32f, xfmDFTFwd_RToPerm_56_32f, xfmDFTFwd_RToPerm_57_32f,
    xfmDFTFwd_RToPerm_58_32f, xfmDFTFwd_RToPerm_59_32f, xfmDFTFwd_RToPerm_60_32f, xfmDFTFwd_RToPerm_61_32f,
    xfmDFTFwd_RToPerm_62_32f, xfmDFTFwd_RToPerm_63_32f, xfmDFTFwd_RToPerm_64_32f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
XFM_LOOKUP_INLINE xfmKernel_64f xfmLookupDFTFwd_RToPerm_64f(int32_t length) {
  static const xfmKernel_64f kernels[] = {
    xfmDFTFwd_RToPerm_2_64f, xfmDFTFwd_RToPerm_3_64f, xfmDFTFwd_RToPerm_4_64f, xfmDFTFwd_RToPerm_5_64f,
    xfmDFTFwd_RToPerm_6_64f, xfmDFTFwd_RToPerm_7_64f, xfmDFTFwd_RToPerm_8_64f, xfmDFTFwd_RToPerm_9_64f,
    xfmDFTFwd_RToPerm_10_64f, xfmDFTFwd_RToPerm_11_64f, xfmDFTFwd_RToPerm_12_64f, xfmDFTFwd_RToPerm_13_64f,
    xfmDFTFwd_RToPerm_14_64f, xfmDFTFwd_RToPerm_15_64f, xfmDFTFwd_RToPerm_16_64f, xfmDFTFwd_RToPerm_17_64f,
    xfmDFTFwd_RToPerm_18_64f, xfmDFTFwd_RToPerm_19_64f, xfmDFTFwd_RToPerm_20_64f, xfmDFTFwd_RToPerm_21_64f,
    xfmDFTFwd_RToPerm_22_64f, xfmDFTFwd_RToPerm_23_64f, xfmDFTFwd_RToPerm_24_64f, xfmDFTFwd_RToPerm_25_64f,
    xfmDFTFwd_RToPerm_26_64f, xfmDFTFwd_RToPerm_27_64f, xfmDFTFwd_RToPerm_28_64f, xfmDFTFwd_RToPerm_29_64f,
    xfmDFTFwd_RToPerm_30_64f, xfmDFTFwd_RToPerm_31_64f, xfmDFTFwd_RToPerm_32_64f, xfmDFTFwd_RToPerm_33_64f,
    xfmDFTFwd_RToPerm_34_64f, xfmDFTFwd_RToPerm_35_64f, xfmDFTFwd_RToPerm_36_64f, xfmDFTFwd_RToPerm_37_64f,
    xfmDFTFwd_RToPerm_38_64f, xfmDFTFwd_RToPerm_39_64f, xfmDFTFwd_RToPerm_40_64f, xfmDFTFwd_RToPerm_41_64f,
    xfmDFTFwd_RToPerm_42_64f, xfmDFTFwd_RToPerm_43_64f, xfmDFTFwd_RToPerm_44_64f, xfmDFTFwd_RToPerm_45_64f,
    xfmDFTFwd_RToPerm_46_64f, xfmDFTFwd_RToPerm_47_64f, xfmDFTFwd_RToPerm_48_64f, xfmDFTFwd_RToPerm_49_64f,
    xfmDFTFwd_RToPerm_50_64f, xfmDFTFwd_RToPerm_51_64f, xfmDFTFwd_RToPerm_52_64f, xfmDFTFwd_RToPerm_53_64f,
    xfmDFTFwd_RToPerm_54_64f, xfmDFTFwd_RToPerm_55_64f, xfmDFTFwd_RToPerm_56_64f, xfmDFTFwd_RToPerm_57_64f,
    xfmDFTFwd_RToPerm_58_64f, xfmDFTFwd_RToPerm_59_64f, xfmDFTFwd_RToPerm_60_64f, xfmDFTFwd_RToPerm_61_64f,
    xfmDFTFwd_RToPerm_62_64f, xfmDFTFwd_RToPerm_63_64f, xfmDFTFwd_RToPerm_64_64f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
/** @} */

/** @name Lookup DFTInv_CCSToR
 * @{ */
/** The kernel xfmDFTInv_CCSToR_N_32f, or xfmDFTInv_CCSToR_N_64f, of this length N, 2 to 64; null for any other. */
XFM_LOOKUP_INLINE xfmKernel_32f xfmLookupDFTInv_CCSToR_32f(int32_t length) {
  static const xfmKernel_32f kernels[] = {
    xfmDFTInv_CCSToR_2_32f, xfmDFTInv_CCSToR_3_32f, xfmDFTInv_CCSToR_4_32f, xfmDFTInv_CCSToR_5_32f,
    xfmDFTInv_CCSToR_6_32f, xfmDFTInv_CCSToR_7_32f, xfmDFTInv_CCSToR_8_32f, xfmDFTInv_CCSToR_9_32f,
    xfmDFTInv_CCSToR_10_32f, xfmDFTInv_CCSToR_11_32f, xfmDFTInv_CCSToR_12_32f, xfmDFTInv_CCSToR_13_32f,
    xfmDFTInv_CCSToR_14_32f, xfmDFTInv_CCSToR_15_32f, xfmDFTInv_CCSToR_16_32f, xfmDFTInv_CCSToR_17_32f,
    xfmDFTInv_CCSToR_18_32f, xfmDFTInv_CCSToR_19_32f, xfmDFTInv_CCSToR_20_32f, xfmDFTInv_CCSToR_21_32f,
    xfmDFTInv_CCSToR_22_32f, xfmDFTInv_CCSToR_23_32f, xfmDFTInv_CCSToR_24_32f, xfmDFTInv_CCSToR_25_32f,
    xfmDFTInv_CCSToR_26_32f, xfmDFTInv_CCSToR_27_32f, xfmDFTInv_CCSToR_28_32f, xfmDFTInv_CCSToR_29_32f,
    xfmDFTInv_CCSToR_30_32f, xfmDFTInv_CCSToR_31_32f, xfmDFTInv_CCSToR_32_32f, xfmDFTInv_CCSToR_33_32f,
    xfmDFTInv_CCSToR_34_32f, xfmDFTInv_CCSToR_35_32f, xfmDFTInv_CCSToR_36_32f, xfmDFTInv_CCSToR_37_32f,
    xfmDFTInv_CCSToR_38_32f, xfmDFTInv_CCSToR_39_32f, xfmDFTInv_CCSToR_40_32f, xfmDFTInv_CCSToR_41_32f,
    xfmDFTInv_CCSToR_42_32f, xfmDFTInv_CCSToR_43_32f, xfmDFTInv_CCSToR_44_32f, xfmDFTInv_CCSToR_45_32f,
    xfmDFTInv_CCSToR_46_32f, xfmDFTInv_CCSToR_47_32f, xfmDFTInv_CCSToR_48_32f, xfmDFTInv_CCSToR_49_32f,
    xfmDFTInv_CCSToR_50_32f, xfmDFTInv_CCSToR_51_32f, xfmDFTInv_CCSToR_52_32f, xfmDFTInv_CCSToR_53_32f,
    xfmDFTInv_CCSToR_54_32f, xfmDFTInv_CCSToR_55_32f, xfmDFTInv_CCSToR_56_32f, xfmDFTInv_CCSToR_57_32f,
    xfmDFTInv_CCSToR_58_32f, xfmDFTInv_CCSToR_59_32f, xfmDFTInv_CCSToR_60_32f, xfmDFTInv_CCSToR_61_32f,
    xfmDFTInv_CCSToR_62_32f, xfmDFTInv_CCSToR_63_32f, xfmDFTInv_CCSToR_64_32f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
XFM_LOOKUP_INLINE xfmKernel_64f xfmLookupDFTInv_CCSToR_64f(int32_t length) {
  static const xfmKernel_64f kernels[] = {
    xfmDFTInv_CCSToR_2_64f, xfmDFTInv_CCSToR_3_64f, xfmDFTInv_CCSToR_4_64f, xfmDFTInv_CCSToR_5_64f,
    xfmDFTInv_CCSToR_6_64f, xfmDFTInv_CCSToR_7_64f, xfmDFTInv_CCSToR_8_64f, xfmDFTInv_CCSToR_9_64f,
    xfmDFTInv_CCSToR_10_64f, xfmDFTInv_CCSToR_11_64f, xfmDFTInv_CCSToR_12_64f, xfmDFTInv_CCSToR_13_64f,
    xfmDFTInv_CCSToR_14_64f, xfmDFTInv_CCSToR_15_64f, xfmDFTInv_CCSToR_16_64f, xfmDFTInv_CCSToR_17_64f,
    xfmDFTInv_CCSToR_18_64f, xfmDFTInv_CCSToR_19_64f, xfmDFTInv_CCSToR_20_64f, xfmDFTInv_CCSToR_21_64f,
    xfmDFTInv_CCSToR_22_64f, xfmDFTInv_CCSToR_23_64f, xfmDFTInv_CCSToR_24_64f, xfmDFTInv_CCSToR_25_64f,
    xfmDFTInv_CCSToR_26_64f, xfmDFTInv_CCSToR_27_64f, xfmDFTInv_CCSToR_28_64f, xfmDFTInv_CCSToR_29_64f,
    xfmDFTInv_CCSToR_30_64f, xfmDFTInv_CCSToR_31_64f, xfmDFTInv_CCSToR_32_64f, xfmDFTInv_CCSToR_33_64f,
    xfmDFTInv_CCSToR_34_64f, xfmDFTInv_CCSToR_35_64f, xfmDFTInv_CCSToR_36_64f, xfmDFTInv_CCSToR_37_64f,
    xfmDFTInv_CCSToR_38_64f, xfmDFTInv_CCSToR_39_64f, xfmDFTInv_CCSToR_40_64f, xfmDFTInv_CCSToR_41_64f,
    xfmDFTInv_CCSToR_42_64f, xfmDFTInv_CCSToR_43_64f, xfmDFTInv_CCSToR_44_64f, xfmDFTInv_CCSToR_45_64f,
    xfmDFTInv_CCSToR_46_64f, xfmDFTInv_CCSToR_47_64f, xfmDFTInv_CCSToR_48_64f, xfmDFTInv_CCSToR_49_64f,
    xfmDFTInv_CCSToR_50_64f, xfmDFTInv_CCSToR_51_64f, xfmDFTInv_CCSToR_52_64f, xfmDFTInv_CCSToR_53_64f,
    xfmDFTInv_CCSToR_54_64f, xfmDFTInv_CCSToR_55_64f, xfmDFTInv_CCSToR_56_64f, xfmDFTInv_CCSToR_57_64f,
    xfmDFTInv_CCSToR_58_64f, xfmDFTInv_CCSToR_59_64f, xfmDFTInv_CCSToR_60_64f, xfmDFTInv_CCSToR_61_64f,
    xfmDFTInv_CCSToR_62_64f, xfmDFTInv_CCSToR_63_64f, xfmDFTInv_CCSToR_64_64f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
/** @} */

/** @name Lookup DFTInv_PackToR
 * @{ */
/** The kernel xfmDFTInv_PackToR_N_32f, or xfmDFTInv_PackToR_N_64f, of this length N, 2 to 64; null for any other. */
XFM_LOOKUP_INLINE xfmKernel_32f xfmLookupDFTInv_PackToR_32f(int32_t length) {
  static const xfmKernel_32f kernels[] = {
    xfmDFTInv_PackToR_2_32f, xfmDFTInv_PackToR_3_32f, xfmDFTInv_PackToR_4_32f, xfmDFTInv_PackToR_5_32f,
    xfmDFTInv_PackToR_6_32f, xfmDFTInv_PackToR_7_32f, xfmDFTInv_PackToR_8_32f, xfmDFTInv_PackToR_9_32f,
    xfmDFTInv_PackToR_10_32f, xfmDFTInv_PackToR_11_32f, xfmDFTInv_PackToR_12_32f, xfmDFTInv_PackToR_13_32f,
    xfmDFTInv_PackToR_14_32f, xfmDFTInv_PackToR_15_32f, xfmDFTInv_PackToR_16_32f, xfmDFTInv_PackToR_17_32f,
    xfmDFTInv_PackToR_18_32f, xfmDFTInv_PackToR_19_32f, xfmDFTInv_PackToR_20_32f, xfmDFTInv_PackToR_21_32f,
    xfmDFTInv_PackToR_22_32f, xfmDFTInv_PackToR_23_32f, xfmDFTInv_PackToR_24_32f, xfmDFTInv_PackToR_25_32f,
    xfmDFTInv_PackToR_26_32f, xfmDFTInv_PackToR_27_32f, xfmDFTInv_PackToR_28_32f, xfmDFTInv_PackToR_29_32f,
    xfmDFTInv_PackToR_30_32f, xfmDFTInv_PackToR_31_32f, xfmDFTInv_PackToR_32_32f, xfmDFTInv_PackToR_33_32f,
    xfmDFTInv_PackToR_34_32f, xfmDFTInv_PackToR_35_32f, xfmDFTInv_PackToR_36_32f, xfmDFTInv_PackToR_37_32f,
    xfmDFTInv_PackToR_38_32f, xfmDFTInv_PackToR_39_32f, xfmDFTInv_PackToR_40_32f, xfmDFTInv_PackToR_41_32f,
    xfmDFTInv_PackToR_42_32f, xfmDFTInv_PackToR_43_32f, xfmDFTInv_PackToR_44_32f, xfmDFTInv_PackToR_45_32f,
    xfmDFTInv_PackToR_46_32f, xfmDFTInv_PackToR_47_32f, xfmDFTInv_PackToR_48_32f, xfmDFTInv_PackToR_49_32f,
    xfmDFTInv_PackToR_50_32f, xfmDFTInv_PackToR_51_32f, xfmDFTInv_PackToR_52_32f, xfmDFTInv_PackToR_53_32f,
    xfmDFTInv_PackToR_54_32f, xfmDFTInv_PackToR_55_32f, xfmDFTInv_PackToR_56_32f, xfmDFTInv_PackToR_57_32f,
    xfmDFTInv_PackToR_58_32f, xfmDFTInv_PackToR_59_32f, xfmDFTInv_PackToR_60_32f, xfmDFTInv_PackToR_61_32f,
    xfmDFTInv_PackToR_62_32f, xfmDFTInv_PackToR_63_32f, xfmDFTInv_PackToR_64_32f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
XFM_LOOKUP_INLINE xfmKernel_64f xfmLookupDFTInv_PackToR_64f(int32_t length) {
  static const xfmKernel_64f kernels[] = {
    xfmDFTInv_PackToR_2_64f, xfmDFTInv_PackToR_3_64f, xfmDFTInv_PackToR_4_64f, xfmDFTInv_PackToR_5_64f,
    xfmDFTInv_PackToR_6_64f, xfmDFTInv_PackToR_7_64f, xfmDFTInv_PackToR_8_64f, xfmDFTInv_PackToR_9_64f,
    xfmDFTInv_PackToR_10_64f, xfmDFTInv_PackToR_11_64f, xfmDFTInv_PackToR_12_64f, xfmDFTInv_PackToR_13_64f,
    xfmDFTInv_PackToR_14_64f, xfmDFTInv_PackToR_15_64f, xfmDFTInv_PackToR_16_64f, xfmDFTInv_PackToR_17_64f,
    xfmDFTInv_PackToR_18_64f, xfmDFTInv_PackToR_19_64f, xfmDFTInv_PackToR_20_64f, xfmDFTInv_PackToR_21_64f,
    xfmDFTInv_PackToR_22_64f, xfmDFTInv_PackToR_23_64f, xfmDFTInv_PackToR_24_64f, xfmDFTInv_PackToR_25_64f,
    xfmDFTInv_PackToR_26_64f, xfmDFTInv_PackToR_27_64f, xfmDFTInv_PackToR_28_64f, xfmDFTInv_PackToR_29_64f,
    xfmDFTInv_PackToR_30_64f, xfmDFTInv_PackToR_31_64f, xfmDFTInv_PackToR_32_64f, xfmDFTInv_PackToR_33_64f,
    xfmDFTInv_PackToR_34_64f, xfmDFTInv_PackToR_35_64f, xfmDFTInv_PackToR_36_64f, xfmDFTInv_PackToR_37_64f,
    xfmDFTInv_PackToR_38_64f, xfmDFTInv_PackToR_39_64f, xfmDFTInv_PackToR_40_64f, xfmDFTInv_PackToR_41_64f,
    xfmDFTInv_PackToR_42_64f, xfmDFTInv_PackToR_43_64f, xfmDFTInv_PackToR_44_64f, xfmDFTInv_PackToR_45_64f,
    xfmDFTInv_PackToR_46_64f, xfmDFTInv_PackToR_47_64f, xfmDFTInv_PackToR_48_64f, xfmDFTInv_PackToR_49_64f,
    xfmDFTInv_PackToR_50_64f, xfmDFTInv_PackToR_51_64f, xfmDFTInv_PackToR_52_64f, xfmDFTInv_PackToR_53_64f,
    xfmDFTInv_PackToR_54_64f, xfmDFTInv_PackToR_55_64f, xfmDFTInv_PackToR_56_64f, xfmDFTInv_PackToR_57_64f,
    xfmDFTInv_PackToR_58_64f, xfmDFTInv_PackToR_59_64f, xfmDFTInv_PackToR_60_64f, xfmDFTInv_PackToR_61_64f,
    xfmDFTInv_PackToR_62_64f, xfmDFTInv_PackToR_63_64f, xfmDFTInv_PackToR_64_64f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
/** @} */

/** @name Lookup DFTInv_PermToR
 * @{ */
/** The kernel xfmDFTInv_PermToR_N_32f, or xfmDFTInv_PermToR_N_64f, of this length N, 2 to 64; null for any other. */
XFM_LOOKUP_INLINE xfmKernel_32f xfmLookupDFTInv_PermToR_32f(int32_t length) {
  static const xfmKernel_32f kernels[] = {
    xfmDFTInv_PermToR_2_32f, xfmDFTInv_PermToR_3_32f, xfmDFTInv_PermToR_4_32f, xfmDFTInv_PermToR_5_32f,
    xfmDFTInv_PermToR_6_32f, xfmDFTInv_PermToR_7_32f, xfmDFTInv_PermToR_8_32f, xfmDFTInv_PermToR_9_32f,
    xfmDFTInv_PermToR_10_32f, xfmDFTInv_PermToR_11_32f, xfmDFTInv_PermToR_12_32f, xfmDFTInv_PermToR_13_32f,
    xfmDFTInv_PermToR_14_32f, xfmDFTInv_PermToR_15_32f, xfmDFTInv_PermToR_16_32f, xfmDFTInv_PermToR_17_32f,
    xfmDFTInv_PermToR_18_32f, xfmDFTInv_PermToR_19_32f, xfmDFTInv_PermToR_20_32f, xfmDFTInv_PermToR_21_32f,
    xfmDFTInv_PermToR_22_32f, xfmDFTInv_PermToR_23_32f, xfmDFTInv_PermToR_24_32f, xfmDFTInv_PermToR_25_32f,
    xfmDFTInv_PermToR_26_32f, xfmDFTInv_PermToR_27_32f, xfmDFTInv_PermToR_28_32f, xfmDFTInv_PermToR_29_32f,
    xfmDFTInv_PermToR_30_32f, xfmDFTInv_PermToR_31_32f, xfmDFTInv_PermToR_32_32f, xfmDFTInv_PermToR_33_32f,
    xfmDFTInv_PermToR_34_32f, xfmDFTInv_PermToR_35_32f, xfmDFTInv_PermToR_36_32f, xfmDFTInv_PermToR_37_32f,
    xfmDFTInv_PermToR_38_32f, xfmDFTInv_PermToR_39_32f, xfmDFTInv_PermToR_40_32f, xfmDFTInv_PermToR_41_32f,
    xfmDFTInv_PermToR_42_32f, xfmDFTInv_PermToR_43_32f, xfmDFTInv_PermToR_44_32f, xfmDFTInv_PermToR_45_32f,
    xfmDFTInv_PermToR_46_32f, xfmDFTInv_PermToR_47_32f, xfmDFTInv_PermToR_48_32f, xfmDFTInv_PermToR_49_32f,
    xfmDFTInv_PermToR_50_32f, xfmDFTInv_PermToR_51_32f, xfmDFTInv_PermToR_52_32f, xfmDFTInv_PermToR_53_32f,
    xfmDFTInv_PermToR_54_32f, xfmDFTInv_PermToR_55_32f, xfmDFTInv_PermToR_56_32f, xfmDFTInv_PermToR_57_32f,
    xfmDFTInv_PermToR_58_32f, xfmDFTInv_PermToR_59_32f, xfmDFTInv_PermToR_60_32f, xfmDFTInv_PermToR_61_32f,
    xfmDFTInv_PermToR_62_32f, xfmDFTInv_PermToR_63_32f, xfmDFTInv_PermToR_64_32f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
XFM_LOOKUP_INLINE xfmKernel_64f xfmLookupDFTInv_PermToR_64f(int32_t length) {
  static const xfmKernel_64f kernels[] = {
    xfmDFTInv_PermToR_2_64f, xfmDFTInv_PermToR_3_64f, xfmDFTInv_PermToR_4_64f, xfmDFTInv_PermToR_5_64f,
    xfmDFTInv_PermToR_6_64f, xfmDFTInv_PermToR_7_64f, xfmDFTInv_PermToR_8_64f, xfmDFTInv_PermToR_9_64f,
    xfmDFTInv_PermToR_10_64f, xfmDFTInv_PermToR_11_64f, xfmDFTInv_PermToR_12_64f, xfmDFTInv_PermToR_13_64f,
    xfmDFTInv_PermToR_14_64f, xfmDFTInv_PermToR_15_64f, xfmDFTInv_PermToR_16_64f, xfmDFTInv_PermToR_17_64f,
    xfmDFTInv_PermToR_18_64f, xfmDFTInv_PermToR_19_64f, xfmDFTInv_PermToR_20_64f, xfmDFTInv_PermToR_21_64f,
    xfmDFTInv_PermToR_22_64f, xfmDFTInv_PermToR_23_64f, xfmDFTInv_PermToR_24_64f, xfmDFTInv_PermToR_25_64f,
    xfmDFTInv_PermToR_26_64f, xfmDFTInv_PermToR_27_64f, xfmDFTInv_PermToR_28_64f, xfmDFTInv_PermToR_29_64f,
    xfmDFTInv_PermToR_30_64f, xfmDFTInv_PermToR_31_64f, xfmDFTInv_PermToR_32_64f, xfmDFTInv_PermToR_33_64f,
    xfmDFTInv_PermToR_34_64f, xfmDFTInv_PermToR_35_64f, xfmDFTInv_PermToR_36_64f, xfmDFTInv_PermToR_37_64f,
    xfmDFTInv_PermToR_38_64f, xfmDFTInv_PermToR_39_64f, xfmDFTInv_PermToR_40_64f, xfmDFTInv_PermToR_41_64f,
    xfmDFTInv_PermToR_42_64f, xfmDFTInv_PermToR_43_64f, xfmDFTInv_PermToR_44_64f, xfmDFTInv_PermToR_45_64f,
    xfmDFTInv_PermToR_46_64f, xfmDFTInv_PermToR_47_64f, xfmDFTInv_PermToR_48_64f, xfmDFTInv_PermToR_49_64f,
    xfmDFTInv_PermToR_50_64f, xfmDFTInv_PermToR_51_64f, xfmDFTInv_PermToR_52_64f, xfmDFTInv_PermToR_53_64f,
    xfmDFTInv_PermToR_54_64f, xfmDFTInv_PermToR_55_64f, xfmDFTInv_PermToR_56_64f, xfmDFTInv_PermToR_57_64f,
    xfmDFTInv_PermToR_58_64f, xfmDFTInv_PermToR_59_64f, xfmDFTInv_PermToR_60_64f, xfmDFTInv_PermToR_61_64f,
    xfmDFTInv_PermToR_62_64f, xfmDFTInv_PermToR_63_64f, xfmDFTInv_PermToR_64_64f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
/** @} */

/** @name Lookup Hartley
 * @{ */
/** The kernel xfmHartley_N_32f, or xfmHartley_N_64f, of this length N, 2 to 64; null for any other. */
XFM_LOOKUP_INLINE xfmKernel_32f xfmLookupHartley_32f(int32_t length) {
  static const xfmKernel_32f kernels[] = {
    xfmHartley_2_32f, xfmHartley_3_32f, xfmHartley_4_32f, xfmHartley_5_32f, xfmHartley_6_32f, xfmHartley_7_32f,
    xfmHartley_8_32f, xfmHartley_9_32f, xfmHartley_10_32f, xfmHartley_11_32f, xfmHartley_12_32f, xfmHartley_13_32f,
    xfmHartley_14_32f, xfmHartley_15_32f, xfmHartley_16_32f, xfmHartley_17_32f, xfmHartley_18_32f, xfmHartley_19_32f,
    xfmHartley_20_32f, xfmHartley_21_32f, xfmHartley_22_32f, xfmHartley_23_32f, xfmHartley_24_32f, xfmHartley_25_32f,
    xfmHartley_26_32f, xfmHartley_27_32f, xfmHartley_28_32f, xfmHartley_29_32f, xfmHartley_30_32f, xfmHartley_31_32f,
    xfmHartley_32_32f, xfmHartley_33_32f, xfmHartley_34_32f, xfmHartley_35_32f, xfmHartley_36_32f, xfmHartley_37_32f,
    xfmHartley_38_32f, xfmHartley_39_32f, xfmHartley_40_32f, xfmHartley_41_32f, xfmHartley_42_32f, xfmHartley_43_32f,
    xfmHartley_44_32f, xfmHartley_45_32f, xfmHartley_46_32f, xfmHartley_47_32f, xfmHartley_48_32f, xfmHartley_49_32f,
    xfmHartley_50_32f, xfmHartley_51_32f, xfmHartley_52_32f, xfmHartley_53_32f, xfmHartley_54_32f, xfmHartley_55_32f,
    xfmHartley_56_32f, xfmHartley_57_32f, xfmHartley_58_32f, xfmHartley_59_32f, xfmHartley_60_32f, xfmHartley_61_32f,
    xfmHartley_62_32f, xfmHartley_63_32f, xfmHartley_64_32f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
XFM_LOOKUP_INLINE xfmKernel_64f xfmLookupHartley_64f(int32_t length) {
  static const xfmKernel_64f kernels[] = {
    xfmHartley_2_64f, xfmHartley_3_64f, xfmHartley_4_64f, xfmHartley_5_64f, xfmHartley_6_64f, xfmHartley_7_64f,
    xfmHartley_8_64f, xfmHartley_9_64f, xfmHartley_10_64f, xfmHartley_11_64f, xfmHartley_12_64f, xfmHartley_13_64f,
    xfmHartley_14_64f, xfmHartley_15_64f, xfmHartley_16_64f, xfmHartley_17_64f, xfmHartley_18_64f, xfmHartley_19_64f,
    xfmHartley_20_64f, xfmHartley_21_64f, xfmHartley_22_64f, xfmHartley_23_64f, xfmHartley_24_64f, xfmHartley_25_64f,
    xfmHartley_26_64f, xfmHartley_27_64f, xfmHartley_28_64f, xfmHartley_29_64f, xfmHartley_30_64f, xfmHartley_31_64f,
    xfmHartley_32_64f, xfmHartley_33_64f, xfmHartley_34_64f, xfmHartley_35_64f, xfmHartley_36_64f, xfmHartley_37_64f,
    xfmHartley_38_64f, xfmHartley_39_64f, xfmHartley_40_64f, xfmHartley_41_64f, xfmHartley_42_64f, xfmHartley_43_64f,
    xfmHartley_44_64f, xfmHartley_45_64f, xfmHartley_46_64f, xfmHartley_47_64f, xfmHartley_48_64f, xfmHartley_49_64f,
    xfmHartley_50_64f, xfmHartley_51_64f, xfmHartley_52_64f, xfmHartley_53_64f, xfmHartley_54_64f, xfmHartley_55_64f,
    xfmHartley_56_64f, xfmHartley_57_64f, xfmHartley_58_64f, xfmHartley_59_64f, xfmHartley_60_64f, xfmHartley_61_64f,
    xfmHartley_62_64f, xfmHartley_63_64f, xfmHartley_64_64f,
  };
  return 2 <= length && length <= 64 ? kernels[length - 2] : XFM_LOOKUP_NONE;
}
/** @} */

/** @name Lookup WHT
 * @{ */
/** The kernel xfmWHT_N_32f, or xfmWHT_N_64f, of this order N, 1 to 13; null for any other. */
XFM_LOOKUP_INLINE xfmKernelWHT_32f xfmLookupWHT_32f(int32_t order) {
  static const xfmKernelWHT_32f kernels[] = {
    xfmWHT_1_32f, xfmWHT_2_32f, xfmWHT_3_32f, xfmWHT_4_32f, xfmWHT_5_32f, xfmWHT_6_32f, xfmWHT_7_32f, xfmWHT_8_32f,
    xfmWHT_9_32f, xfmWHT_10_32f, xfmWHT_11_32f, xfmWHT_12_32f, xfmWHT_13_32f,
  };
  return 1 <= order && order <= 13 ? kernels[order - 1] : XFM_LOOKUP_NONE;
}
XFM_LOOKUP_INLINE xfmKernelWHT_64f xfmLookupWHT_64f(int32_t order) {
  static const xfmKernelWHT_64f kernels[] = {
    xfmWHT_1_64f, xfmWHT_2_64f, xfmWHT_3_64f, xfmWHT_4_64f, xfmWHT_5_64f, xfmWHT_6_64f, xfmWHT_7_64f, xfmWHT_8_64f,
    xfmWHT_9_64f, xfmWHT_10_64f, xfmWHT_11_64f, xfmWHT_12_64f, xfmWHT_13_64f,
  };
  return 1 <= order && order <= 13 ? kernels[order - 1] : XFM_LOOKUP_NONE;
}
/** @} */

/** @name DCT-IV lengths
 * @{ */
/**
 * Whether a state of this length computes a DCT-IV: 1 for the powers of two from XFM_DCT4_MIN_LENGTH to
 * XFM_DCT4_MAX_LENGTH_TYPE, 0 for all others.
 *
 * Ask before xfmDCT4GetSize_TYPE, xfmDCT4Init_TYPE or xfmDCT4InitAlloc_TYPE if the length comes from outside. They accept
 * some other lengths, such as 2^k + 1 and 2^30, whose states compute no DCT-IV or reach beyond their memory: see xfm.h.
 */
XFM_LOOKUP_INLINE int xfmDCT4IsServed_32f(int32_t length) {
  return XFM_DCT4_MIN_LENGTH <= length && length <= XFM_DCT4_MAX_LENGTH_32F && (length & (length - 1)) == 0;
}
XFM_LOOKUP_INLINE int xfmDCT4IsServed_64f(int32_t length) {
  return XFM_DCT4_MIN_LENGTH <= length && length <= XFM_DCT4_MAX_LENGTH_64F && (length & (length - 1)) == 0;
}
/** @} */

/** A text for a status, in English: a few words without a full stop. Never null: other numbers are unknown statuses. */
XFM_LOOKUP_INLINE const char* xfmStatusText(xfmStatus status) {
  switch (status) {
    case xfmStsOk: return "success";
    case xfmStsBadState: return "not a state of the DCT-IV";
    case xfmStsBadSize: return "unsupported length or order, or a negative count";
    case xfmStsNullPtr: return "a required pointer is null, or no memory is left";
    case xfmStsBadScale: return "the scale flag is not one of the four values";
    default: return "unknown status";
  }
}

#if defined(__GNUC__)
#pragma GCC visibility pop
#endif
#ifdef __cplusplus
}
#endif
#undef XFM_LOOKUP_INLINE
#undef XFM_LOOKUP_NONE

#endif /* XFM_LOOKUP_H */
