// Base lengths in wide registers, which compute what transform() in base.h does, with the residues of a fold
// side by side and then the classes of an expansion. All input is read before the first output is written.
#pragma once

#include <algorithm>

#include "src/dct4/expansion.h"
#include "src/dct4/fold.h"
#include "src/dct4/groups.h"

namespace xfm::dct4 {

/// The samples of r residues, in the low lanes of V.
template <class V, int r>
struct SideBySide {
  using T = Element<V>;
  const T* src;

  XFM_INLINE V operator()(int n) const {
    if (n >= 0) return load(src + 2 * r * n);
    const V v = load(src + (-2 * r * n - r));
    if constexpr (lanes_of<V> == r)
      return reversed(v);
    else
      return __builtin_shufflevector(v, v, 1, 0, 2, 3);
  }

 private:
  static V load(const T* p) {
    if constexpr (lanes_of<V> == r)
      return Unaligned::load<V>(p);
    else
      return load_complex(p);
  }
};

/// Classes from q on, each multiplied by its twist for residue t.
template <int length, int q, int t, class V>
XFM_INLINE inline Complex<V> twisted(Complex<V> z) {
  using T = Element<V>;
  return [&]<int... lane>(std::integer_sequence<int, lane...>) XFM_INLINE {
    return z * Complex<V>{V{cosine<T, (2 * (q + lane) + 1) * (2 * t + 1), 4 * length>...},
                          V{sine<T, (2 * (q + lane) + 1) * (2 * t + 1), 4 * length>...}};
  }
  (std::make_integer_sequence<int, lanes_of<V>>{});
}

/// The outputs of the classes from q on: Y(l) to m l + q, ascending; for negative l to m |l| - 1 - q,
/// descending.
template <class V, int m, int q>
struct ScatterWide {
  Element<V>* dst;

  template <int l>
  XFM_INLINE void put(V y) const {
    if constexpr (l >= 0)
      Unaligned::store(dst + m * l + q, y);
    else
      Unaligned::store(dst + (-m * l - q - lanes_of<V>), reversed(y));
  }
};

// ---- N = 16: four residues, two classes.

/// For elements of which a group has two.
template <class T>
void transform_16_wide(const T* src, T* dst) {
  constexpr int length = 16, r = 4, m = length / r, classes = m / 2;
  using V = Groups<T, r / group_size<T>>;
  using Pair = Groups<T, 1>;
  Complex<V> z[classes];
  fold<V, m>(SideBySide<V, r>{src}, ToArray<V>{z});
  z[0] = twisted<length, 0, 0>(z[0]);  // twists are the same with class and residue exchanged
  z[1] = twisted<length, 0, 1>(z[1]);
  const Complex<V> even{permute_in_each<0, 2>(z[0].re, z[1].re), permute_in_each<0, 2>(z[0].im, z[1].im)};
  const Complex<V> odd{permute_in_each<1, 3>(z[0].re, z[1].re), permute_in_each<1, 3>(z[0].im, z[1].im)};
  const Complex<Pair> w[r] = {{low_half(even.re), low_half(even.im)},
                              {low_half(odd.re), low_half(odd.im)},
                              {high_half(even.re), high_half(even.im)},
                              {high_half(odd.re), high_half(odd.im)}};
  expand<Pair, r>(w, ScatterWide<Pair, m, 0>{dst});
}

// ---- N = 32: two residues, eight classes.

/// The k-th 128 bits of the pairs of residues, which the low lanes of registers hold, one for each class.
XFM_INLINE inline f32x4 pairs_at(const f32x4* pairs, int k) {
  return permute<0, 1, 4, 5>(pairs[2 * k], pairs[2 * k + 1]);
}
XFM_INLINE inline f64x2 pairs_at(const f64x2* pairs, int k) { return pairs[k]; }

/// Every second 128 bits from the k-th on, as many as V holds.
template <class V, class Pair>
XFM_INLINE inline V every_second(const Pair* pairs, int k) {
  constexpr int count = sizeof(V) / sizeof(Pair);
  if constexpr (count == 1) {
    return pairs_at(pairs, k);
  } else {
    using Half = Groups<Element<V>, count / 2>;
    return joined(every_second<Half>(pairs, k), every_second<Half>(pairs, k + count));
  }
}

template <class V, class Pair>
XFM_INLINE inline void part_residues(const Pair* pairs, V& first, V& second) {
  const V u = every_second<V>(pairs, 0), v = every_second<V>(pairs, 1);
  if constexpr (group_size<Element<V>> == 2) {
    first = permute_in_each<0, 2>(u, v);
    second = permute_in_each<1, 3>(u, v);
  } else {
    first = permute_in_each<0, 2, 4, 6>(u, v);
    second = permute_in_each<1, 3, 5, 7>(u, v);
  }
}

template <class T>
void transform_32_wide(const T* src, T* dst) {
  constexpr int length = 32, r = 2, m = length / r, classes = m / 2;
  using Pair = Groups<T, 1>;
  using V = Groups<T, std::min(widest, classes / group_size<T>)>;
  Complex<Pair> z[classes];
  fold<Pair, m>(SideBySide<Pair, r>{src}, ToArray<Pair>{z});
  Pair re[classes], im[classes];
  unrolled<classes>([&](auto q) XFM_INLINE {
    re[q] = z[q].re;
    im[q] = z[q].im;
  });
  unrolled<classes / lanes_of<V>>([&](auto block) XFM_INLINE {
    constexpr int q = block * lanes_of<V>;
    Complex<V> w[r];
    part_residues(re + q, w[0].re, w[1].re);
    part_residues(im + q, w[0].im, w[1].im);
    w[0] = twisted<length, q, 0>(w[0]);
    w[1] = twisted<length, q, 1>(w[1]);
    expand<V, r>(w, ScatterWide<V, m, q>{dst});
  });
}

}  // namespace xfm::dct4
