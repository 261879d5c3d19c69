// The fold: for each batch of L residues the odd DFT of their samples, by a leaf or by a split. A register
// has the residues of one batch or of several.
#include "src/dct4/fold.h"
#include "src/dct4/lines.h"
#include "src/dct4/stages.h"

namespace xfm::dct4 {
namespace {

/// The classes of the batches in a register. Where the distance is a constant, here and below, addresses take
/// no arithmetic.
template <class V, class Distance>
struct ToSpectrum {
  Element<V>* start;
  Distance part;

  template <int q>
  XFM_INLINE void put(Complex<V> z) const {
    Element<V>* const at = start + 2 * q * part;
    InState::store(at, z.re);
    InState::store(at + part, z.im);
  }
};

// ---- Leaves of the outer fold.

/// The samples of a register's residues, at any address, 2 r apart. Those of negative n come in descending
/// order.
template <class V, class Distance>
struct Samples {
  const Element<V>* ahead;   ///< of n = 0
  const Element<V>* behind;  ///< the lowest of n = -1
  Distance r;

  XFM_INLINE V operator()(std::ptrdiff_t n) const {
    return n >= 0 ? Unaligned::load<V>(ahead + n * 2 * r)
                  : reversed(Unaligned::load<V>(behind - (n + 1) * 2 * r));
  }
};

template <class V, int m, class T, class Distance>
xfmStatus fold_batches(const FoldNode& node, T* work, const T* src, Distance r) {
  constexpr int lanes = lanes_of<V>;
  // n = -1 is the last one, n = m - 1 from the front.
  const T* behind = src + (node.mirror - (m - 1) * 2 * r - (lanes - 1));
  for (std::int32_t t = 0; t < r; t += lanes) {
    fold<V, m>(Samples<V, Distance>{src, behind, r}, ToSpectrum<V, Distance>{work, r});
    src += lanes;
    behind -= lanes;
    work += lanes;
  }
  return xfmStsOk;
}

/// The radixes are those of the powers of two that have this m.
template <class T, int m, int... radixes>
xfmStatus fold_batches(const FoldNode& node, T* work, const T* src) {
  const auto fold_all = [&](auto r) XFM_INLINE {
    return with_groups(static_cast<std::int32_t>(r) / group_size<T>, [&](auto groups) XFM_INLINE {
      return fold_batches<Groups<T, groups>, m>(node, work, src, r);
    });
  };
  xfmStatus status = xfmStsOk;
  const bool known = ((node.part == radixes && (status = fold_all(Constant<radixes>()), true)) || ...);
  return known ? status : fold_all(std::ptrdiff_t{node.part});
}

// ---- Leaves of a split. Their samples are so far apart, by powers of two, that most of them fall into a few
// sets of the cache: a leaf works on a copy, for which every line is read once.

/// A line for every sample n, those of negative n at n + m.
template <class V, int m>
struct SampleLines {
  const Element<V>* batches;

