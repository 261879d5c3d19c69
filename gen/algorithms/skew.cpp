// Skew transforms: the bins halfway between those of the plain transform of the same length.
//
// An odd length takes the plain transform of (-1)^n y[n], with its bins reordered. A power of two takes a
// complex transform of half the length: that of (y[n] - i y[n+N/2]) exp(-pi i n/N) has the bins Z[0], Z[2],
// ... Other lengths combine the two, with or without twiddles.
#include <stdexcept>

#include "gen/algorithms/rules.h"
#include "gen/math/number.h"

namespace xfm::gen {

Points Transform::skew(const Tree& tree, const Points& y) const {
  const int n = y.size();
  if (n == 2) return {{y[0].p, -y[1].p}, {y[0].p, y[1].p}};
  if (n % 2 == 0) {
    const Rule& rule = rule_of(tree);
    if (rule.on_skew == nullptr) throw std::invalid_argument("no skew transform " + to_string(tree));
    return (this->*rule.on_skew)(tree, y);
  }
  Points alternating;
  for (int k = 0; k < n; ++k) alternating.push_back(k % 2 == 0 ? y[k] : -y[k]);
  const Points bins = run(tree, alternating);
  Points out(n);
  for (int k = 0; k < n; ++k) out[(k + n / 2) % n] = bins[k];
  return out;
}

// `rest` is the tree for half the length.
Points Transform::skew_of_even_length(const Tree& rest, const Points& y) const {
  const int n = y.size(), half = n / 2;
  Points z;
  for (int k = 0; k < half; ++k) z.push_back(rotated({y[k].p, -y[k + half].p}, turn(k, 2 * n)));
  const Points bins = by_halves(rest, z);
  Spectrum out(n, Spectrum::Kind::skew);
  for (int j = 0; j < half; ++j) out.put(2 * j, bins[j]);
  return out.bins();
}

// Skew columns of length p and rows of length q; bin f of column r is multiplied by
// exp(-2 pi i r (f + 1/2)/N).
Points Transform::skew_cooley_tukey(const Tree& tree, const Points& y) const {
  const Tree first = first_of(tree), rest = rest_of(tree);
  if (first.number == 2) return skew_of_even_length(rest, y);
  const int p = length_of(first), q = length_of(rest), n = p * q;
  Sequence<Points> columns;
  for (int r = 0; r < q; ++r) {
    Points column;
    for (int t = 0; t < p; ++t) column.push_back(y[q * t + r]);
    columns.push_back(skew(first, column));
  }
  Spectrum out(n, Spectrum::Kind::skew);
  for (int f = 0; 2 * f + 1 <= p; ++f) {
    const bool real = 2 * f + 1 == p;
    Points row;
    for (int r = 0; r < q; ++r)
      row.push_back(real ? columns[r][f] : rotated(columns[r][f], turn(r * (2 * f + 1), 2 * n)));
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
  Sequence<Points> columns;
  for (int b = 0; b < q; ++b) {
    Points column;
    for (int a = 0; a < p; ++a) {
      const int j = modulo(2LL * q * a + static_cast<long long>(p) * b, 2 * n);
      column.push_back(j < n ? y[j] : -y[j - n]);
    }
    columns.push_back(run(odd.front(), column));
  }
  Spectrum out(n, Spectrum::Kind::skew);
  const auto put = [&](int k1, int k2, const Complex& z) {
    int k = k1;
    while (k % (2 * q) != k2) k += p;
    out.put(k / 2, z);
  };
  for (int k1 = 0; 2 * k1 < p; ++k1) {
    Points row;
    for (int b = 0; b < q; ++b) row.push_back(columns[b][k1]);
    const Points re = skew(even, halves(row, &Complex::p));
    const Points im = k1 == 0 ? Points(q) : skew(even, halves(row, &Complex::q));
    for (int f = 0; f < q; ++f) put(k1, 2 * f + 1, re[f] + times_i(im[f]));
  }
  return out.bins();
}

}  // namespace xfm::gen
