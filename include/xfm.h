/* clang-format off */
/**
 * @file xfm.h
 * @brief xfm: short, very fast discrete transforms for x86-64.
 *
 * Every length and precision of every family has a function of its own, straight-line code that needs no plan, no state
 * and no tables computed at run time. Only the DCT-IV, which goes up to 2^26, has a state, which is made beforehand.
 *
 * Each family is described once, with N in place of the length. xfmHartley_12_32f is the kernel for 12 elements of type
 * xfm32f; xfmHartley_32f, the generic function, takes the length as an argument and calls the kernel.
 *
 * For all families:
 * - Arrays are contiguous. They belong to the caller; no function keeps a pointer to them.
 * - Arrays may have any alignment, and the bits of the result do not depend on it.
 * - src may be dst, and the two may overlap in any way: all input is read before the first output is written. For the
 *   DCT-IV they are the same or do not overlap.
 * - Any number of threads may call any function at once. Nothing is locked and, unless a family says so, nothing is
 *   allocated. A state of the DCT-IV serves one thread at a time.
 * - NaN and infinity propagate through the arithmetic.
 * - No function changes the floating-point control state. Promises about bits assume its default: rounding to nearest,
 *   neither FTZ (flush to zero) nor DAZ (denormals are zero). They do not cover the sign and payload of a NaN.
 */
/* The declarations below are written by xfmgen from the list of families: build the target "header" to renew them. */
#ifndef XFM_H
#define XFM_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif
#if defined(__GNUC__)
#pragma GCC visibility push(default)
#endif

/** @name Version
 * The version of this header and of the library that it belongs to. xfmGetLibVersion() reports other, fixed texts.
 * @{ */
#define XFM_VERSION_MAJOR 6                                       /**< 6 of 6.1 */
#define XFM_VERSION_MINOR 1                                       /**< 1 of 6.1 */
#define XFM_VERSION (XFM_VERSION_MAJOR * 100 + XFM_VERSION_MINOR) /**< to be compared: 601 is version 6.1 */
/** @} */

/** @name Lengths
 * The shortest and the longest that each family serves. Complex, real and Hartley transforms serve every length in
 * between, and Walsh-Hadamard transforms every order; the DCT-IV serves the powers of two.
 * @{ */
#define XFM_DFT_MIN_LENGTH 2 /**< of complex, real and Hartley transforms */
#define XFM_DFT_MAX_LENGTH 64 /**< of complex, real and Hartley transforms */
#define XFM_WHT_MIN_ORDER 1 /**< of Walsh-Hadamard transforms */
#define XFM_WHT_MAX_ORDER 13 /**< of Walsh-Hadamard transforms */
#define XFM_DCT4_MIN_LENGTH 2            /**< the shortest DCT-IV */
#define XFM_DCT4_MAX_LENGTH_32F 67108864 /**< the longest in single precision */
#define XFM_DCT4_MAX_LENGTH_64F 33554432 /**< the longest in double precision */
/** @} */

typedef float xfm32f;  /**< IEEE-754 binary32 */
typedef double xfm64f; /**< IEEE-754 binary64 */

/** Complex number, binary32: layout and alignment of float[2]. */
typedef struct {
  xfm32f re; /**< real part */
  xfm32f im; /**< imaginary part */
} xfm32fc;

/** Complex number, binary64: layout and alignment of double[2]. */
typedef struct {
  xfm64f re; /**< real part */
  xfm64f im; /**< imaginary part */
} xfm64fc;

/** Result of a function: xfmStsOk or one of the negative values below. */
typedef int32_t xfmStatus;

enum {
  xfmStsOk = 0,        /**< success */
  xfmStsBadState = -5, /**< not a state of the DCT-IV */
  xfmStsBadSize = -6,  /**< unsupported length or order */
  xfmStsNullPtr = -8,  /**< a required pointer is null */
  xfmStsBadScale = -16 /**< the scale flag is not one of the four values */
};

