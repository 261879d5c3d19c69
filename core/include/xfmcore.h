/**
 * @file xfmcore.h
 * @brief xfmcore: the outside services of xfm, memory and processor features.
 *
 * libxfm takes these three functions from libxfmcore and nothing else from outside. A program may put its own
 * in their place: by defining them, or by a libxfmcore of its own that the loader finds first. xfmMalloc and
 * xfmFree belong together and are to be replaced together.
 *
 * All three may be called from any number of threads at once.
 */
#ifndef XFMCORE_H
#define XFMCORE_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif
#if defined(__GNUC__)
#pragma GCC visibility push(default)
#endif

/**
 * Allocates a block of size bytes, aligned to 64 bytes: a cache line, and the widest vector there is.
 *
 * A size of zero gives a block too: its address differs from that of every other block, it has no byte that
 * may be accessed, and it must be freed like the others.
 *
 * @return the block, with undetermined content, or null if memory is exhausted.
 */
void* xfmMalloc(size_t size);

/** Releases a block from xfmMalloc. Null is allowed and does nothing. */
void xfmFree(void* block);

/**
 * Returns nonzero if the processor has the feature with the given code.
 *
 * This core knows no codes and always returns 0. xfm asks only for 128, and only to choose between the two
 * records of xfmGetLibVersion. No transform depends on the answer.
 */
int ownGetFeature(int feature);

#if defined(__GNUC__)
#pragma GCC visibility pop
#endif
#ifdef __cplusplus
}
#endif

#endif /* XFMCORE_H */
