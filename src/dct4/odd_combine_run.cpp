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

/// One class i in the work area, and where its outputs go: D(l) to the class m2 l + i, and conj(D(-l)) to the
/// class m2 l - 1 - i, for all batches of a line.
template <class T>
struct ClassPlace {
  using V = Widest<T>;
  const T* in;
  std::ptrdiff_t sequence_step, in_part;
  T* ahead;   ///< of class i
  T* behind;  ///< of class -1 - i
  std::ptrdiff_t fold_step, out_part;

  XFM_INLINE Complex<V> load(int a, int part) const {
    const T* const at = in + a * sequence_step + part * lanes_of<V>;
    return {InState::load<V>(at), InState::load<V>(at + in_part)};
  }
  /// D(l) of the radix r2, l = 0 .. r2 - 1; the upper half are the conjugates of D(l - r2).
  template <int r2>
  XFM_INLINE void store(int l, int part, Complex<V> d) const {
    T* const at = (l < r2 / 2 ? ahead + l * fold_step : behind + (r2 - l) * fold_step) + part * lanes_of<V>;
    InState::store(at, d.re);
    InState::store(at + out_part, d.im);
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
constexpr int parts = line<T> / lanes_of<Widest<T>>;

/// Radixes 2, 4 and 8: one butterfly.
template <int r2, class T>
XFM_INLINE inline void combine_once(const ClassPlace<T>& place, const T* near) {
  for (int part = 0; part < parts<T>; ++part) {
    Complex<Widest<T>> x[r2];
    x[0] = place.load(0, part);
    unrolled<r2 - 1>([&](auto b) XFM_INLINE { x[b + 1] = place.load(b + 1, part) * pair(near, b); });
    dft<r2, true>(x);
    unrolled<r2>([&](auto l) XFM_INLINE { place.template store<r2>(l, part, x[l]); });
  }
}

/// Radixes 16 and 32: with a = 4 a1 + a0 first the sums over a1, then, for each j, those over a0. The batches
/// of a line take each step together, while it is in the nearest cache.
template <int r2, class T>
XFM_INLINE inline void combine_twice(const ClassPlace<T>& place, const T* near, const T* far) {
  constexpr int outer = r2 / 4;
  Complex<Widest<T>> y[outer][parts<T>][4];
  for (int a0 = 0; a0 < 4; ++a0) {
    for (int part = 0; part < parts<T>; ++part) {
      Complex<Widest<T>> x[outer];
      x[0] = place.load(a0, part);
      unrolled<outer - 1>(
          [&](auto a1) XFM_INLINE { x[a1 + 1] = place.load(4 * (a1 + 1) + a0, part) * pair(far, a1); });
      dft<outer, false>(x);
      unrolled<outer>([&](auto j) XFM_INLINE { y[j][part][a0] = x[j]; });
    }
  }
  for (int j = 0; j < outer; ++j) {
    for (int part = 0; part < parts<T>; ++part) {
      Complex<Widest<T>> x[4];
      x[0] = y[j][part][0];
      unrolled<3>([&](auto b) XFM_INLINE { x[b + 1] = y[j][part][b + 1] * pair(near, 3 * j + b); });
      dft<4, true>(x);
      unrolled<4>([&](auto l) XFM_INLINE { place.template store<r2>(j + outer * l, part, x[l]); });
    }
  }
}

template <int r2, class T>
xfmStatus run_classes(const OddCombineNode<T>& node, Spectrum<T> out, T* work) {
  constexpr std::ptrdiff_t pair_elements = 2 * group_size<T>;
  const Spectrum<T> first = sequence_spectrum(work, node.fold, 0),
                    second = sequence_spectrum(work, node.fold, 1);
  ClassPlace<T> place{.in = first.start,
                      .sequence_step = second.start - first.start,
                      .in_part = first.part,
                      .ahead = out.start,
                      .behind = out.start - 2 * out.part,
                      .fold_step = 2 * out.part * node.fold,
                      .out_part = out.part};
  const T* near = node.table;
  const T* far = near + pair_elements * near_pairs(r2) * node.classes;
  for (std::int32_t i = 0; i < node.classes; ++i) {
    if constexpr (far_pairs(r2) == 0)
      combine_once<r2>(place, near);
    else
      combine_twice<r2>(place, near, far);
    near += pair_elements * near_pairs(r2);
    far += pair_elements * far_pairs(r2);
    place.in += 2 * first.part;
    place.ahead += 2 * out.part;
    place.behind -= 2 * out.part;
  }
  return xfmStsOk;
}

}  // namespace

template <class T>
xfmStatus run_odd_combine(const OddCombineNode<T>& node, Spectrum<T> out, T* work) {
  switch (node.kind) {
    case 1:
      return run_classes<2>(node, out, work);
    case 2:
      return run_classes<4>(node, out, work);
    case 3:
      return run_classes<8>(node, out, work);
    case 4:
      return run_classes<16>(node, out, work);
    case 5:
      return run_classes<32>(node, out, work);
    default:
      return xfmStsBadState;
  }
}

template xfmStatus run_odd_combine(const OddCombineNode<float>&, Spectrum<float>, float*);
template xfmStatus run_odd_combine(const OddCombineNode<double>&, Spectrum<double>, double*);

}  // namespace xfm::dct4
