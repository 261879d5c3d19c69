// Transforms of composite length N = a*b in two stages, b columns of length a and then a rows of length b.
//
// Cooley-Tukey (Cooley and Tukey 1965): with input n = c + b*m and output k = k1 + a*k2,
//   X[k1 + a*k2] = sum_c W_b^(c*k2) W_N^(c*k1) sum_m W_a^(m*k1) x[c + b*m],   W_N = exp(-2 pi i/N).
// Good-Thomas (Good 1958, Thomas 1963), a and b coprime: the index maps of the Chinese remainder theorem make
// the transform two-dimensional, without the twiddles W_N^(c*k1).
//
// For real sequences the rows above a/2 are conjugates of those below (Sorensen, Jones, Heideman and Burrus
// 1987). In Cooley-Tukey with an even a the twiddles of row a/2 shift it by half a bin: "*" makes it the skew
// transform of a real sequence, "CT" a complex transform after its twiddles.
#include "gen/algorithms/transform.h"
#include "gen/math/number.h"

namespace xfm::gen {

Points Transform::two_stages(const Tree& tree, const Points& x, int /*instance*/) const {
  const Tree first = first_of(tree), rest = rest_of(tree);
  const int a = length_of(first), b = length_of(rest);
  const bool real = is_real(x);
  const bool open = tree.rule == "PFA*" && first.rule == "SR";
  const TwoStages map{a, b, tree.rule != "CT" && tree.rule != "*"};
  Sequence<Points> columns;
  for (int c = 0; c < b; ++c) {
    Points column;
    for (int m = 0; m < a; ++m) column.push_back(x[map.input(m, c)]);
    columns.push_back(open ? open_split_radix(column) : run(first, column, c));
  }
  const auto row = [&](int k1) {
    const bool skew_row = tree.rule == "*" && 2 * k1 == a;
    Points points;
    for (int c = 0; c < b; ++c)
      points.push_back(skew_row ? columns[c][k1] : rotated(columns[c][k1], turn(map.twiddle(c, k1), a * b)));
    return skew_row ? skew(rest, points) : run(rest, points);
  };
  Sequence<Points> rows;
  for (int k1 = 0; k1 <= (real ? a / 2 : a - 1); ++k1) rows.push_back(row(k1));
  if (open) {
    // The butterfly that the split radix left open comes after the rows of its operands.
    Points &low = rows[0], &middle = rows[a / 2];
    for (int k2 = 0; k2 < b; ++k2) {
      const Complex sum = low[k2] + middle[k2], difference = low[k2] - middle[k2];
      low[k2] = sum;
      middle[k2] = difference;
    }
  }
  Spectrum spectrum(a * b);
  Points out(a * b);
  for (int k1 = 0; k1 < rows.size(); ++k1) {
    for (int k2 = 0; k2 < b; ++k2) {
      const int k = map.output(k1, k2);
      if (real) spectrum.put(k, rows[k1][k2]);
      out[k] = rows[k1][k2];
    }
  }
  return real ? spectrum.bins() : out;
}

}  // namespace xfm::gen
