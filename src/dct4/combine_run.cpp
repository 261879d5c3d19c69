// The combine: for each group of L classes the twist of every residue, the expansion, and the scatter to dst.
// A register has the classes of one group or of several.
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

/// Real or imaginary parts of L residues from t on, for the classes of a register: in each group, registers
/// across residues, one for each class, become registers across classes, one for each residue.
template <int r, class V>
XFM_INLINE inline void load_transposed(const Element<V>* classes, V* v) {
  constexpr int l = group_size<Element<V>>;
  unrolled<l>([&](auto q) XFM_INLINE { v[q] = load_groups<V>(classes + q * 2 * r, 2 * r * l); });
  transpose(v);
}

/// The spectrum of a register's classes, and the part of the table with its twist. Both have the same
/// distance from a group to the next.
template <class V, int r>
struct Twisted {
  using T = Element<V>;
  static constexpr int width = group_size<T>;
  const T* classes;
  const T* table;

  template <int t>
  XFM_INLINE Complex<V> twist(V re, V im) const {
    constexpr int place = place_of<r>(t);
    const T* const pair = table + 2 * width * place;
    return Complex<V>{re, im} *
           Complex<V>{load_groups<V>(pair, 2 * r * width), load_groups<V>(pair + width, 2 * r * width)};
  }
  /// W[t] .. W[t + L - 1], or the last of them first.
  template <int t, bool descending>
  XFM_INLINE void get_row(Complex<V>* w) const {
    V re[width], im[width];
    load_transposed<r>(classes + t, re);
    load_transposed<r>(classes + r + t, im);
    unrolled<width>([&](auto j)
                        XFM_INLINE { w[descending ? width - 1 - j : j] = twist<t + j>(re[j], im[j]); });
  }
  template <int t>
  XFM_INLINE void get(Quads<V, width>& quads) const {
    get_row<t, false>(quads.front);
    get_row<r - width - t, true>(quads.back);
    get_row<r / 2 - width - t, true>(quads.low);
    get_row<r / 2 + t, false>(quads.high);
  }
};

/// Twist and expansion of the groups in a register.
template <class V, int r, class Out>
XFM_INLINE inline void expand_groups(const Twisted<V, r>& source, const Out& out) {
  constexpr int l = group_size<Element<V>>;
  if constexpr (r % (4 * l) == 0) {
    expand_quads<V, r>(source, out);
  } else {
    Complex<V> w[r];
    if constexpr (r % l == 0) {
      unrolled<r / l>([&](auto row) XFM_INLINE { source.template get_row<row * l, false>(w + row * l); });
    } else {
      unrolled<r>([&](auto t) XFM_INLINE {
        w[t] = source.template twist<t>(gather<V>(source.classes + t, 2 * r),
                                        gather<V>(source.classes + r + t, 2 * r));
      });
    }
    expand<V, r>(w, out);
  }
}

/// The outputs of a register's classes q, at any address: Y(l) to m l + q, ascending with the class; for
/// negative l as many steps of m down from 2 N - 1 - q, descending.
template <class V>
struct Scatter {
  Element<V>* ahead;   ///< of l = 0
  Element<V>* behind;  ///< the lowest of l = -1
  std::ptrdiff_t fold;

  template <int l>
  XFM_INLINE void put(V y) const {
    if constexpr (l >= 0)
      Unaligned::store(ahead + l * fold, y);
    else
      Unaligned::store(behind - (l + 1) * fold, reversed(y));
  }
};

template <class V, int r, class T>
xfmStatus run_registers(const CombineNode<T>& node, T* dst, const T* work) {
  constexpr int lanes = lanes_of<V>;
  const T* table = node.table;
  T* ahead = dst;
  // l = -1 is the last one, step 2 r - 1 from the front.
  T* behind = dst + (node.mirror - (2 * r - 1) * std::ptrdiff_t{node.fold} - (lanes - 1));
  for (std::int32_t q = 0; q < node.groups * group_size<T>; q += lanes) {
    expand_groups(Twisted<V, r>{work, table}, Scatter<V>{ahead, behind, node.fold});
    work += 2 * r * lanes;
    table += 2 * r * lanes;
    ahead += lanes;
    behind -= lanes;
  }
  return xfmStsOk;
}

template <class T, int r>
xfmStatus run_groups(const CombineNode<T>& node, T* dst, const T* work) {
  return with_groups(node.groups, [&](auto groups) XFM_INLINE {
    return run_registers<Groups<T, groups>, r>(node, dst, work);
  });
}

/// Collects the outputs of a register's classes, a line for every l = -r .. r - 1.
template <class V, int r>
struct ToLines {
  Element<V>* groups;

  template <int l>
  XFM_INLINE void put(V y) const {
    Aligned::store(groups + (r + l) * line<Element<V>>, y);
  }
};

/// As many groups at a time as fill a line, for outputs so far apart, by powers of two, that they fall into
/// few sets of the cache: every line of dst is written once.
template <class T, int r>
xfmStatus run_lines(const CombineNode<T>& node, T* dst, const T* work) {
  using V = Widest<T>;
  constexpr int lanes = lanes_of<V>;
  const std::ptrdiff_t fold = node.fold;
  const T* table = node.table;
  T* ahead = dst;
  T* behind = dst + (node.mirror - (2 * r - 1) * fold - (line<T> - 1));
  for (std::int32_t q = 0; q < node.groups * group_size<T>; q += line<T>) {
    alignas(line_bytes) T lines[2 * r * line<T>];
    for (int i = 0; i < line<T>; i += lanes) {
      expand_groups(Twisted<V, r>{work, table}, ToLines<V, r>{lines + i});
      work += 2 * r * lanes;
      table += 2 * r * lanes;
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
