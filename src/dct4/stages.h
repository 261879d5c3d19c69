// The stages of a run. Each takes its plan node, the output and the input; an inner stage also the offsets of
// its batch. An unknown kind gives xfmStsBadState, which the callers do not look at: a plan that init
// finished has none.
#pragma once

#include <cstddef>

#include "src/dct4/plan.h"

namespace xfm::dct4 {

/// Where a batch of L residues stands, in elements. With the samples n < 0 taken as n + m, so that n runs
/// from 0 up to m - 1, sample n of the batch's first residue is at forward + step n in the first half, and at
/// forward + backward - step n in the second; the next residues stand one further on in the first half, one
/// back in the second.
struct Offsets {
  std::ptrdiff_t forward, backward, output;
};

template <class T>
xfmStatus run_fold(const FoldNode& node, T* work, const T* src);
template <class T>
xfmStatus run_odd_split(const OddSplitNode<T>& node, T* out, const T* src, Offsets at);
template <class T>
xfmStatus run_odd_fold(const OddFoldNode& node, T* work, const T* src, Offsets at);
template <class T>
xfmStatus run_odd_combine(const OddCombineNode<T>& node, T* out, const T* work, std::ptrdiff_t offset);
template <class T>
xfmStatus run_combine(const CombineNode<T>& node, T* dst, const T* work);

}  // namespace xfm::dct4
