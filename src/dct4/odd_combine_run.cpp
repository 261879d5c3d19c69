// The combine of a split: for each class the twists of its sub-sequences and a DFT across them. Registers
// hold residues side by side, so a twiddle is the same in all lanes.
#include "src/dct4/constants.h"
#include "src/dct4/stages.h"
#include "src/dct4/twiddle.h"

namespace xfm::dct4 {
namespace {

/// a - b, or its conjugate.
template <bool conjugated, class V>
XFM_INLINE inline Complex<V> difference(Complex<V> a, Complex<V> b) {
  return {a.re - b.re, conjugated ? b.im - a.im : a.im - b.im};
}

/// a - i b, or its conjugate; the sum a + i b.
template <bool conjugated, class V>
XFM_INLINE inline Complex<V> turned_difference(Complex<V> a, Complex<V> b) {
  return {a.re + b.im, conjugated ? b.re - a.im : a.im - b.re};
}
template <class V>
XFM_INLINE inline Complex<V> turned_sum(Complex<V> a, Complex<V> b) {
  return {a.re - b.im, a.im + b.re};
}

/// x[l] = sum over a of x[a] exp(+2 pi i a l / n), in place and in natural order; the upper half conjugated
/// if wanted.
template <int n, bool conjugated, class V>
XFM_INLINE inline void dft(Complex<V>* x) {
  if constexpr (n == 2) {
    const Complex<V> a = x[0], b = x[1];
    x[0] = a + b;
    x[1] = difference<conjugated>(a, b);
  } else if constexpr (n == 4) {
    const Complex<V> s = x[0] + x[2], d = x[0] - x[2], t = x[1] + x[3], e = x[1] - x[3];
    x[0] = s + t;
    x[1] = turned_sum(d, e);
    x[2] = difference<conjugated>(s, t);
    x[3] = turned_difference<conjugated>(d, e);
  } else {
    static_assert(n == 8);
    constexpr auto half = cosine<Element<V>, 1, 4>;
    const auto s = all<V>(half), minus_s = all<V>(-half);
    Complex<V> even[4] = {x[0], x[2], x[4], x[6]};
    dft<4, false>(even);
    const Complex<V> a = x[1] + x[5], b = x[3] + x[7], c = x[1] - x[5], d = x[3] - x[7];
    const Complex<V> u = turned_sum(c, d), v = turned_difference<false>(c, d);
    const Complex<V> t0 = a + b, t2 = a - b;                             // t2 is still to be multiplied by i
    const Complex<V> t1 = {(u.re - u.im) * s, (u.re + u.im) * s};        // exp(i pi / 4) u
    const Complex<V> t3 = {(v.re + v.im) * minus_s, (v.re - v.im) * s};  // exp(3 i pi / 4) v
    x[0] = even[0] + t0;
    x[1] = even[1] + t1;
    x[2] = turned_sum(even[2], t2);
    x[3] = even[3] + t3;
    x[4] = difference<conjugated>(even[0], t0);
    x[5] = difference<conjugated>(even[1], t1);
    x[6] = turned_difference<conjugated>(even[2], t2);
    x[7] = difference<conjugated>(even[3], t3);
  }
}

/// The sub-sequences' spectra at class i. If it prefetches, those at class i + 1 are on their way to the
/// cache when they have been loaded.
template <class T, bool prefetches>
struct Inputs {
  using V = Widest<T>;
  const T* start;
  std::ptrdiff_t step;  ///< from a sub-sequence to the next

  XFM_INLINE Complex<V> load(int a, int piece) const {
    const T* const at = start + a * step + piece * lanes_of<V>;
    if (prefetches && piece == 0) {
      __builtin_prefetch(at + 2 * line<T>);
      __builtin_prefetch(at + 3 * line<T>);
    }
    return {InState::load<V>(at), InState::load<V>(at + line<T>)};
  }
};

/// Where the outputs of class i go: D(l) to the class m2 l + i, and conj(D(-l)) to the class m2 l - 1 - i,
/// for all batches of a line.
template <class T>
struct Outputs {
  using V = Widest<T>;
  T* ahead;   ///< of class i
  T* behind;  ///< of class -1 - i
  std::ptrdiff_t fold_step, part;

