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
  const Tree first = tree.args.front(), rest = rest_of(tree);
  const int a = length_of(first), b = length_of(rest);
  const bool real = is_real(x);
  const bool open = tree.rule == "PFA*" && first.rule == "SR";
  const TwoStages map{a, b, tree.rule != "CT" && tree.rule != "*"};
  const Sequence<Points> columns = tabulated(b, [&](int c) {
    const Points column = tabulated(a, [&](int m) { return x[map.input(m, c)]; });
    return open ? split_radix(column, true) : run(first, column, c);
  });
  Sequence<Points> rows = tabulated(real ? a / 2 + 1 : a, [&](int k1) {
    const bool skew_row = tree.rule == "*" && 2 * k1 == a;
    const Points row = tabulated(b, [&](int c) {
      const Complex& z = columns[c][k1];
      return skew_row ? z : rotated(z, turn(map.twiddle(c, k1), a * b));
    });
    return skew_row ? skew(rest, row) : run(rest, row);
  });
  // The butterfly that the split radix left open comes after the rows of its operands.
  for (int k2 = 0; open && k2 < b; ++k2) {
    const Points outputs = dft2({rows[0][k2], rows[a / 2][k2]});
    rows[0][k2] = outputs[0];
    rows[a / 2][k2] = outputs[1];
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