/** @name Scale flags
 * A transform takes exactly one scale flag; they do not combine. The flag selects the factor s of the transform:
 *
 * | flag                  | forward   | inverse   | Hartley, Walsh-Hadamard |
 * |-----------------------|-----------|-----------|-------------------------|
 * | XFM_SCALE_FWD_BY_N    | 1/N       | 1         | 1/N                     |
 * | XFM_SCALE_INV_BY_N    | 1         | 1/N       | 1/N                     |
 * | XFM_SCALE_BY_SQRT_N   | 1/sqrt(N) | 1/sqrt(N) | 1/sqrt(N)               |
 * | XFM_SCALE_NONE        | 1         | 1         | 1                       |
 *
 * With any flag but the last, forward and inverse transform together return the input, and so does a Hartley or
 * Walsh-Hadamard transform applied twice, if that is by 1/sqrt(N). The DCT-IV has no flag.
 * @{ */
/** The scale flags. */
enum {
  XFM_SCALE_FWD_BY_N = 1,  /**< the forward direction carries 1/N */
  XFM_SCALE_INV_BY_N = 2,  /**< the inverse direction carries 1/N */
  XFM_SCALE_BY_SQRT_N = 4, /**< both directions carry 1/sqrt(N) */
  XFM_SCALE_NONE = 8       /**< no factor in either direction */
};
/** @} */

/** Version and build of the library. */
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

/** The version record of the library: constant data, which the caller must neither change nor free. Never null. */
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
 * s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
 * by s, even if s is 1.
 * Arrays at multiples of 16 bytes are fastest.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length, generic functions only), xfmStsNullPtr (src
 * or dst is null), xfmStsBadScale (flag). A failed call writes nothing.
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
 * s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
 * by s, even if s is 1.
 * Arrays at multiples of 16 bytes are fastest.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length, generic functions only), xfmStsNullPtr (src
 * or dst is null), xfmStsBadScale (flag). A failed call writes nothing.
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

/** @name DFTFwd_RToCCS
 * xfmDFTFwd_RToCCS_N_TYPE
 * @{ */
/**
 * Forward real DFT of length N, 2 to 64, in the CCS layout.
 *
 *     X[k] = s * sum over j of src[j] * exp(-2 pi i j k / N),   j = 0 .. N-1,   k = 0 .. N/2
 *
 * Reads N elements of src; writes the half spectrum, 2*(N/2 + 1) elements of dst:
 * Re X[k] in dst[2k] and Im X[k] in dst[2k+1]; the imaginary parts of bin 0 and, for even N, of bin N/2
 * are stored as +0, whatever the data, and are not multiplied by s.
 *
 * s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
 * by s, even if s is 1.
 * There are two exceptions: in single precision an output that is itself a linear combination is multiplied in
 * binary64, before it is rounded; and a few outputs are subtracted from zero afterwards, to correct their sign.
 * In single precision sums are rounded to binary32, and linear combinations with constants are evaluated in binary64
 * and rounded once.
 * The three layouts hold the same bits for the same input.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length, generic functions only), xfmStsNullPtr (src
 * or dst is null), xfmStsBadScale (flag). A failed call writes nothing.
 * Sources: Sorensen, Jones, Heideman and Burrus 1987; Good 1958; Cooley and Tukey 1965; Rader 1968.
 */
