// Real transforms of composite length N = p*q: q columns of length p, then rows of length q.
//
// Good-Thomas (Good 1958, Thomas 1963), p and q coprime: no twiddles. Cooley-Tukey (Cooley and Tukey 1965):
// column r is turned by exp(-2 pi i r k1/N) in between. The columns are real, so only their bins 0..p/2 are
// formed. Row 0 is real; so is row p/2 of an even p, which Cooley-Tukey turns by half a bin: a skew transform
// (Sorensen, Jones, Heideman and Burrus 1987 for the real forms).
#include "gen/algorithms/real_transform.h"
#include "gen/math/number.h"

namespace xfm::gen::real {

Points two_stages(const Tree& plan, const Values& x) {
  const Tree &first = plan.args[0], &rest = plan.args[1];
  const int p = length_of(first), q = length_of(rest), n = p * q;
  const TwoStages map{p, q, plan.rule == "x"};
  std::vector<Points> columns;
  for (int c = 0; c < q; ++c) {
    Values column;
    for (int m = 0; m < p; ++m) column.push_back(x[static_cast<std::size_t>(map.input(m, c))]);
    columns.push_back(transform(first, column));
  }
  const auto row = [&](int k1) {
    Points points;
    for (int c = 0; c < q; ++c) {
      const Complex& bin = columns[static_cast<std::size_t>(c)][static_cast<std::size_t>(k1)];
      points.push_back(2 * k1 < p ? rotated(bin, turn(map.twiddle(c, k1), n)) : bin);
    }
    return points;
  };
  Spectrum out(n);
  const auto put = [&](int k1, const Points& bins) {
    for (std::size_t k2 = 0; k2 < bins.size(); ++k2) out.put(map.output(k1, static_cast<int>(k2)), bins[k2]);
  };
  put(0, transform(rest, halves(row(0), &Complex::p)));
  for (int k1 = 1; 2 * k1 < p; ++k1) put(k1, complex_transform(rest, row(k1)));
  if (p % 2 == 0) {
    const Values middle = halves(row(p / 2), &Complex::p);
    put(p / 2, map.good_thomas ? transform(rest, middle) : skew_transform(rest, middle));
  }
  return out.bins();
}

}  // namespace xfm::gen::real