  /// D(l) of the radix r2, l = 0 .. r2 - 1; the upper half are the conjugates of D(l - r2).
  template <int r2>
  XFM_INLINE void store(int l, int piece, Complex<V> d) const {
    T* const at = (l < r2 / 2 ? ahead + l * fold_step : behind + (r2 - l) * fold_step) + piece * lanes_of<V>;
    InState::store(at, d.re);
    InState::store(at + part, d.im);
  }
};

/// A twiddle, which the table repeats in every lane of a group.
template <class T>
XFM_INLINE inline Complex<Widest<T>> pair(const T* table, int index) {
  using V = Widest<T>;
  const T* const at = table + 2 * group_size<T> * index;
  if constexpr (widest == 1)
    return {Aligned::load<V>(at), Aligned::load<V>(at + group_size<T>)};
  else
    return {broadcast<V>(at[0]), broadcast<V>(at[group_size<T>])};
}

/// Registers in a line.
template <class T>
constexpr int pieces = line<T> / lanes_of<Widest<T>>;

/// Radixes 2, 4 and 8: one butterfly.
template <int r2, class T, class In>
XFM_INLINE inline void combine_once(const In& in, const Outputs<T>& out, const T* near) {
  for (int piece = 0; piece < pieces<T>; ++piece) {
    Complex<Widest<T>> x[r2];
    x[0] = in.load(0, piece);
    unrolled<r2 - 1>([&](auto b) XFM_INLINE { x[b + 1] = in.load(b + 1, piece) * pair(near, b); });
    dft<r2, true>(x);
    unrolled<r2>([&](auto l) XFM_INLINE { out.template store<r2>(l, piece, x[l]); });
  }
}

/// Radixes 16 and 32: with a = 4 a1 + a0 first the sums over a1, then, for each j, those over a0. The batches
/// of a line take each step together, while it is in the nearest cache.
template <int r2, class T, class In>
XFM_INLINE inline void combine_twice(const In& in, const Outputs<T>& out, const T* near, const T* far) {
  constexpr int outer = r2 / 4;
  Complex<Widest<T>> y[outer][pieces<T>][4];
  for (int a0 = 0; a0 < 4; ++a0) {
    for (int piece = 0; piece < pieces<T>; ++piece) {
      Complex<Widest<T>> x[outer];
      x[0] = in.load(a0, piece);
      unrolled<outer - 1>([&](auto a1)
                              XFM_INLINE { x[a1 + 1] = in.load(4 * (a1 + 1) + a0, piece) * pair(far, a1); });
      dft<outer, false>(x);
      unrolled<outer>([&](auto j) XFM_INLINE { y[j][piece][a0] = x[j]; });
    }
  }
  for (int j = 0; j < outer; ++j) {
    for (int piece = 0; piece < pieces<T>; ++piece) {
      Complex<Widest<T>> x[4];
      x[0] = y[j][piece][0];
      unrolled<3>([&](auto b) XFM_INLINE { x[b + 1] = y[j][piece][b + 1] * pair(near, 3 * j + b); });
      dft<4, true>(x);
      unrolled<4>([&](auto l) XFM_INLINE { out.template store<r2>(j + outer * l, piece, x[l]); });
    }
  }
}

/// Classes of the sub-sequences.
struct Range {
  std::int32_t first, count;
};

template <int r2, bool prefetches, class T>
void run_classes(const OddCombineNode<T>& node, Range classes, Outputs<T> out, const T* work) {
  constexpr std::ptrdiff_t pair_elements = 2 * group_size<T>;
  Inputs<T, prefetches> in{work + 2 * line<T> * std::ptrdiff_t{classes.first}, sequence_step<T>(node.fold)};
  const T* near = node.table + pair_elements * near_pairs(r2) * classes.first;
  const T* far = node.table + pair_elements * (near_pairs(r2) * node.classes + far_pairs(r2) * classes.first);
  for (std::int32_t i = 0; i < classes.count; ++i) {
    if constexpr (far_pairs(r2) == 0)
      combine_once<r2>(in, out, near);
    else
      combine_twice<r2>(in, out, near, far);
    near += pair_elements * near_pairs(r2);
    far += pair_elements * far_pairs(r2);
    in.start += 2 * line<T>;
    out.ahead += 2 * out.part;
    out.behind -= 2 * out.part;
  }
}

template <int r2, class T>
xfmStatus run_all(const OddCombineNode<T>& node, Spectrum<T> out, const T* work) {
  run_classes<r2, false>(node, {0, node.classes},
                         {out.start, out.start - 2 * out.part, 2 * out.part * node.fold, out.part}, work);
  return xfmStsOk;
}

}  // namespace

template <class T>
xfmStatus run_odd_combine(const OddCombineNode<T>& node, Spectrum<T> out, T* work) {
  switch (node.kind) {
    case 1:
      return run_all<2>(node, out, work);
    case 2:
      return run_all<4>(node, out, work);
    case 3:
      return run_all<8>(node, out, work);
    case 4:
      return run_all<16>(node, out, work);
    case 5:
      return run_all<32>(node, out, work);
    default:
      return xfmStsBadState;
  }
}

template <class T>
void run_odd_combine_block(const OddCombineNode<T>& node, std::int32_t first, Spectrum<T> block,
                           const T* work) {
  constexpr std::int32_t count = block_classes<T>;
  run_classes<32, true>(node, {first, count},
                        {block.start, block.start - 2 * block.part, 4 * block.part * count, block.part},
                        work);
}

template void run_odd_combine_block(const OddCombineNode<float>&, std::int32_t, Spectrum<float>,
                                    const float*);
template void run_odd_combine_block(const OddCombineNode<double>&, std::int32_t, Spectrum<double>,
                                    const double*);
template xfmStatus run_odd_combine(const OddCombineNode<float>&, Spectrum<float>, float*);
template xfmStatus run_odd_combine(const OddCombineNode<double>&, Spectrum<double>, double*);

}  // namespace xfm::dct4