  XFM_INLINE V operator()(int n) const {
    return Aligned::load<V>(batches + (n >= 0 ? n : n + m) * line<Element<V>>);
  }
};

template <class T, int m>
XFM_INLINE inline void copy_samples(const T* src, Offsets at, std::ptrdiff_t step, T* lines) {
  const T* ahead = src + at.forward;
  const T* behind = src + (at.forward + at.backward - m / 2 * step - (line<T> - 1));
  for (int n = 0; n < m / 2; ++n, ahead += step) copy_line<Unaligned, Aligned>(ahead, lines + n * line<T>);
  for (int n = m / 2; n < m; ++n, behind -= step)
    copy_line_reversed<Unaligned, Aligned>(behind, lines + n * line<T>);
}

template <class T, int m>
void fold_lines(const T* src, Offsets at, std::ptrdiff_t step, T* out) {
  alignas(line_bytes) T samples[m * line<T>];
  copy_samples<T, m>(src, at, step, samples);
  using V = Widest<T>;
  for (int t = 0; t < line<T>; t += lanes_of<V>)
    fold<V, m>(SampleLines<V, m>{samples + t}, ToSpectrum<V, Constant<line<T>>>{out + t, {}});
}

Offsets next_sequence(const OddFoldNode& node, Offsets at) {
  const std::ptrdiff_t step = node.forward_step >> at.dense;
  return {at.forward + step, at.backward - 2 * step, at.dense};
}

template <class T, int m>
xfmStatus fold_sequences(const OddFoldNode& node, T* work, const T* src, Offsets at) {
  for (std::int32_t a = 0; a < node.sequences; ++a, at = next_sequence(node, at))
    fold_lines<T, m>(src, at, node.step >> at.dense, sequence_spectrum(work, m, a).start);
  return xfmStsOk;
}

// ---- Splits.

template <class T>
xfmStatus split_sequences(const OddFoldNode& node, T* work, const T* src, Offsets at) {
  const auto& split = *first_of<OddSplitNode<T>>(node.view);
  for (std::int32_t a = 0; a < node.sequences; ++a, at = next_sequence(node, at))
    run_odd_split(split, sequence_spectrum(work, node.fold, a), src, at);
  return xfmStsOk;
}

template <class T>
xfmStatus split_batches(const FoldNode& node, T* work, const T* src) {
  const auto& split = *first_of<OddSplitNode<T>>(node.view);
  for (std::ptrdiff_t t = 0; t < node.part; t += line<T>)
    run_odd_split(split, {work + t, node.part}, src, {.forward = t, .backward = node.mirror - 2 * t});
  return xfmStsOk;
}

}  // namespace

template <class T>
xfmStatus run_fold(const FoldNode& node, T* work, const T* src) {
  switch (node.kind) {
    case 1:
      return fold_batches<T, 2>(node, work, src);
    case 2:
      return fold_batches<T, 4>(node, work, src);
    case 3:
      return fold_batches<T, 8, 8>(node, work, src);
    case 4:
      return fold_batches<T, 16, 8, 16>(node, work, src);
    case 5:
      return fold_batches<T, 32, 16, 32>(node, work, src);
    case 6:
      return fold_batches<T, 64, 32>(node, work, src);
    case fold_kind_split:
      return split_batches(node, work, src);
    default:
      return xfmStsBadState;
  }
}

template <class T>
xfmStatus run_odd_fold(const OddFoldNode& node, T* work, const T* src, Offsets at) {
  switch (node.kind) {
    case 1:
      return fold_sequences<T, 2>(node, work, src, at);
    case 2:
      return fold_sequences<T, 4>(node, work, src, at);
    case 3:
      return fold_sequences<T, 8>(node, work, src, at);
    case 4:
      return fold_sequences<T, 16>(node, work, src, at);
    case 5:
      return fold_sequences<T, 32>(node, work, src, at);
    case 6:
      return fold_sequences<T, 64>(node, work, src, at);
    case fold_kind_split:
      return split_sequences(node, work, src, at);
    default:
      return xfmStsBadState;
  }
}

template <class T>
xfmStatus run_odd_split(const OddSplitNode<T>& node, Spectrum<T> out, const T* src, Offsets at) {
  if (node.kind != kind_sound) return xfmStsBadState;
  run_odd_fold(*first_of<OddFoldNode>(node.fold_view), node.work, src, at);
  return run_odd_combine(*first_of<OddCombineNode<T>>(node.combine_view), out, node.work);
}

template xfmStatus run_fold(const FoldNode&, float*, const float*);
template xfmStatus run_fold(const FoldNode&, double*, const double*);
template xfmStatus run_odd_fold(const OddFoldNode&, float*, const float*, Offsets);
template xfmStatus run_odd_fold(const OddFoldNode&, double*, const double*, Offsets);
template xfmStatus run_odd_split(const OddSplitNode<float>&, Spectrum<float>, const float*, Offsets);
template xfmStatus run_odd_split(const OddSplitNode<double>&, Spectrum<double>, const double*, Offsets);

}  // namespace xfm::dct4
