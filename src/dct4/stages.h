// The stages of a run. Each takes its plan node, where its output goes and where its input stands. An unknown
// kind gives xfmStsBadState, which the callers do not look at: a plan that init finished has none.
//
// The outer fold takes its residues in batches of L, one vector each. The lengths above 2048 split, and all
// that belongs to a split is done for four batches at a time, whose vectors fill a cache line.
#pragma once

#include <cstddef>

#include "src/dct4/plan.h"

namespace xfm::dct4 {

/// Elements in a cache line, four vectors.
template <class T>
constexpr std::int32_t line = 4 * lanes<T>;

/// Where the samples of a fold stand in src. With those of negative n taken as n + m, so that n runs from 0
/// to m - 1, sample n of the first residue is at forward + step n in the first half and at forward + backward
/// - step n in the second. The next residues stand further on in the first half, and further back in the
/// second.
struct Offsets {
  std::ptrdiff_t forward, backward;
};

/// Where the classes of a fold go: the real parts of class q to 2 q part, the imaginary parts to (2 q + 1)
/// part.
template <class T>
struct Spectrum {
  T* start;
  std::ptrdiff_t part;
};

/// The spectrum of sub-sequence a in the work area of a split. Its classes are one line a part, and two lines
/// more keep the sub-sequences apart in the sets of the cache. A line holds what four batches leave; the next
/// four overwrite it.
template <class T>
Spectrum<T> sequence_spectrum(T* work, std::int32_t fold, std::int32_t a) {
  return {work + std::ptrdiff_t{a} * (fold + 2) * line<T>, line<T>};
}

template <class T>
xfmStatus run_fold(const FoldNode& node, T* work, const T* src);
template <class T>
xfmStatus run_combine(const CombineNode<T>& node, T* dst, const T* work);

// For the four batches at these offsets.
template <class T>
xfmStatus run_odd_split(const OddSplitNode<T>& node, Spectrum<T> out, const T* src, Offsets at);
template <class T>
xfmStatus run_odd_fold(const OddFoldNode& node, T* work, const T* src, Offsets at);
template <class T>
xfmStatus run_odd_combine(const OddCombineNode<T>& node, Spectrum<T> out, T* work);

}  // namespace xfm::dct4
