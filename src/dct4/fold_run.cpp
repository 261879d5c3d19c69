// The fold: for each batch of L residues the odd DFT of their samples, by a leaf or by a split.
#include "src/dct4/fold.h"
#include "src/dct4/stages.h"

namespace xfm::dct4 {
namespace {

/// Folds of one length that stand at equal distances: the batches of the outer fold, the sub-sequences of an
/// inner one.
template <class T>
struct Series {
  const T* src;
  T* out;
  Offsets at;
  std::ptrdiff_t step;  ///< from a sample to the next
  std::ptrdiff_t part;  ///< from a real part to its imaginary part in the output
  std::int32_t count;
  Offsets next;  ///< from a fold to the next
};

template <class T>
Offsets operator+(Offsets a, Offsets b) {
  return {a.forward + b.forward, a.backward + b.backward, a.output + b.output};
}

/// The samples of a batch, which may stand at any address. Those of negative n come in descending order.
template <class T>
struct Samples {
  const T* ahead;   ///< of n = 0
  const T* behind;  ///< the lowest of n = -1
  std::ptrdiff_t step;

  XFM_INLINE auto operator()(std::ptrdiff_t n) const {
    using P = Packed<T>;
    return n >= 0 ? P::load_any(ahead + n * step) : P::reversed(P::load_any(behind - (n + 1) * step));
  }
};

/// The spectrum of a batch in a work area.
template <class T>
struct Spectrum {
  T* out;
  std::ptrdiff_t part;

  template <int q>
  XFM_INLINE void put(Complex<Packed<T>> z) const {
    T* const at = out + 2 * q * part;
    Packed<T>::store(at, z.re);
    Packed<T>::store(at + part, z.im);
  }
};

template <class T, int m>
void run_leaves(const Series<T>& series) {
  Offsets at = series.at;
  for (std::int32_t i = 0; i < series.count; ++i) {
    // n = -1 is the last one, n = m - 1 from the front.
    const std::ptrdiff_t last = at.forward + at.backward - (m - 1) * series.step;
    const Samples<T> w{series.src + at.forward, series.src + (last - (Packed<T>::lanes - 1)), series.step};
    fold<Packed<T>, m>(w, Spectrum<T>{series.out + at.output, series.part});
    at.forward += series.next.forward;
    at.backward += series.next.backward;
    at.output += series.next.output;
  }
}

template <class T>
void run_splits(const Series<T>& series, const OddSplitNode<T>& node) {
  Offsets at = series.at;
  for (std::int32_t i = 0; i < series.count; ++i) {
    run_odd_split(node, series.out, series.src, at);
    at.forward += series.next.forward;
    at.backward += series.next.backward;
    at.output += series.next.output;
  }
}

template <class T>
xfmStatus run_series(const Series<T>& series, std::int32_t kind, const PlanList* splits) {
  switch (kind) {
    case 1:
      run_leaves<T, 2>(series);
      return xfmStsOk;
    case 2:
      run_leaves<T, 4>(series);
      return xfmStsOk;
    case 3:
      run_leaves<T, 8>(series);
      return xfmStsOk;
    case 4:
      run_leaves<T, 16>(series);
      return xfmStsOk;
    case 5:
      run_leaves<T, 32>(series);
      return xfmStsOk;
    case 6:
      run_leaves<T, 64>(series);
      return xfmStsOk;
    case fold_kind_split:
      run_splits(series, *first_of<OddSplitNode<T>>(splits));
      return xfmStsOk;
    default:
      return xfmStsBadState;
  }
}

}  // namespace

template <class T>
xfmStatus run_fold(const FoldNode& node, T* work, const T* src) {
  constexpr std::ptrdiff_t l = lanes<T>;
  const Series<T> batches{.src = src,
                          .out = work,
                          .at = {0, node.mirror, 0},
                          .step = node.step,
                          .part = node.part,
                          .count = node.batches,
                          .next = {l, -2 * l, l}};
  return run_series(batches, node.kind, node.view);
}

template <class T>
xfmStatus run_odd_fold(const OddFoldNode& node, T* work, const T* src, Offsets at) {
  const Series<T> sequences{
      .src = src,
      .out = work,
      .at = at,
      .step = node.step,
      .part = node.part,
      .count = node.sequences,
      .next = {node.forward_step, -2 * std::ptrdiff_t{node.forward_step}, node.output_step}};
  return run_series(sequences, node.kind, node.view);
}

template <class T>
xfmStatus run_odd_split(const OddSplitNode<T>& node, T* out, const T* src, Offsets at) {
  if (node.kind != kind_sound) return xfmStsBadState;
  run_odd_fold(*first_of<OddFoldNode>(node.fold_view), node.work, src, at);
  return run_odd_combine(*first_of<OddCombineNode<T>>(node.combine_view), out, node.work, at.output);
}

template xfmStatus run_fold(const FoldNode&, float*, const float*);
template xfmStatus run_fold(const FoldNode&, double*, const double*);

}  // namespace xfm::dct4
