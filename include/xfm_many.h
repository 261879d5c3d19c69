/* clang-format off */
/**
 * @file xfm_many.h
 * @brief xfm: batches, many short transforms by one call.
 *
 * A batch is `count` transforms of one length. Several are computed at a time, one in each lane of the vector registers.
 * The bits are those of `count` calls of the function of xfm.h without "Many" in its name.
 *
 * Element k of transform t is read at src[t * srcDistance + k * srcStride] and written at
 * dst[t * dstDistance + k * dstStride]. Strides and distances count elements of the array's type, as in FFTW's advanced
 * interface. They may be negative; src and dst always point to element 0 of transform 0. Each transform reads and writes
 * as many elements as a single one does. The places that a batch writes must all be different.
 *
 * How fast memory is reached depends on stride and distance, separately for src and dst. From fast to slow:
 * - distance 1: transforms lie side by side, such as the columns of a matrix stored by rows. Lanes are loaded and stored
 *   as they are in memory.
 * - stride 1: transforms are contiguous, such as the rows of that matrix. They are transposed in registers. If both src
 *   and dst are contiguous, and single transforms are faster at this length, they are computed one by one.
 * - anything else: elements are moved one by one.
 *
 * A batch may work in place: with the same pointer, stride and distance for src and dst, and the same bits. The places
 * of src and dst must not overlap in any other way. Arrays may have any alignment that their element type has.
 *
 * Errors, in the order of the tests: xfmStsBadSize (unsupported length or order, or a negative count), xfmStsNullPtr (src
 * or dst is null, even if count is 0), xfmStsBadScale (flag). A failed call writes nothing, nor does one of count 0.
 *
 * Any number of threads may call these functions at once; none starts threads itself. To divide a batch, give each thread
 * a part: transforms first .. last - 1 are the batch at src + first * srcDistance and dst + first * dstDistance with the
 * count last - first. A part that is a multiple of 8 transforms fills all lanes.
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
 * xfmMalloc and one xfmFree. The result of xfmMalloc is not tested: when memory is exhausted, a null pointer is
 * dereferenced. */
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
