/* clang-format off */
/**
 * @file xfm_many.h
 * @brief xfm: batches, many short transforms by one call.
 *
 * A batch computes `count` transforms of one length, several at a time, one in each lane of the vector registers. It
 * gives the same bits as `count` calls of the function of xfm.h without "Many" in its name, in any number, from and to
 * any places, with any flag.
 *
 * Element k of transform t is read at src[t * srcDistance + k * srcStride] and written at
 * dst[t * dstDistance + k * dstStride], counted in elements of the array's type; so is FFTW's advanced interface. A
 * function reads and writes as many elements of each transform as the single one does. Strides and distances may be
 * negative; src and dst then point to element 0 of transform 0 all the same. Those of dst must keep all elements of all
 * transforms apart.
 *
 * Three roads to memory, the fastest first:
 * - distance 1: lanes are loaded and stored as they are in memory, such as the columns of a matrix in rows;
 * - stride 1: contiguous transforms, such as the rows, are transposed in registers;
 * - anything else is moved element by element.
 * Each of src and dst takes its own. Where transforms on both sides are contiguous, a batch computes them one by one at
 * lengths at which that is faster.
 *
 * In place means the same pointer, strides and distances, and gives the same bits. Between src and dst there must be no
 * other overlap. Alignment is as for single calls: any that the element type has.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length or order, or a negative count), xfmStsNullPtr (src
 * or dst is null, even if count is 0), xfmStsBadScale (flag). A failed call writes nothing, nor does one of count 0.
 *
 * Functions are re-entrant and start no threads. To use several, give each its part of the batch: transforms
 * first .. last - 1 are the batch at src + first * srcDistance and dst + first * dstDistance with the count
 * last - first. Parts that are multiples of 8 transforms fill all lanes.
 */
/* The declarations below are written by xfmgen from the list of families: build the target "header" to renew them. */
#ifndef XFM_MANY_H
#define XFM_MANY_H

#include "xfm.h"

#ifdef __cplusplus
extern "C" {
#endif
#if defined(__GNUC__)
#pragma GCC visibility push(default)
#endif

/** @name Many DFTFwd_CToC
 * @{ */
/** Batches of xfmDFTFwd_CToC_32fc and xfmDFTFwd_CToC_64fc. */
xfmStatus xfmManyDFTFwd_CToC_32fc(const xfm32fc* src, int64_t srcStride, int64_t srcDistance, xfm32fc* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
xfmStatus xfmManyDFTFwd_CToC_64fc(const xfm64fc* src, int64_t srcStride, int64_t srcDistance, xfm64fc* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
/** @} */

/** @name Many DFTInv_CToC
 * @{ */
/** Batches of xfmDFTInv_CToC_32fc and xfmDFTInv_CToC_64fc. */
xfmStatus xfmManyDFTInv_CToC_32fc(const xfm32fc* src, int64_t srcStride, int64_t srcDistance, xfm32fc* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
xfmStatus xfmManyDFTInv_CToC_64fc(const xfm64fc* src, int64_t srcStride, int64_t srcDistance, xfm64fc* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
/** @} */

/** @name Many DFTFwd_RToCCS
 * @{ */
/** Batches of xfmDFTFwd_RToCCS_32f and xfmDFTFwd_RToCCS_64f. */
xfmStatus xfmManyDFTFwd_RToCCS_32f(const xfm32f* src, int64_t srcStride, int64_t srcDistance, xfm32f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
xfmStatus xfmManyDFTFwd_RToCCS_64f(const xfm64f* src, int64_t srcStride, int64_t srcDistance, xfm64f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
/** @} */

/** @name Many DFTFwd_RToPack
 * @{ */
/** Batches of xfmDFTFwd_RToPack_32f and xfmDFTFwd_RToPack_64f. */
xfmStatus xfmManyDFTFwd_RToPack_32f(const xfm32f* src, int64_t srcStride, int64_t srcDistance, xfm32f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
xfmStatus xfmManyDFTFwd_RToPack_64f(const xfm64f* src, int64_t srcStride, int64_t srcDistance, xfm64f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
/** @} */

/** @name Many DFTFwd_RToPerm
 * @{ */
/** Batches of xfmDFTFwd_RToPerm_32f and xfmDFTFwd_RToPerm_64f. */
xfmStatus xfmManyDFTFwd_RToPerm_32f(const xfm32f* src, int64_t srcStride, int64_t srcDistance, xfm32f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
xfmStatus xfmManyDFTFwd_RToPerm_64f(const xfm64f* src, int64_t srcStride, int64_t srcDistance, xfm64f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
/** @} */

/** @name Many DFTInv_CCSToR
 * @{ */
/** Batches of xfmDFTInv_CCSToR_32f and xfmDFTInv_CCSToR_64f. */
xfmStatus xfmManyDFTInv_CCSToR_32f(const xfm32f* src, int64_t srcStride, int64_t srcDistance, xfm32f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
xfmStatus xfmManyDFTInv_CCSToR_64f(const xfm64f* src, int64_t srcStride, int64_t srcDistance, xfm64f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
/** @} */

/** @name Many DFTInv_PackToR
 * @{ */
/** Batches of xfmDFTInv_PackToR_32f and xfmDFTInv_PackToR_64f. */
xfmStatus xfmManyDFTInv_PackToR_32f(const xfm32f* src, int64_t srcStride, int64_t srcDistance, xfm32f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
xfmStatus xfmManyDFTInv_PackToR_64f(const xfm64f* src, int64_t srcStride, int64_t srcDistance, xfm64f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
/** @} */

/** @name Many DFTInv_PermToR
 * @{ */
/** Batches of xfmDFTInv_PermToR_32f and xfmDFTInv_PermToR_64f. */
xfmStatus xfmManyDFTInv_PermToR_32f(const xfm32f* src, int64_t srcStride, int64_t srcDistance, xfm32f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
xfmStatus xfmManyDFTInv_PermToR_64f(const xfm64f* src, int64_t srcStride, int64_t srcDistance, xfm64f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
/** @} */

/** @name Many Hartley
 * @{ */
/** Batches of xfmHartley_32f and xfmHartley_64f. */
xfmStatus xfmManyHartley_32f(const xfm32f* src, int64_t srcStride, int64_t srcDistance, xfm32f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
xfmStatus xfmManyHartley_64f(const xfm64f* src, int64_t srcStride, int64_t srcDistance, xfm64f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t length, int64_t count, int32_t flag);
/** @} */

/** @name Many WHT
 * @{ */
/** Batches of xfmWHT_32f and xfmWHT_64f. Up to order 6 one transform is computed in each
 * lane. From order 7 on single kernels fill their registers by themselves, and a batch is a loop of single calls, through
 * a copy where transforms are not contiguous.
 * buffer is that of single calls: ignored up to order 7, then work space of at least the size that
 * xfmWHTGetBufferSize_TYPE returns, aligned to 16. It serves one call at a time. If it is null, the batch does one
 * xfmMalloc and one xfmFree, whose result is not checked. */
xfmStatus xfmManyWHT_32f(const xfm32f* src, int64_t srcStride, int64_t srcDistance, xfm32f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t order, int64_t count, int32_t flag, void* buffer);
xfmStatus xfmManyWHT_64f(const xfm64f* src, int64_t srcStride, int64_t srcDistance, xfm64f* dst, int64_t dstStride,
    int64_t dstDistance, int32_t order, int64_t count, int32_t flag, void* buffer);
/** @} */


#if defined(__GNUC__)
#pragma GCC visibility pop
#endif
#ifdef __cplusplus
}
#endif

#endif /* XFM_MANY_H */
