/* clang-format off */
/**
 * @file xfm.h
 * @brief xfm: short, very fast discrete transforms for x86-64.
 *
 * Plain functions, no planning, no state, no run-time tables: every length and precision of every family has a
 * straight-line kernel of its own. A family of kernels is written below with the letter N in place of the length; the
 * name without a number is the family's generic function, which takes the length as an argument and accepts every
 * length that the family serves.
 *
 * Arrays are contiguous; the caller owns them, and no function keeps a pointer. All functions may be called from any
 * number of threads at once. NaN and infinity flow through the arithmetic; no function changes the floating-point
 * control state. Results do not depend on alignment, and src == dst gives the same bits as separate arrays.
 */
/* The declarations below are written by xfmgen from the list of families: build the target "door" to renew them. */
#ifndef XFM_H
#define XFM_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif
#if defined(__GNUC__)
#pragma GCC visibility push(default)
#endif

typedef float xfm32f;  /**< IEEE-754 binary32 */
typedef double xfm64f; /**< IEEE-754 binary64 */

/** Complex number of two binary32 values, real part first. */
typedef struct {
  xfm32f re, im;
} xfm32fc;

/** Complex number of two binary64 values, real part first. */
typedef struct {
  xfm64f re, im;
} xfm64fc;

/** Result of every function: xfmStsOk or a negative value, one of those below. */
typedef int32_t xfmStatus;

enum {
  xfmStsOk = 0,        /**< success */
  xfmStsBadState = -5, /**< a DCT-IV plan node of an unknown kind was met */
  xfmStsBadSize = -6,  /**< length or order not served */
  xfmStsNullPtr = -8,  /**< a required pointer is null */
  xfmStsBadScale = -16 /**< the scale flag is not one of the four values */
};

/** Scale flags: exactly one of these values, they do not combine. Each family tells the factor of each flag. */
enum {
  XFM_SCALE_FWD_BY_N = 1,  /**< the forward direction carries 1/N */
  XFM_SCALE_INV_BY_N = 2,  /**< the inverse direction carries 1/N */
  XFM_SCALE_BY_SQRT_N = 4, /**< both directions carry 1/sqrt(N) */
  XFM_SCALE_NONE = 8       /**< no factor in either direction */
};

/** What build of the library this is. */
typedef struct {
  int32_t major;         /**< major version */
  int32_t minor;         /**< minor version */
  int32_t majorBuild;    /**< major build number */
  int32_t build;         /**< build number */
  char targetCode[4];    /**< two-letter code of the processor target, two zero bytes */
  const char* name;      /**< library file name */
  const char* version;   /**< version text */
  const char* buildDate; /**< date of the build */
} xfmLibraryVersion;

/** The version record, constant data that the caller neither changes nor frees. Cannot fail. */
const xfmLibraryVersion* xfmGetLibVersion(void);

/** @name DFTFwd_CToC
 * xfmDFTFwd_CToC_N_TYPE
 * @{ */
/**
 * Forward complex DFT of length N, 2 to 64.
 *
 *     dst[k] = s * sum over n of src[n] * exp(-2 pi i n k / N),   n, k = 0 .. N-1
 *
 * Reads N complex elements of src, writes N complex elements of dst, in natural order.
 *
 * | flag                  | factor s  |
 * |-----------------------|-----------|
 * | XFM_SCALE_FWD_BY_N    | 1/N       |
 * | XFM_SCALE_INV_BY_N    | 1         |
 * | XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) |
 * | XFM_SCALE_NONE        | 1         |
 *
 * Every output is multiplied by s as its last step, also by 1. Both arrays may have any alignment; multiples of 16 are
 * fastest, and the bits do not depend on it. src and dst may overlap in any way: all input is read before the first
 * output is written, and dst is never read.
 * Errors, in the order of the tests: a generic function gives xfmStsBadSize for a length that is not served; then
 * xfmStsNullPtr (src or dst is null), xfmStsBadScale (flag). A failed call writes nothing. Re-entrant; no allocation.
 * Sources: Cooley and Tukey 1965; Good 1958; Rader 1968; Yavne 1968; Bluestein 1970.
 */
