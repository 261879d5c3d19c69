// Skew transforms: the bins halfway between those of the plain transform of the same length.
//
// An odd length takes the plain transform of (-1)^n y[n], with its bins reordered. A power of two takes a
// complex transform of half the length: that of (y[n] - i y[n+N/2]) exp(-pi i n/N) has the bins Z[0], Z[2],
// ... Other lengths combine the two, with or without twiddles.
#include <stdexcept>

#include "gen/algorithms/rules.h"

namespace xfm::gen {

Points Transform::skew(const Tree& tree, const Points& y) const {
  const int n = y.size();
  if (n == 2) return {{y[0].p, -y[1].p}, {y[0].p, y[1].p}};
  if (n % 2 == 0) {
    const Rule& rule = rule_of(tree);
    if (rule.on_skew == nullptr) throw std::invalid_argument("no skew transform " + to_string(tree));
    return (this->*rule.on_skew)(tree, y);
  }
  const Points bins = run(tree, tabulated(n, [&](int k) { return k % 2 == 0 ? y[k] : -y[k]; }));
  return tabulated(n, [&](int f) { return bins[(f + n / 2 + 1) % n]; });
}

// `rest` is the tree for half the length.
Points Transform::skew_of_even_length(const Tree& rest, const Points& y) const {
  const int n = y.size(), half = n / 2;
  const auto pair = [&](int k) { return rotated({y[k].p, -y[k + half].p}, turn(k, 2 * n)); };
  const Points bins = by_halves(rest, tabulated(half, pair));
  Spectrum out(n, Bins::skew);
  for (int j = 0; j < half; ++j) out.put(2 * j, bins[j]);
  return out.bins();
}

// Skew columns of length p and rows of length q; bin f of column r is multiplied by
// exp(-2 pi i r (f + 1/2)/N).
Points Transform::skew_cooley_tukey(const Tree& tree, const Points& y) const {
  const Tree first = tree.args.front(), rest = rest_of(tree);
  if (first.number == 2) return skew_of_even_length(rest, y);
  const int p = length_of(first), q = length_of(rest), n = p * q;
  const Sequence<Points> columns =
      tabulated(q, [&](int r) { return skew(first, tabulated(p, [&](int t) { return y[q * t + r]; })); });
  Spectrum out(n, Bins::skew);
  for (int f = 0; 2 * f + 1 <= p; ++f) {
    const bool real = 2 * f + 1 == p;
    const Points row = tabulated(q, [&](int r) {
      return real ? columns[r][f] : rotated(columns[r][f], turn(r * (2 * f + 1), 2 * n));
    });
    const Points bins = real ? skew(rest, row) : run(rest, row);
    for (int u = 0; u < q; ++u) out.put(f + p * u, bins[u]);
  }
  return out.bins();
}

namespace {

// The factors of a Good-Thomas tree: the odd ones nested to the left, and the even one.
void split(const Tree& tree, Sequence<Tree>& odd, Tree& even) {
  if (tree.rule == "x") {
    for (const Tree& arg : tree.args) split(arg, odd, even);
  } else if (length_of(tree) % 2 == 0) {
    even = tree;
  } else {
    odd = {odd.empty() ? tree : Tree{"x", 0, {odd.front(), tree}}};
  }
}

}  // namespace

// Works on the sequence continued with its negative to 2N = p * 2q: plain transforms of the odd length p,
// skew ones of the even length q.
Points Transform::skew_good_thomas(const Tree& tree, const Points& y) const {
  Sequence<Tree> odd;
  Tree even;
  split(tree, odd, even);
  const int n = y.size(), p = length_of(odd.front()), q = length_of(even);
  const auto continued = [&](int j) { return j < n ? y[j] : -y[j - n]; };
  const Sequence<Points> columns = tabulated(q, [&](int b) {
    const auto sample = [&](int a) { return continued((2 * q * a + p * b) % (2 * n)); };
    return run(odd.front(), tabulated(p, sample));
  });
  Spectrum out(n, Bins::skew);
  const auto put = [&](int k1, int k2, const Complex& z) {
    int k = k1;
    while (k % (2 * q) != k2) k += p;
    out.put(k / 2, z);
  };
  for (int k1 = 0; 2 * k1 < p; ++k1) {
    const Points row = tabulated(q, [&](int b) { return columns[b][k1]; });
    const Points re = skew(even, halves(row, &Complex::p));
    const Points im = k1 == 0 ? Points(q) : skew(even, halves(row, &Complex::q));
    for (int f = 0; f < q; ++f) put(k1, 2 * f + 1, re[f] + times_i(im[f]));
  }
  return out.bins();
}

}  // namespace xfm::gen
