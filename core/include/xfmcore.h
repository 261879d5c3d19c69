/**
 * @file xfmcore.h
 * @brief xfmcore: the services that xfm takes from outside, memory and processor features.
 *
 * libxfm calls these three functions of libxfmcore and no others. A program may replace them: by defining
 * them itself, or by a libxfmcore of its own that the loader finds first. xfmMalloc and xfmFree belong
 * together and must be replaced together.
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
 * A size of zero gives a block too: its address differs from that of any other block, no byte of it may be
 * accessed, and it must be freed like the others.
 *
 * @return the block, its content undetermined, or null when memory is exhausted.
 */
void* xfmMalloc(size_t size);

/** Releases a block of xfmMalloc. Null is allowed and does nothing. */
void xfmFree(void* block);

/**
 * Returns whether the processor has the feature with this code: nonzero if it has.
 *
 * This core knows no codes and returns 0 for all of them. xfm asks for 128 alone, and only to choose between
 * the two records of xfmGetLibVersion; no transform depends on the answer.
 */
int ownGetFeature(int feature);

#if defined(__GNUC__)
#pragma GCC visibility pop
#endif
#ifdef __cplusplus
}
#endif

#endif /* XFMCORE_H */
