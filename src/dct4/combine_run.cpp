// The combine: for each group of L classes the twist of every residue, the expansion, and the scatter to dst.
#include "src/dct4/expansion.h"
#include "src/dct4/lines.h"
#include "src/dct4/stages.h"
#include "src/dct4/twiddle.h"

namespace xfm::dct4 {
namespace {

/// Where a residue stands in the order of the table.
template <int r>
constexpr int place_of(int t) {
  int place = 0;
  while (residue_order<r>.of[place] != t) ++place;
  return place;
}

/// Real or imaginary parts of L residues from t on: vectors across residues, one for each of L classes,
/// become vectors across classes, one for each residue.
template <class T, int r>
XFM_INLINE void load_turned(const T* classes, typename Packed<T>::Value* v) {
  using P = Packed<T>;
  unrolled<P::lanes>([&](auto q) XFM_INLINE_LAMBDA { v[q] = P::load(classes + q * 2 * r); });
  P::transpose(v);
}

/// The spectrum of L classes under its twist, and the part of the table that it needs.
template <class T, int r>
struct Twisted {
  using P = Packed<T>;
  static constexpr int width = P::lanes;
  const T* classes;
  const T* table;

  template <int t>
  XFM_INLINE Complex<P> twist(typename P::Value re, typename P::Value im) const {
    constexpr int place = place_of<r>(t);
    const T* const pair = table + 2 * P::lanes * place;
    return Complex<P>{re, im} * Complex<P>{P::load(pair), P::load(pair + P::lanes)};
  }
  /// W[t] .. W[t + L - 1], or the last of them first.
  template <int t, bool descending>
  XFM_INLINE void get_row(Complex<P>* w) const {
    typename P::Value re[P::lanes], im[P::lanes];
    load_turned<T, r>(classes + t, re);
    load_turned<T, r>(classes + r + t, im);
    unrolled<P::lanes>(
        [&](auto j) XFM_INLINE_LAMBDA { w[descending ? P::lanes - 1 - j : j] = twist<t + j>(re[j], im[j]); });
  }
  template <int t>
  XFM_INLINE void get(Quads<P, width>& quads) const {
    get_row<t, false>(quads.front);
    get_row<r - width - t, true>(quads.back);
    get_row<r / 2 - width - t, true>(quads.low);
    get_row<r / 2 + t, false>(quads.high);
  }
};

/// Twist and expansion of one group.
template <class T, int r, class Out>
XFM_INLINE void expand_group(const Twisted<T, r>& source, const Out& out) {
  using P = Packed<T>;
  if constexpr (r % (4 * P::lanes) == 0) {
    expand_quads<P, r>(source, out);
  } else {
    Complex<P> w[r];
    if constexpr (r % P::lanes == 0) {
      unrolled<r / P::lanes>([&](auto row) XFM_INLINE_LAMBDA {
        source.template get_row<row * P::lanes, false>(w + row * P::lanes);
      });
    } else {
      unrolled<r>([&](auto t) XFM_INLINE_LAMBDA {
        w[t] = source.template twist<t>(P::gather(source.classes + t, 2 * r),
                                        P::gather(source.classes + r + t, 2 * r));
      });
    }
    expand<P, r>(w, out);
  }
}

/// The outputs of L classes q, which may stand at any address: Y(l) to m l + q, ascending with the class; for
/// negative l as many steps of m down from 2 N - 1 - q, descending.
template <class T, int r>
struct Scatter {
  T* ahead;   ///< of l = 0
  T* behind;  ///< the lowest of l = -1
  std::ptrdiff_t fold;

  template <int l>
  XFM_INLINE void put(typename Packed<T>::Value y) const {
    using P = Packed<T>;
    if constexpr (l >= 0)
      P::store_any(ahead + l * fold, y);
    else
      P::store_any(behind - (l + 1) * fold, P::reversed(y));
  }
};

template <class T, int r>
xfmStatus run_groups(const CombineNode<T>& node, T* dst, const T* work) {
  constexpr int l = lanes<T>;
  const T* table = node.table;
  T* ahead = dst;
  // l = -1 is the last one, step 2 r - 1 from the front.
  T* behind = dst + (node.mirror - (2 * r - 1) * std::ptrdiff_t{node.fold} - (l - 1));
  for (std::int32_t group = 0; group < node.groups; ++group) {
    expand_group(Twisted<T, r>{work, table}, Scatter<T, r>{ahead, behind, node.fold});
    work += 2 * r * l;
    table += 2 * r * l;
    ahead += l;
    behind -= l;
  }
  return xfmStsOk;
}

/// The outputs of a group in a copy, a line for every l = -r .. r - 1.
template <class T, int r>
struct ToLines {
  T* group;

  template <int l>
  XFM_INLINE void put(typename Packed<T>::Value y) const {
    Packed<T>::store(group + (r + l) * line<T>, y);
  }
};

/// Four groups at a time, for outputs that stand so far apart, by powers of two, that they fall into few sets
/// of the cache: every line of dst is written once.
template <class T, int r>
xfmStatus run_lines(const CombineNode<T>& node, T* dst, const T* work) {
  const std::ptrdiff_t fold = node.fold;
  const T* table = node.table;
  T* ahead = dst;
  T* behind = dst + (node.mirror - (2 * r - 1) * fold - (line<T> - 1));
  for (std::int32_t group = 0; group < node.groups; group += line<T> / lanes<T>) {
    alignas(64) T lines[2 * r * line<T>];
    for (int q = 0; q < line<T>; q += lanes<T>) {
      expand_group(Twisted<T, r>{work, table}, ToLines<T, r>{lines + q});
      work += 2 * r * lanes<T>;
      table += 2 * r * lanes<T>;
    }
    for (int l = 0; l < r; ++l) store_line(lines + (r + l) * line<T>, ahead + l * fold);
    for (int l = 0; l < r; ++l) store_line_reversed(lines + (r - 1 - l) * line<T>, behind + l * fold);
    ahead += line<T>;
    behind -= line<T>;
  }
  return xfmStsOk;
}

/// From this distance on, in bytes, outputs get into each other's way in the cache. Only the radix 32 goes so
/// far.
constexpr std::size_t far_apart = 2048;

}  // namespace

template <class T>
xfmStatus run_combine(const CombineNode<T>& node, T* dst, const T* work) {
  switch (node.kind) {
    case 1:
      return run_groups<T, 1>(node, dst, work);
    case 2:
      return run_groups<T, 2>(node, dst, work);
    case 3:
      return run_groups<T, 4>(node, dst, work);
    case 4:
      return run_groups<T, 8>(node, dst, work);
    case 5:
      return run_groups<T, 16>(node, dst, work);
    case 6:
      return static_cast<std::size_t>(node.fold) * sizeof(T) < far_apart ? run_groups<T, 32>(node, dst, work)
                                                                         : run_lines<T, 32>(node, dst, work);
    default:
      return xfmStsBadState;
  }
}

template xfmStatus run_combine(const CombineNode<float>&, float*, const float*);
template xfmStatus run_combine(const CombineNode<double>&, double*, const double*);

}  // namespace xfm::dct4
