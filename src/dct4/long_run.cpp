// A run of a length whose state and arrays outgrow the caches. What is computed is the same as in any run,
// but in an order that meets each line of memory as seldom as may be:
//
// 1. The first split's sub-sequences one by one, of all residues. The samples of one are read from src into a
//    dense copy, for which whole stretches of src are read in order, and folded from there.
// 2. The combine of the first split and the outer one, block by block: some classes of each sub-sequence give
//    32 stretches of adjacent classes of the spectrum, and each stretch is expanded into dst at once. The
//    spectrum as a whole never exists.
//
// The spectra of the sub-sequences are in the work area of the first split, those of the last batches in that
// of the root, with the block behind them. The dense copy is at the end of the second split's work area.
#include "src/dct4/lines.h"
#include "src/dct4/stages.h"

namespace xfm::dct4 {
namespace {

constexpr std::int32_t radix = 32;  ///< r, and r2 of the first split

/// The objects of the plan that the phases need.
template <class T>
struct LongPlan {
  const FoldNode& outer;
  const CombineNode<T>& combine;
  const OddSplitNode<T>& split = *first_of<OddSplitNode<T>>(outer.view);
  const OddFoldNode& odd_fold = *first_of<OddFoldNode>(split.fold_view);
  const OddCombineNode<T>& odd_combine = *first_of<OddCombineNode<T>>(split.combine_view);
  T* work;

  static constexpr std::int32_t batch_lines = radix / line<T>;
  /// Elements that the spectra of the sub-sequences take for the batches of a line.
  std::ptrdiff_t area() const { return radix * sequence_step<T>(odd_fold.fold); }
  T* spectra(std::int32_t batch_line) const {
    return batch_line + 1 < batch_lines ? split.work + batch_line * area() : work;
  }
  T* block() const { return work + area(); }
};

/// The samples of sub-sequence a: from each period of src a stretch of r elements that follow upwards, and
/// one of r that come downwards. Side by side they are the src of a fold of length m2 by themselves.
template <class T>
void copy_sequence(const LongPlan<T>& plan, std::int32_t a, const T* src, T* copy) {
  const std::ptrdiff_t period = plan.odd_fold.step, count = plan.odd_fold.fold / 2;
  const T* up = src + plan.odd_fold.forward_step * a;
  const T* down =
      src + (plan.outer.mirror + 1 - (2 * count - 1) * period) - plan.odd_fold.forward_step * a - radix;
  for (std::ptrdiff_t i = 0; i < count; ++i, up += period, down += period, copy += 2 * radix) {
    for (std::int32_t t = 0; t < radix; t += line<T>) {
      copy_line<Unaligned, InState>(up + t, copy + t);
      copy_line<Unaligned, InState>(down + t, copy + radix + t);
    }
  }
}

template <class T>
void fold_sequences(const LongPlan<T>& plan, const T* src) {
  const std::int32_t m2 = plan.odd_fold.fold;
  const auto& second = *first_of<OddSplitNode<T>>(plan.odd_fold.view);
  const std::ptrdiff_t elements = std::ptrdiff_t{radix} * m2;
  T* const copy = second.work + (radix - 1) * elements;
  for (std::int32_t a = 0; a < radix; ++a) {
    copy_sequence(plan, a, src, copy);
    for (std::int32_t i = 0; i < LongPlan<T>::batch_lines; ++i) {
      const std::ptrdiff_t t = i * line<T>;
      run_odd_split(second, sequence_spectrum(plan.spectra(i), m2, a), copy,
                    {.forward = t, .backward = 2 * elements - 1 - 2 * t, .dense = 5});
    }
  }
}

/// Whether dst is worth streams, and all its outputs are in whole lines.
template <class T>
bool streams_to(const LongPlan<T>& plan, const T* dst) {
  constexpr std::size_t least_bytes = std::size_t{2} << 20;
  const std::size_t elements = std::size_t{radix} * static_cast<std::size_t>(plan.combine.fold);
  return elements * sizeof(T) >= least_bytes && reinterpret_cast<std::uintptr_t>(dst) % line_bytes == 0 &&
         plan.combine.mirror == static_cast<std::int32_t>(2 * static_cast<std::uint32_t>(elements) - 1);
}

template <class T>
void combine_blocks(const LongPlan<T>& plan, T* dst) {
  const std::int32_t m2 = plan.odd_fold.fold, end = plan.odd_combine.classes;
  const bool streams = streams_to(plan, dst);
  for (std::int32_t i = 0; i < end; i += block_classes<T>) {
    for (std::int32_t batch_line = 0; batch_line < LongPlan<T>::batch_lines; ++batch_line)
      run_odd_combine_block(plan.odd_combine, i, {plan.block() + batch_line * line<T>, radix},
                            plan.spectra(batch_line));
    for (std::int32_t j = 0; j < radix; ++j) {
      // After the last block the table starts over.
      const std::int32_t after =
          j + 1 < radix ? first_of_stretch<T>(m2, j + 1, i) : (i + block_classes<T>) % end;
      run_combine_stretch(plan.combine, dst, plan.block() + j * (2 * radix * block_classes<T>),
                          first_of_stretch<T>(m2, j, i), after, streams);
    }
  }
  if (streams) _mm_sfence();
}

}  // namespace

template <class T>
bool is_long(const FoldNode& fold, const CombineNode<T>& combine) {
  if (fold.kind != fold_kind_split || combine.radix != radix) return false;
  const auto& split = *first_of<OddSplitNode<T>>(fold.view);
  constexpr std::int32_t shortest = 256;
  return split.radix == radix && split.fold >= radix * shortest;
}

template <class T>
xfmStatus run_long(const FoldNode& fold, const CombineNode<T>& combine, T* work, T* dst, const T* src) {
  const LongPlan<T> plan{.outer = fold, .combine = combine, .work = work};
  fold_sequences(plan, src);
  combine_blocks(plan, dst);
  return xfmStsOk;
}

template bool is_long(const FoldNode&, const CombineNode<float>&);
template bool is_long(const FoldNode&, const CombineNode<double>&);
template xfmStatus run_long(const FoldNode&, const CombineNode<float>&, float*, float*, const float*);
template xfmStatus run_long(const FoldNode&, const CombineNode<double>&, double*, double*, const double*);

}  // namespace xfm::dct4