xfmStatus xfmDFTFwd_CToC_32fc(const xfm32fc* src, xfm32fc* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTFwd_CToC_2_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_3_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_4_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_5_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_6_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_7_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_8_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_9_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_10_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_11_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_12_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_13_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_14_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_15_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_16_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_17_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_18_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_19_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_20_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_21_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_22_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_23_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_24_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_25_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_26_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_27_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_28_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_29_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_30_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_31_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_32_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_33_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_34_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_35_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_36_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_37_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_38_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_39_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_40_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_41_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_42_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_43_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_44_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_45_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_46_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_47_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_48_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_49_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_50_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_51_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_52_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_53_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_54_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_55_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_56_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_57_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_58_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_59_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_60_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_61_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_62_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_63_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_64_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_64fc(const xfm64fc* src, xfm64fc* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTFwd_CToC_2_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_3_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_4_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_5_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_6_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_7_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_8_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_9_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_10_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_11_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_12_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_13_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_14_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_15_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_16_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_17_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_18_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_19_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_20_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_21_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_22_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_23_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_24_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_25_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_26_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_27_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_28_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_29_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_30_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_31_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_32_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_33_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_34_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_35_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_36_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_37_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_38_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_39_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_40_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_41_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_42_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_43_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_44_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_45_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_46_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_47_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_48_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_49_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_50_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_51_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_52_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_53_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_54_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_55_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_56_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_57_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_58_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_59_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_60_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_61_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_62_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_63_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTFwd_CToC_64_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
/** @} */

/** @name DFTInv_CToC
 * xfmDFTInv_CToC_N_TYPE
 * @{ */
/**
 * Inverse complex DFT of length N, 2 to 64.
 *
 *     dst[n] = s * sum over k of src[k] * exp(+2 pi i n k / N),   n, k = 0 .. N-1
 *
 * Reads N complex elements of src, writes N complex elements of dst, in natural order.
 *
 * | flag                  | factor s  |
 * |-----------------------|-----------|
 * | XFM_SCALE_FWD_BY_N    | 1         |
 * | XFM_SCALE_INV_BY_N    | 1/N       |
 * | XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) |
 * | XFM_SCALE_NONE        | 1         |
 *
 * Every output is multiplied by s as its last step, also by 1. Both arrays may have any alignment; multiples of 16 are
 * fastest, and the bits do not depend on it. src and dst may overlap in any way: all input is read before the first
 * output is written, and dst is never read.
 * Errors, in the order of the tests: a generic function gives xfmStsBadSize for a length that is not served; then
 * xfmStsNullPtr (src or dst is null), xfmStsBadScale (flag). A failed call writes nothing. Re-entrant; no allocation.
 * Sources: Cooley and Tukey 1965; Good 1958; Rader 1968; Yavne 1968; Bluestein 1970.
 */
xfmStatus xfmDFTInv_CToC_32fc(const xfm32fc* src, xfm32fc* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTInv_CToC_2_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_3_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_4_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_5_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_6_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_7_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_8_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_9_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_10_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_11_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_12_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_13_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_14_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_15_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_16_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_17_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_18_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_19_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_20_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_21_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_22_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_23_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_24_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_25_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_26_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_27_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_28_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_29_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_30_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_31_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_32_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_33_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_34_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_35_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_36_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_37_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_38_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_39_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_40_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_41_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_42_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_43_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_44_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_45_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_46_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_47_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_48_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_49_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_50_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_51_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_52_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_53_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_54_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_55_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_56_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_57_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_58_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_59_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_60_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_61_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_62_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_63_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_64_32fc(const xfm32fc* src, xfm32fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_64fc(const xfm64fc* src, xfm64fc* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTInv_CToC_2_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_3_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_4_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_5_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_6_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_7_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_8_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_9_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_10_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_11_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_12_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_13_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_14_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_15_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_16_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_17_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_18_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_19_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_20_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_21_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_22_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_23_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_24_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_25_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_26_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_27_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_28_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_29_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_30_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_31_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_32_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_33_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_34_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_35_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_36_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_37_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_38_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_39_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_40_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_41_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_42_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_43_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_44_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_45_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_46_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_47_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_48_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_49_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_50_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_51_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_52_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_53_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_54_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_55_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_56_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_57_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_58_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_59_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_60_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_61_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_62_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_63_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
xfmStatus xfmDFTInv_CToC_64_64fc(const xfm64fc* src, xfm64fc* dst, int32_t flag);
/** @} */

/** @name WHT
 * xfmWHT_N_TYPE
 * @{ */
/**
 * Walsh-Hadamard transform of N = 2^order real elements, order 1 to 13, in natural (Hadamard) order.
 *
 *     dst[k] = s * sum over j of (-1)^popcount(j AND k) * src[j],   j, k = 0 .. N-1
 *
 * Reads N elements of src, writes N elements of dst. The transform has no direction: it is its own inverse up to N,
 * so the two flags of 1/N mean the same here. The number in a kernel's name is the order.
 *
 * | flag                  | factor s  |
 * |-----------------------|-----------|
 * | XFM_SCALE_FWD_BY_N    | 1/N       |
 * | XFM_SCALE_INV_BY_N    | 1/N       |
 * | XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) |
 * | XFM_SCALE_NONE        | 1         |
 *
 * The stages run in ascending order, additions and subtractions are those of the element type, and every output is
 * multiplied by s as its last step, also by 1: the bits are those of a plain loop nest over strides 1, 2, 4, ...
 * 1/sqrt(N) is a stored constant: a power of two at even orders. At odd orders the one in binary32 is the nearest
 * value, the one in binary64 the quotient of 1 by the rounded root of N, which lies one unit in the last place below.
 *
 * Both arrays may have any alignment; multiples of 16 are fastest, and the bits do not depend on it. src and dst may
 * overlap in any way: all input is read before the first output is written, and dst is never read.
 *
 * buffer: orders 1 to 7 never look at it, whatever it is. From order 8 on it is work space of the bytes that
 * xfmWHTGetBufferSize_TYPE tells, aligned to 16. What it holds before does not matter; afterwards it holds nothing of
 * use. It belongs to one call at a time. A null buffer is served too, by one xfmMalloc and one xfmFree in every call;
 * the bits are the same.
 * Hazards: the call does not test whether xfmMalloc gave anything: a program whose memory is exhausted ends there. A
 * buffer that is not a multiple of 16 ends the program as well. A buffer that is too small is written past its end.
 *
 * Errors, in the order of the tests: a generic function gives xfmStsBadSize for an order that is not served; then
 * xfmStsNullPtr (src or dst is null), xfmStsBadScale (flag). A failed call writes nothing and allocates nothing.
 * Re-entrant.
 * Sources: Good 1958; Fino and Algazi 1976; for the cut into passes Johnson and Pueschel 2000.
 */
xfmStatus xfmWHT_32f(const xfm32f* src, xfm32f* dst, int32_t order, int32_t flag, void* buffer);
xfmStatus xfmWHT_1_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_2_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_3_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_4_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_5_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_6_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_7_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_8_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_9_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_10_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_11_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_12_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_13_32f(const xfm32f* src, xfm32f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_64f(const xfm64f* src, xfm64f* dst, int32_t order, int32_t flag, void* buffer);
xfmStatus xfmWHT_1_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_2_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_3_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_4_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_5_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_6_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_7_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_8_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_9_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_10_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_11_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_12_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
xfmStatus xfmWHT_13_64f(const xfm64f* src, xfm64f* dst, int32_t flag, void* buffer);
/** @} */

/** @name WHT work buffer
 * xfmWHTGetBufferSize_TYPE
 * @{ */
/**
 * Bytes of the work buffer of the Walsh-Hadamard kernel of this order, stored through size: 0 for the orders 1 to 7.
 * The order is the only thing tested: size must not be null.
 * Errors: xfmStsBadSize for an order that is not 1 to 13; size stays as it was. Re-entrant; no allocation.
 */
xfmStatus xfmWHTGetBufferSize_32f(int32_t order, uint32_t* size);
xfmStatus xfmWHTGetBufferSize_64f(int32_t order, uint32_t* size);
/** @} */

#if defined(__GNUC__)
#pragma GCC visibility pop
#endif
#ifdef __cplusplus
}
#endif

#endif /* XFM_H */
