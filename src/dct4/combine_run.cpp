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

// ---- Where outputs stand so far apart, by powers of two, that they fall into few sets of the cache, they
// are collected: a row for every l, of as many classes as fill some lines, and every line of dst is written
// once.

/// The outputs of a register's classes, in rows from l = -r to r - 1.
template <class V, int r, int row>
struct ToRows {
  Element<V>* classes;

  template <int l>
  XFM_INLINE void put(V y) const {
    Aligned::store(classes + (r + l) * row, y);
  }
};

/// A part of the table on its way to the second-level cache.
template <class T>
XFM_INLINE inline void prefetch(const T* table, int elements) {
  for (int i = 0; i < elements; i += line<T>) __builtin_prefetch(table + i, 0, 2);
}

/// The rows of the classes from q on, each of some lines. The part of the table for as many other classes is
/// fetched, if it is given.
template <int r, int lines, class Stores, class T>
void expand_rows(const CombineNode<T>& node, T* dst, const T* classes, std::int32_t q, const T* next_table) {
  using V = Widest<T>;
  constexpr int lanes = lanes_of<V>, row = lines * line<T>;
  const std::ptrdiff_t fold = node.fold;
  const T* const table = node.table + std::ptrdiff_t{2 * r} * q;
  alignas(line_bytes) T rows[2 * r * row];
  for (int i = 0; i < row; i += lanes) {
    if (next_table != nullptr) prefetch(next_table + 2 * r * i, 2 * r * lanes);
    expand_groups(Twisted<V, r>{classes + 2 * r * i, table + 2 * r * i}, ToRows<V, r, row>{rows + i});
  }
  T* const ahead = dst + q;
  T* const behind = dst + (node.mirror - (2 * r - 1) * fold - q - (row - 1));
  for (int l = 0; l < r; ++l)
    for (int i = 0; i < row; i += line<T>)
      copy_line<Aligned, Stores>(rows + (r + l) * row + i, ahead + l * fold + i);
  for (int l = 0; l < r; ++l)
    for (int i = row; i > 0; i -= line<T>)
      copy_line_reversed<Aligned, Stores>(rows + (r - 1 - l) * row + (i - line<T>),
                                          behind + l * fold + (row - i));
}

template <class T, int r>
xfmStatus run_rows(const CombineNode<T>& node, T* dst, const T* work) {
  constexpr int lines = 4;
  constexpr const T* no_table = nullptr;
  for (std::int32_t q = 0; q < node.groups * group_size<T>; q += lines * line<T>)
    expand_rows<r, lines, Unaligned>(node, dst, work + std::ptrdiff_t{2 * r} * q, q, no_table);
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
                                                                         : run_rows<T, 32>(node, dst, work);
    default:
      return xfmStsBadState;
  }
}

template <class T>
void run_combine_stretch(const CombineNode<T>& node, T* dst, const T* stretch, std::int32_t q,
                         std::int32_t next, bool streams) {
  constexpr int lines = block_classes<T> / line<T>;
  const T* const next_table = node.table + std::ptrdiff_t{node.step} * next;
  if (streams)
    expand_rows<32, lines, Streaming>(node, dst, stretch, q, next_table);
  else
    expand_rows<32, lines, Unaligned>(node, dst, stretch, q, next_table);
}

template void run_combine_stretch(const CombineNode<float>&, float*, const float*, std::int32_t, std::int32_t,
                                  bool);
template void run_combine_stretch(const CombineNode<double>&, double*, const double*, std::int32_t,
                                  std::int32_t, bool);
template xfmStatus run_combine(const CombineNode<float>&, float*, const float*);
template xfmStatus run_combine(const CombineNode<double>&, double*, const double*);

}  // namespace xfm::dct4