xfmStatus xfmDFTFwd_RToCCS_32f(const xfm32f* src, xfm32f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_2_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_3_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_4_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_5_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_6_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_7_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_8_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_9_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_10_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_11_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_12_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_13_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_14_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_15_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_16_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_17_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_18_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_19_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_20_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_21_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_22_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_23_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_24_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_25_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_26_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_27_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_28_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_29_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_30_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_31_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_32_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_33_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_34_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_35_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_36_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_37_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_38_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_39_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_40_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_41_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_42_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_43_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_44_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_45_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_46_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_47_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_48_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_49_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_50_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_51_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_52_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_53_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_54_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_55_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_56_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_57_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_58_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_59_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_60_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_61_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_62_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_63_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_64_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_64f(const xfm64f* src, xfm64f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_2_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_3_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_4_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_5_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_6_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_7_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_8_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_9_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_10_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_11_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_12_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_13_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_14_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_15_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_16_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_17_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_18_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_19_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_20_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_21_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_22_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_23_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_24_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_25_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_26_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_27_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_28_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_29_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_30_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_31_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_32_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_33_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_34_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_35_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_36_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_37_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_38_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_39_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_40_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_41_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_42_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_43_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_44_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_45_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_46_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_47_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_48_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_49_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_50_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_51_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_52_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_53_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_54_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_55_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_56_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_57_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_58_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_59_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_60_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_61_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_62_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_63_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToCCS_64_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
/** @} */

/** @name DFTFwd_RToPack
 * xfmDFTFwd_RToPack_N_TYPE
 * @{ */
/**
 * Forward real DFT of length N, 2 to 64, in the Pack layout.
 *
 *     X[k] = s * sum over j of src[j] * exp(-2 pi i j k / N),   j = 0 .. N-1,   k = 0 .. N/2
 *
 * Reads N elements of src; writes the half spectrum, N elements of dst:
 * Re X[0], Re X[1], Im X[1], Re X[2], Im X[2], ..., and, for even N, Re X[N/2] at the end.
 *
 * s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
 * by s, even if s is 1.
 * There are two exceptions: in single precision an output that is itself a linear combination is multiplied in
 * binary64, before it is rounded; and a few outputs are subtracted from zero afterwards, to correct their sign.
 * In single precision sums are rounded to binary32, and linear combinations with constants are evaluated in binary64
 * and rounded once.
 * The three layouts hold the same bits for the same input.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length, generic functions only), xfmStsNullPtr (src
 * or dst is null), xfmStsBadScale (flag). A failed call writes nothing.
 * Sources: Sorensen, Jones, Heideman and Burrus 1987; Good 1958; Cooley and Tukey 1965; Rader 1968.
 */
xfmStatus xfmDFTFwd_RToPack_32f(const xfm32f* src, xfm32f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_2_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_3_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_4_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_5_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_6_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_7_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_8_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_9_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_10_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_11_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_12_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_13_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_14_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_15_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_16_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_17_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_18_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_19_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_20_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_21_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_22_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_23_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_24_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_25_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_26_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_27_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_28_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_29_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_30_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_31_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_32_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_33_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_34_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_35_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_36_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_37_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_38_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_39_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_40_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_41_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_42_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_43_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_44_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_45_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_46_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_47_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_48_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_49_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_50_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_51_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_52_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_53_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_54_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_55_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_56_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_57_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_58_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_59_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_60_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_61_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_62_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_63_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_64_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_64f(const xfm64f* src, xfm64f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_2_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_3_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_4_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_5_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_6_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_7_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_8_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_9_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_10_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_11_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_12_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_13_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_14_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_15_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_16_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_17_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_18_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_19_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_20_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_21_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_22_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_23_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_24_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_25_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_26_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_27_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_28_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_29_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_30_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_31_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_32_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_33_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_34_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_35_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_36_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_37_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_38_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_39_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_40_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_41_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_42_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_43_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_44_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_45_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_46_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_47_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_48_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_49_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_50_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_51_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_52_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_53_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_54_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_55_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_56_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_57_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_58_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_59_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_60_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_61_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_62_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_63_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPack_64_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
/** @} */

/** @name DFTFwd_RToPerm
 * xfmDFTFwd_RToPerm_N_TYPE
 * @{ */
/**
 * Forward real DFT of length N, 2 to 64, in the Perm layout.
 *
 *     X[k] = s * sum over j of src[j] * exp(-2 pi i j k / N),   j = 0 .. N-1,   k = 0 .. N/2
 *
 * Reads N elements of src; writes the half spectrum, N elements of dst:
 * for even N Re X[0], Re X[N/2], Re X[1], Im X[1], Re X[2], Im X[2], ...; for odd N as Pack.
 *
 * s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
 * by s, even if s is 1.
 * There are two exceptions: in single precision an output that is itself a linear combination is multiplied in
 * binary64, before it is rounded; and a few outputs are subtracted from zero afterwards, to correct their sign.
 * In single precision sums are rounded to binary32, and linear combinations with constants are evaluated in binary64
 * and rounded once.
 * The three layouts hold the same bits for the same input.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length, generic functions only), xfmStsNullPtr (src
 * or dst is null), xfmStsBadScale (flag). A failed call writes nothing.
 * Sources: Sorensen, Jones, Heideman and Burrus 1987; Good 1958; Cooley and Tukey 1965; Rader 1968.
 */
xfmStatus xfmDFTFwd_RToPerm_32f(const xfm32f* src, xfm32f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_2_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_3_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_4_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_5_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_6_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_7_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_8_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_9_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_10_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_11_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_12_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_13_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_14_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_15_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_16_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_17_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_18_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_19_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_20_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_21_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_22_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_23_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_24_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_25_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_26_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_27_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_28_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_29_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_30_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_31_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_32_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_33_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_34_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_35_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_36_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_37_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_38_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_39_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_40_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_41_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_42_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_43_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_44_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_45_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_46_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_47_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_48_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_49_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_50_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_51_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_52_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_53_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_54_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_55_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_56_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_57_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_58_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_59_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_60_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_61_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_62_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_63_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_64_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_64f(const xfm64f* src, xfm64f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_2_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_3_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_4_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_5_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_6_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_7_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_8_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_9_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_10_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_11_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_12_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_13_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_14_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_15_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_16_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_17_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_18_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_19_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_20_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_21_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_22_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_23_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_24_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_25_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_26_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_27_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_28_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_29_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_30_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_31_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_32_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_33_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_34_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_35_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_36_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_37_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_38_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_39_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_40_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_41_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_42_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_43_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_44_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_45_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_46_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_47_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_48_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_49_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_50_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_51_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_52_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_53_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_54_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_55_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_56_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_57_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_58_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_59_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_60_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_61_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_62_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_63_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTFwd_RToPerm_64_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
/** @} */

/** @name DFTInv_CCSToR
 * xfmDFTInv_CCSToR_N_TYPE
 * @{ */
/**
 * Inverse real DFT of length N, 2 to 64, from the CCS layout.
 *
 *     dst[j] = s * sum over k of X[k] * exp(+2 pi i j k / N),   j, k = 0 .. N-1,   X[N-k] = conj(X[k])
 *
 * Writes N elements of dst; src holds the bins 0 .. N/2 in 2*(N/2 + 1) elements:
 * Re X[k] in src[2k] and Im X[k] in src[2k+1]; the imaginary parts of bin 0 and, for even N, of bin N/2
 * are never read.
 *
 * s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
 * by s, even if s is 1.
 * In single precision sums are rounded to binary32, and linear combinations with constants are evaluated in binary64
 * and rounded once.
 * The three layouts give the same bits, except for the last bit at N = 7, 20, 40, 49 and 50.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length, generic functions only), xfmStsNullPtr (src
 * or dst is null), xfmStsBadScale (flag). A failed call writes nothing.
 * Sources: those of the forward transforms, whose networks run transposed here (Bernstein 2006).
 */
xfmStatus xfmDFTInv_CCSToR_32f(const xfm32f* src, xfm32f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_2_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_3_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_4_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_5_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_6_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_7_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_8_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_9_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_10_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_11_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_12_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_13_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_14_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_15_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_16_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_17_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_18_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_19_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_20_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_21_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_22_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_23_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_24_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_25_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_26_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_27_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_28_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_29_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_30_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_31_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_32_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_33_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_34_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_35_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_36_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_37_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_38_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_39_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_40_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_41_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_42_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_43_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_44_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_45_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_46_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_47_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_48_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_49_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_50_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_51_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_52_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_53_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_54_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_55_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_56_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_57_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_58_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_59_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_60_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_61_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_62_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_63_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_64_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_64f(const xfm64f* src, xfm64f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_2_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_3_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_4_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_5_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_6_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_7_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_8_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_9_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_10_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_11_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_12_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_13_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_14_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_15_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_16_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_17_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_18_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_19_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_20_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_21_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_22_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_23_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_24_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_25_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_26_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_27_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_28_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_29_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_30_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_31_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_32_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_33_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_34_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_35_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_36_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_37_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_38_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_39_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_40_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_41_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_42_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_43_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_44_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_45_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_46_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_47_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_48_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_49_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_50_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_51_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_52_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_53_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_54_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_55_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_56_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_57_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_58_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_59_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_60_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_61_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_62_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_63_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_CCSToR_64_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
/** @} */

/** @name DFTInv_PackToR
 * xfmDFTInv_PackToR_N_TYPE
 * @{ */
/**
 * Inverse real DFT of length N, 2 to 64, from the Pack layout.
 *
 *     dst[j] = s * sum over k of X[k] * exp(+2 pi i j k / N),   j, k = 0 .. N-1,   X[N-k] = conj(X[k])
 *
 * Writes N elements of dst; src holds the bins 0 .. N/2 in N elements:
 * Re X[0], Re X[1], Im X[1], Re X[2], Im X[2], ..., and, for even N, Re X[N/2] at the end.
 *
 * s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
 * by s, even if s is 1.
 * In single precision sums are rounded to binary32, and linear combinations with constants are evaluated in binary64
 * and rounded once.
 * The three layouts give the same bits, except for the last bit at N = 7, 20, 40, 49 and 50.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length, generic functions only), xfmStsNullPtr (src
 * or dst is null), xfmStsBadScale (flag). A failed call writes nothing.
 * Sources: those of the forward transforms, whose networks run transposed here (Bernstein 2006).
 */
xfmStatus xfmDFTInv_PackToR_32f(const xfm32f* src, xfm32f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTInv_PackToR_2_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_3_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_4_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_5_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_6_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_7_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_8_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_9_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_10_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_11_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_12_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_13_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_14_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_15_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_16_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_17_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_18_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_19_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_20_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_21_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_22_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_23_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_24_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_25_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_26_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_27_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_28_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_29_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_30_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_31_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_32_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_33_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_34_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_35_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_36_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_37_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_38_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_39_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_40_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_41_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_42_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_43_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_44_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_45_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_46_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_47_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_48_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_49_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_50_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_51_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_52_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_53_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_54_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_55_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_56_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_57_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_58_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_59_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_60_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_61_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_62_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_63_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_64_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_64f(const xfm64f* src, xfm64f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTInv_PackToR_2_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_3_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_4_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_5_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_6_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_7_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_8_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_9_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_10_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_11_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_12_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_13_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_14_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_15_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_16_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_17_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_18_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_19_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_20_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_21_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_22_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_23_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_24_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_25_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_26_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_27_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_28_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_29_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_30_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_31_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_32_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_33_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_34_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_35_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_36_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_37_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_38_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_39_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_40_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_41_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_42_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_43_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_44_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_45_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_46_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_47_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_48_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_49_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_50_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_51_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_52_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_53_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_54_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_55_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_56_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_57_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_58_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_59_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_60_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_61_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_62_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_63_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PackToR_64_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
/** @} */

/** @name DFTInv_PermToR
 * xfmDFTInv_PermToR_N_TYPE
 * @{ */
/**
 * Inverse real DFT of length N, 2 to 64, from the Perm layout.
 *
 *     dst[j] = s * sum over k of X[k] * exp(+2 pi i j k / N),   j, k = 0 .. N-1,   X[N-k] = conj(X[k])
 *
 * Writes N elements of dst; src holds the bins 0 .. N/2 in N elements:
 * for even N Re X[0], Re X[N/2], Re X[1], Im X[1], Re X[2], Im X[2], ...; for odd N as Pack.
 *
 * s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
 * by s, even if s is 1.
 * In single precision sums are rounded to binary32, and linear combinations with constants are evaluated in binary64
 * and rounded once.
 * The three layouts give the same bits, except for the last bit at N = 7, 20, 40, 49 and 50.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length, generic functions only), xfmStsNullPtr (src
 * or dst is null), xfmStsBadScale (flag). A failed call writes nothing.
 * Sources: those of the forward transforms, whose networks run transposed here (Bernstein 2006).
 */
xfmStatus xfmDFTInv_PermToR_32f(const xfm32f* src, xfm32f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTInv_PermToR_2_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_3_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_4_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_5_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_6_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_7_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_8_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_9_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_10_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_11_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_12_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_13_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_14_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_15_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_16_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_17_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_18_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_19_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_20_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_21_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_22_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_23_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_24_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_25_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_26_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_27_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_28_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_29_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_30_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_31_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_32_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_33_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_34_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_35_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_36_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_37_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_38_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_39_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_40_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_41_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_42_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_43_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_44_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_45_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_46_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_47_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_48_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_49_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_50_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_51_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_52_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_53_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_54_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_55_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_56_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_57_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_58_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_59_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_60_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_61_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_62_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_63_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_64_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_64f(const xfm64f* src, xfm64f* dst, int32_t length, int32_t flag);
xfmStatus xfmDFTInv_PermToR_2_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_3_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_4_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_5_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_6_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_7_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_8_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_9_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_10_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_11_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_12_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_13_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_14_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_15_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_16_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_17_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_18_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_19_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_20_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_21_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_22_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_23_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_24_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_25_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_26_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_27_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_28_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_29_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_30_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_31_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_32_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_33_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_34_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_35_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_36_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_37_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_38_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_39_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_40_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_41_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_42_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_43_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_44_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_45_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_46_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_47_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_48_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_49_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_50_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_51_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_52_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_53_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_54_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_55_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_56_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_57_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_58_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_59_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_60_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_61_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_62_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_63_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmDFTInv_PermToR_64_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
/** @} */

/** @name Hartley
 * xfmHartley_N_TYPE
 * @{ */
/**
 * Hartley transform of length N, 2 to 64.
 *
 *     dst[k] = s * sum over j of src[j] * (cos(2 pi j k / N) + sin(2 pi j k / N)),   j, k = 0 .. N-1
 *
 * Reads N elements of src, writes N elements of dst, in natural order. The transform is its own inverse but for a
 * factor N, so it has no direction.
 * s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
 * by s, even if s is 1.
 * In single precision sums are rounded to binary32, and linear combinations with constants are evaluated in binary64
 * and rounded once.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length, generic functions only), xfmStsNullPtr (src
 * or dst is null), xfmStsBadScale (flag). A failed call writes nothing.
 * Sources: Hartley 1942; Bracewell 1983; Sorensen, Jones, Burrus and Heideman 1985; Rader 1968.
 */
xfmStatus xfmHartley_32f(const xfm32f* src, xfm32f* dst, int32_t length, int32_t flag);
xfmStatus xfmHartley_2_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_3_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_4_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_5_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_6_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_7_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_8_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_9_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_10_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_11_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_12_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_13_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_14_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_15_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_16_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_17_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_18_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_19_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_20_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_21_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_22_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_23_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_24_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_25_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_26_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_27_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_28_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_29_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_30_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_31_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_32_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_33_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_34_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_35_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_36_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_37_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_38_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_39_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_40_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_41_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_42_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_43_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_44_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_45_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_46_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_47_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_48_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_49_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_50_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_51_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_52_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_53_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_54_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_55_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_56_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_57_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_58_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_59_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_60_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_61_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_62_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_63_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_64_32f(const xfm32f* src, xfm32f* dst, int32_t flag);
xfmStatus xfmHartley_64f(const xfm64f* src, xfm64f* dst, int32_t length, int32_t flag);
xfmStatus xfmHartley_2_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_3_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_4_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_5_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_6_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_7_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_8_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_9_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_10_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_11_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_12_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_13_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_14_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_15_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_16_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_17_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_18_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_19_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_20_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_21_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_22_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_23_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_24_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_25_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_26_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_27_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_28_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_29_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_30_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_31_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_32_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_33_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_34_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_35_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_36_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_37_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_38_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_39_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_40_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_41_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_42_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_43_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_44_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_45_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_46_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_47_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_48_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_49_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_50_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_51_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_52_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_53_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_54_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_55_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_56_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_57_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_58_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_59_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_60_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_61_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_62_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_63_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
xfmStatus xfmHartley_64_64f(const xfm64f* src, xfm64f* dst, int32_t flag);
/** @} */

/** @name WHT
 * xfmWHT_N_TYPE
 * @{ */
/**
 * Walsh-Hadamard transform of N = 2^order real elements, order 1 to 13, in natural (Hadamard) order.
 *
 *     dst[k] = s * sum over j of (-1)^popcount(j AND k) * src[j],   j, k = 0 .. N-1
 *
 * The number in a kernel's name is the order. Reads N elements of src, writes N elements of dst. The transform is its
 * own inverse but for a factor N, so it has no direction.
 * s is the factor that flag selects, see XFM_SCALE_NONE. The last operation on every output is the multiplication
 * by s, even if s is 1.
 * Stages run in ascending order, and additions and subtractions are in the precision of the elements: the bits are
 * those of a plain loop nest over the strides 1, 2, 4, ...
 * 1/sqrt(N) is a stored constant: a power of two at even orders. At odd orders it is the nearest value in binary32; in
 * binary64 it is 1 divided by the rounded root of N, which is one unit in the last place below the nearest value.
 * Arrays at multiples of 16 bytes are fastest.
 *
 * buffer: ignored for the orders 1 to 7. From order 8 on it is work space of at least the size that
 * xfmWHTGetBufferSize_TYPE returns, aligned to 16 bytes. What it contains does not matter, before or after the call.
 * It serves one call at a time. If buffer is null, each call does one xfmMalloc and one xfmFree, and the bits are the
 * same.
 * Hazards: the result of that xfmMalloc is not tested: when memory is exhausted, a null pointer is dereferenced. A
 * buffer that is not aligned to 16 bytes may crash the program as well. A buffer that is too small is written past its
 * end.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported order, generic functions only), xfmStsNullPtr (src
 * or dst is null), xfmStsBadScale (flag). A failed call writes nothing.
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
 * The size in bytes of the work buffer that the Walsh-Hadamard kernel of this order needs, stored in *size: 0 for the
 * orders 1 to 7. size must not be null; it is not tested.
 * Errors: xfmStsBadSize for an order outside 1 to 13; *size is then unchanged.
 */
xfmStatus xfmWHTGetBufferSize_32f(int32_t order, uint32_t* size);
xfmStatus xfmWHTGetBufferSize_64f(int32_t order, uint32_t* size);
/** @} */

/** @name DCT4
 * xfmDCT4_TYPE
 * The discrete cosine transform of type IV. xfmDCT4InitAlloc_TYPE makes a state, xfmDCT4_TYPE runs it, xfmDCT4Free_TYPE
 * releases it.
 * @{ */
/** A state of the DCT-IV in single precision, opaque: a plan, its tables and its work areas in one block of memory. */
typedef struct xfmDCT4State_32f xfmDCT4State_32f;
/** The same in double precision. */
typedef struct xfmDCT4State_64f xfmDCT4State_64f;

/**
 * The size in bytes of a state of this length, stored in *size. It leaves room for aligning the state, so the block may
 * have any address. size must not be null; it is not tested.
 *
 * The lengths of the DCT-IV are N = 2^k with 1 <= k <= 26, in double precision k <= 25.
 *
 * Hazards: the following lengths are accepted as well, but what they make is NOT a DCT-IV of any length. Do not
 * use them; xfmDCT4IsServed_TYPE of xfm_lookup.h returns 1 for lengths that are safe.
 * - N = 2^k + 1 with 5 <= k <= 26, in double precision 3 <= k <= 25. Such a state runs the plan of 2^k with wrong
 *   indices, leaves elements of dst unwritten, and goes one element past the end of src and of dst.
 * - N = 2^30 and 2^30 + 1, in double precision 2^29 and 2^29 + 1 too. The number of bytes does not fit in 32 bits and
 *   wraps around, so the state is written far beyond a block of the size returned.
 *
 * Errors: xfmStsBadSize for every other length; *size is then unchanged.
 */
xfmStatus xfmDCT4GetSize_32f(int32_t length, int32_t* size);
xfmStatus xfmDCT4GetSize_64f(int32_t length, int32_t* size);

/**
 * Makes a state in memory of the caller: a block of at least the size that xfmDCT4GetSize_TYPE returns, at any address.
 *
 * The state lies in the block and contains addresses, so the block must not move while the state is in use. *state is
 * not the address of the block. A state made in this way need not be ended: the block may be freed, or used again, also
 * for another state. All cosines and sines are computed here, none when the state runs.
 *
 * The size of the block is not tested, and the size returned is exact with one exception: where bit 31 of an address is
 * set, a block that is not aligned to 32 bytes wastes up to 31 bytes more, and a state of N = 2 .. 32 may end up to 23
 * bytes beyond the size returned. Align blocks to 32 bytes, and this does not concern you.
 * A length that xfmDCT4GetSize_TYPE refuses has no size: it may be refused here only after part of a plan was written,
 * past the end of any block. Ask for the size first.
 *
 * Errors, in the order of the tests: xfmStsNullPtr (state or block is null), xfmStsBadSize (no plan for this length);
 * *state is then unchanged.
 */
xfmStatus xfmDCT4Init_32f(xfmDCT4State_32f** state, int32_t length, void* block);
xfmStatus xfmDCT4Init_64f(xfmDCT4State_64f** state, int32_t length, void* block);

/**
 * Makes a state in memory from xfmMalloc. xfmDCT4Free_TYPE releases it.
 *
 * Errors, in the order of the tests: xfmStsNullPtr (state is null), xfmStsBadSize (xfmDCT4GetSize_TYPE refuses the
 * length; nothing is allocated), xfmStsNullPtr (out of memory); *state is then unchanged.
 */
xfmStatus xfmDCT4InitAlloc_32f(xfmDCT4State_32f** state, int32_t length);
xfmStatus xfmDCT4InitAlloc_64f(xfmDCT4State_64f** state, int32_t length);

/**
 * The discrete cosine transform of type IV (DCT-IV), of the length N of the state.
 *
 *     dst[k] = sum over j of src[j] * cos(pi/N * (j + 1/2) * (k + 1/2)),   j, k = 0 .. N-1
 *
 * Reads N elements of src, writes N elements of dst, in natural order. There is no factor: applied twice, the transform
 * gives the input times N/2. src may be dst, with the same bits as separate arrays; they must not overlap in any other
 * way. Arrays may have any alignment. Nothing is allocated, and nothing carries over from one run to the next.
 * A run of N > 32 writes work areas in the state, so threads that run at once need a state each. A state of N <= 32 is
 * only read, and threads may share it.
 *
 * Errors: xfmStsNullPtr (state, src or dst is null), xfmStsBadState (state does not point to a state). A failed call
 * writes nothing.
 * Sources: Britanak, Yip and Rao 2007; split radix: Duhamel and Hollmann 1984; lifting for N = 4: Daubechies and
 * Sweldens 1998.
 */
xfmStatus xfmDCT4_32f(const xfm32f* src, xfm32f* dst, xfmDCT4State_32f* state);
xfmStatus xfmDCT4_64f(const xfm64f* src, xfm64f* dst, xfmDCT4State_64f* state);

/**
 * Ends a state that xfmDCT4InitAlloc_TYPE made, and releases its memory with xfmFree. It also ends one that
 * xfmDCT4Init_TYPE made in a block from xfmMalloc; a state in any other memory must not be passed. The state must not
 * be running.
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
