/* clang-format off */
/**
 * @file xfm.h
 * @brief xfm: short, very fast discrete transforms for x86-64.
 *
 * Plain functions, no planning, no state, no run-time tables: every length and precision of every family has a
 * straight-line kernel of its own. Only the DCT-IV, which goes up to 2^26, has a state that is made beforehand. A family of kernels is written below with the letter N in place of the length; the
 * name without a number is the family's generic function, which takes the length as an argument and accepts every
 * length that the family serves.
 *
 * Arrays are contiguous; the caller owns them, and no function keeps a pointer. All functions may be called from any
 * number of threads at once, but a state of the DCT-IV serves one at a time. NaN and infinity flow through the arithmetic; no function changes the floating-point
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

/** @name DCT4
 * xfmDCT4_TYPE
 * @{ */
/**
 * A state of the DCT-IV in single precision: a plan, its tables and its work areas, in one block of memory. Opaque.
 */
typedef struct xfmDCT4State_32f xfmDCT4State_32f;
/** The same in double precision. */
typedef struct xfmDCT4State_64f xfmDCT4State_64f;

/**
 * Bytes that a state of this length takes, among them what aligning the block costs: a block of any address will do.
 *
 * Accepted lengths: N = 2^k with 1 <= k <= 26, in double precision k <= 25. That is the DCT-IV.
 * Hazards: some more lengths pass and are NO DCT-IV of any length. They are kept as they are; do not use them.
 * - N = 2^k + 1 with 5 <= k <= 26, in double precision 3 <= k <= 25. Such a state runs the plan of 2^k over a wrong map
 *   of the indices, leaves elements of dst unwritten, and reads and writes src[N] and dst[N], one past the end.
 * - N = 2^30 and 2^30 + 1, in double precision 2^29 and 2^29 + 1 too: the sum of bytes wraps around in 32 bits, and
 *   the state would be written far beyond a block of the size told.
 *
 * Errors: xfmStsBadSize for every other length; size stays as it was. size is not tested for null. Re-entrant.
 */
xfmStatus xfmDCT4GetSize_32f(int32_t length, int32_t* size);
xfmStatus xfmDCT4GetSize_64f(int32_t length, int32_t* size);

/**
 * Builds a state in memory of the caller: block has at least the bytes told by the size query, at any address.
 *
 * The state lies in the block and holds addresses: the block must not move, and ends the state when it is given up. A
 * state needs no other end; the block may be used again, by another init too. What state receives is not the block's
 * address. All cosines and sines are worked out here, none when the state runs.
 * In the last 2 GiB of each 4 GiB of addresses (bit 31 set) a block that is no multiple of 32 wastes up to 31 bytes
 * more, and a state of N = 2 .. 32 there may take up to 23 bytes more than told. Blocks aligned to 32 are free of this.
 *
 * Errors, in the order of the tests: xfmStsNullPtr (state or block is null), xfmStsBadSize (the length cannot be broken
 * down); the pointer at state is then as it was. The size of the block is not tested. One thread a block.
 */
xfmStatus xfmDCT4Init_32f(xfmDCT4State_32f** state, int32_t length, void* block);
xfmStatus xfmDCT4Init_64f(xfmDCT4State_64f** state, int32_t length, void* block);

/**
 * Builds a state in memory of xfmMalloc, which xfmDCT4Free releases.
 *
 * Errors, in the order of the tests: xfmStsNullPtr (state is null), xfmStsBadSize (the length is refused by the size
 * query; nothing was allocated), xfmStsNullPtr (no memory). The pointer at state is then as it was. Any thread.
 */
xfmStatus xfmDCT4InitAlloc_32f(xfmDCT4State_32f** state, int32_t length);
xfmStatus xfmDCT4InitAlloc_64f(xfmDCT4State_64f** state, int32_t length);

/**
 * The discrete cosine transform of type IV, of the length N of the state.
 *
 *     dst[k] = sum over j of src[j] * cos(pi/N * (j + 1/2) * (k + 1/2)),   j, k = 0 .. N-1
 *
 * Reads N real elements of src, writes N real elements of dst, in natural order, without a factor: the transform twice
 * over gives the input times N/2. Any alignment; src == dst gives the same bits as separate arrays; other overlaps are
 * not served. No allocation; nothing is carried over from run to run.
 * A run of N > 32 overwrites the work areas in the state, so such a state serves one thread at a time; for threads at
 * once make a state each. A state of N <= 32 is only read.
 *
 * Errors: xfmStsNullPtr (state, src or dst is null), xfmStsBadState (what state points to is no state). Nothing is
 * written then.
 * Sources: Britanak, Yip and Rao 2007; split radix: Duhamel and Hollmann 1984; lifting for N = 4: Daubechies and
 * Sweldens 1998.
 */
xfmStatus xfmDCT4_32f(const xfm32f* src, xfm32f* dst, xfmDCT4State_32f* state);
xfmStatus xfmDCT4_64f(const xfm64f* src, xfm64f* dst, xfmDCT4State_64f* state);

/**
 * Ends a state of xfmDCT4InitAlloc and releases its memory with xfmFree, or one that xfmDCT4Init built in memory of
 * xfmMalloc. Not for a state in other memory: that one ends with its block. The state must not be running.
 *
 * Errors: xfmStsNullPtr (state is null).
 */
xfmStatus xfmDCT4Free_32f(xfmDCT4State_32f* state);
xfmStatus xfmDCT4Free_64f(xfmDCT4State_64f* state);
/** @} */

#if defined(__GNUC__)
#pragma GCC visibility pop
#endif
#ifdef __cplusplus
}
#endif

#endif /* XFM_H */
