// The combine: for each group of L classes the twist of every residue, the expansion, and the scatter to dst.
#include "src/dct4/expansion.h"
#include "src/dct4/lines.h"
#include "src/dct4/stages.h"
#include "src/dct4/twiddle.h"

namespace xfm::dct4 {
namespace {

/// The place of a residue in the order of the table.
template <int r>
constexpr int place_of(int t) {
  int place = 0;
  while (residue_order<r>.of[place] != t) ++place;
  return place;
}

/// Real or imaginary parts of L residues from t on: registers across residues, one for each of L classes,
/// become registers across classes, one for each residue.
template <int r, class T, class V>
XFM_INLINE inline void load_transposed(const T* classes, V* v) {
  unrolled<lanes_of<V>>([&](auto q) XFM_INLINE { v[q] = Aligned::load(classes + q * 2 * r); });
  transpose(v);
}

/// The spectrum of L classes, and the part of the table with its twist.
template <class T, int r>
struct Twisted {
  using V = Group<T>;
  static constexpr int width = lanes_of<V>;
  const T* classes;
  const T* table;

  template <int t>
  XFM_INLINE Complex<V> twist(V re, V im) const {
    constexpr int place = place_of<r>(t);
    const T* const pair = table + 2 * lanes_of<V> * place;
    return Complex<V>{re, im} * Complex<V>{Aligned::load(pair), Aligned::load(pair + lanes_of<V>)};
  }
  /// W[t] .. W[t + L - 1], or the last of them first.
  template <int t, bool descending>
  XFM_INLINE void get_row(Complex<V>* w) const {
    V re[lanes_of<V>], im[lanes_of<V>];
    load_transposed<r>(classes + t, re);
    load_transposed<r>(classes + r + t, im);
    unrolled<lanes_of<V>>(
        [&](auto j) XFM_INLINE { w[descending ? lanes_of<V> - 1 - j : j] = twist<t + j>(re[j], im[j]); });
  }
  template <int t>
  XFM_INLINE void get(Quads<V, width>& quads) const {
    get_row<t, false>(quads.front);
    get_row<r - width - t, true>(quads.back);
    get_row<r / 2 - width - t, true>(quads.low);
    get_row<r / 2 + t, false>(quads.high);
  }
};

/// Twist and expansion of one group.
template <class T, int r, class Out>
XFM_INLINE inline void expand_group(const Twisted<T, r>& source, const Out& out) {
  using V = Group<T>;
  if constexpr (r % (4 * lanes_of<V>) == 0) {
    expand_quads<V, r>(source, out);
  } else {
    Complex<V> w[r];
    if constexpr (r % lanes_of<V> == 0) {
      unrolled<r / lanes_of<V>>([&](auto row) XFM_INLINE {
        source.template get_row<row * lanes_of<V>, false>(w + row * lanes_of<V>);
      });
    } else {
      unrolled<r>([&](auto t) XFM_INLINE {
        w[t] = source.template twist<t>(gather<V>(source.classes + t, 2 * r),
                                        gather<V>(source.classes + r + t, 2 * r));
      });
    }
    expand<V, r>(w, out);
  }
}

/// The outputs of L classes q, at any address: Y(l) to m l + q, ascending with the class; for negative l as
/// many steps of m down from 2 N - 1 - q, descending.
template <class T, int r>
struct Scatter {
  T* ahead;   ///< of l = 0
  T* behind;  ///< the lowest of l = -1
  std::ptrdiff_t fold;

  template <int l>
  XFM_INLINE void put(Group<T> y) const {
    if constexpr (l >= 0)
      Unaligned::store(ahead + l * fold, y);
    else
      Unaligned::store(behind - (l + 1) * fold, reversed(y));
  }
};

template <class T, int r>
xfmStatus run_groups(const CombineNode<T>& node, T* dst, const T* work) {
  constexpr int l = group_size<T>;
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

/// Collects the outputs of a group, a line for every l = -r .. r - 1.
template <class T, int r>
struct ToLines {
  T* group;

  template <int l>
  XFM_INLINE void put(Group<T> y) const {
    Aligned::store(group + (r + l) * line<T>, y);
  }
};

/// As many groups at a time as fill a line, for outputs so far apart, by powers of two, that they fall into
/// few sets of the cache: every line of dst is written once.
template <class T, int r>
xfmStatus run_lines(const CombineNode<T>& node, T* dst, const T* work) {
  constexpr int l = group_size<T>;
  const std::ptrdiff_t fold = node.fold;
  const T* table = node.table;
  T* ahead = dst;
  T* behind = dst + (node.mirror - (2 * r - 1) * fold - (line<T> - 1));
  for (std::int32_t group = 0; group < node.groups; group += batches_a_line<T>) {
    alignas(line_bytes) T lines[2 * r * line<T>];
    for (int q = 0; q < line<T>; q += l) {
      expand_group(Twisted<T, r>{work, table}, ToLines<T, r>{lines + q});
      work += 2 * r * l;
      table += 2 * r * l;
    }
    for (int i = 0; i < r; ++i) copy_line<Aligned, Unaligned>(lines + (r + i) * line<T>, ahead + i * fold);
    for (int i = 0; i < r; ++i)
      copy_line_reversed<Aligned, Unaligned>(lines + (r - 1 - i) * line<T>, behind + i * fold);
    ahead += line<T>;
    behind -= line<T>;
  }
  return xfmStsOk;
}

/// From this distance on, in bytes, outputs evict each other from the cache. Only radix 32 has such
/// distances.
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
