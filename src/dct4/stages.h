// The stages of a run. Each takes its plan node, the place of its output and the place of its input. An
// unknown kind gives xfmStsBadState, which the callers do not test: a plan that init finished has none.
//
// The outer fold takes its residues in batches of L, as many at a time as a register holds. The lengths above
// 2048 split, and all the work of a split is done for as many batches at a time as fill a cache line.
#pragma once

#include <cstddef>

#include "src/dct4/groups.h"
#include "src/dct4/plan.h"

namespace xfm::dct4 {

constexpr std::size_t line_bytes = 64;

/// Elements in a cache line.
template <class T>
constexpr std::int32_t line = static_cast<std::int32_t>(line_bytes / sizeof(T));
/// The widest register, of a line or a part of it.
template <class T>
using Widest = Groups<T, widest>;
static_assert(line_bytes % (widest * group_bytes) == 0);

/// Where the samples of a fold are in src. With n + m in place of a negative n, so that n runs from 0 to
/// m - 1, sample n of the first residue is at forward + step n in the first half and at forward + backward
/// - step n in the second. The next residues follow upwards in the first half and downwards in the second.
/// On a copy that holds every sample of some sub-sequences and no others, samples are 2^dense times as close
/// as in src, and so are the steps.
struct Offsets {
  std::ptrdiff_t forward, backward;
  int dense = 0;
};

/// Where the classes of a fold go: the real parts of class q to start + 2 q part, the imaginary parts to
/// start + (2 q + 1) part.
template <class T>
struct Spectrum {
  T* start;
  std::ptrdiff_t part;
};

/// From the spectrum of a sub-sequence to the next in the work area of a split. Each part of a class is one
/// line, and two more lines keep the sub-sequences apart in the sets of the cache. A line holds the results
/// of its batches until those of the next line overwrite them.
template <class T>
constexpr std::ptrdiff_t sequence_step(std::int32_t fold) {
  return (fold + std::ptrdiff_t{2}) * line<T>;
}
template <class T>
Spectrum<T> sequence_spectrum(T* work, std::int32_t fold, std::int32_t a) {
  return {work + a * sequence_step<T>(fold), line<T>};
}

template <class T>
xfmStatus run_fold(const FoldNode& node, T* work, const T* src);
template <class T>
xfmStatus run_combine(const CombineNode<T>& node, T* dst, const T* work);

// For the batches of a line, at these offsets.
template <class T>
xfmStatus run_odd_split(const OddSplitNode<T>& node, Spectrum<T> out, const T* src, Offsets at);
template <class T>
xfmStatus run_odd_fold(const OddFoldNode& node, T* work, const T* src, Offsets at);
template <class T>
xfmStatus run_odd_combine(const OddCombineNode<T>& node, Spectrum<T> out, T* work);

// ---- Long lengths: the first split, of radix 32, and the combine take turns, block by block.

/// Classes of each sub-sequence in a block.
template <class T>
constexpr std::int32_t block_classes = 2 * line<T>;

/// The first class of stretch j, if the block starts with class i of the sub-sequences: stretch 2 l has the
/// classes m2 l + i, m2 l + i + 1, .., and stretch 2 l - 1 those up to m2 l - 1 - i.
template <class T>
constexpr std::int32_t first_of_stretch(std::int32_t m2, std::int32_t j, std::int32_t i) {
  return j % 2 == 0 ? m2 * (j / 2) + i : m2 * ((j + 1) / 2) - i - block_classes<T>;
}

/// The classes of the first split in a block, for the batches of a line: 32 stretches of block_classes.
template <class T>
void run_odd_combine_block(const OddCombineNode<T>& node, std::int32_t first, Spectrum<T> block,
                           const T* work);

/// Twist and expansion of a stretch from class q on. The stretch from class `next` on will follow. Streams
/// need a dst of whole lines.
template <class T>
void run_combine_stretch(const CombineNode<T>& node, T* dst, const T* stretch, std::int32_t q,
                         std::int32_t next, bool streams);

/// Whether there is room for blocks, and both radixes are 32.
template <class T>
bool is_long(const FoldNode& fold, const CombineNode<T>& combine);
template <class T>
xfmStatus run_long(const FoldNode& fold, const CombineNode<T>& combine, T* work, T* dst, const T* src);

}  // namespace xfm::dct4
