// Transforms of composite length N = a*b in two stages, b columns of length a and then a rows of length b.
//
// Cooley-Tukey (Cooley and Tukey 1965): with input n = c + b*m and output k = k1 + a*k2,
//   X[k1 + a*k2] = sum_c W_b^(c*k2) W_N^(c*k1) sum_m W_a^(m*k1) x[c + b*m],   W_N = exp(-2 pi i/N).
// Good-Thomas (Good 1958, Thomas 1963), a and b coprime: by the index maps of the Chinese remainder theorem
// the transform is truly two-dimensional, and the twiddles W_N^(c*k1) are gone.
#include <algorithm>

#include "src/dft/recipe/lane_real.h"
#include "src/dft/recipe/packed.h"
#include "src/dft/recipe/rules.h"

namespace xfm::dft {

using gen::conjugate;
using gen::root_of_unity;
using gen::Tree;
using gen::turn;
using gen::TwoStages;

// On real sequences the rows k1 above a/2 are conjugates of those below: they are not computed, but read off
// as X[N-k]. Good-Thomas also takes complex ones.
Points LaneReal::two_stages(const Tree& tree, const Points& x) const {
  const TwoStages map = stages_of(tree);
  const int n = map.a * map.b;
  const bool open = tree.rule == "PFA*" && first_of(tree).rule == "SR";
  const bool real = std::all_of(x.begin(), x.end(), [](const Complex& z) { return z.is_real(); });
  std::vector<Points> columns;
  for (int c = 0; c < map.b; ++c) {
    Points column;
    for (int m = 0; m < map.a; ++m) column.push_back(x[static_cast<std::size_t>(map.input(m, c))]);
    columns.push_back(open ? open_split_radix(column) : transform(first_of(tree), column));
  }
  const auto row = [&](int k1) {
    Points points;
    for (int c = 0; c < map.b; ++c) {
      const Complex& y = columns[static_cast<std::size_t>(c)][static_cast<std::size_t>(k1)];
      points.push_back(root_of_unity(turn(map.twiddle(c, k1), n)) * y);
    }
    return transform(rest_of(tree), points);
  };
  std::vector<Points> rows;
  for (int k1 = 0; k1 <= (real ? map.a / 2 : map.a - 1); ++k1) rows.push_back(row(k1));
  if (open) {
    // The last stage of two of the split radix comes after the rows of its operands.
    Points& first = rows[0];
    Points& middle = rows[static_cast<std::size_t>(map.a / 2)];
    for (std::size_t k2 = 0; k2 < first.size(); ++k2) {
      const Complex sum = first[k2] + middle[k2], difference = first[k2] - middle[k2];
      first[k2] = sum;
      middle[k2] = difference;
    }
  }
  Points out(x.size());
  std::vector<bool> known(x.size(), false);
  const auto put = [&](int k, const Complex& z) {
    const auto at = static_cast<std::size_t>(k);
    if (known[at]) return;
    known[at] = true;
    out[at] = z;
  };
  for (int k1 = 0; k1 < static_cast<int>(rows.size()); ++k1) {
    for (int k2 = 0; k2 < map.b; ++k2) {
      const int k = map.output(k1, k2), mirror = (n - k) % n;
      const Complex& z = rows[static_cast<std::size_t>(k1)][static_cast<std::size_t>(k2)];
      put(k, real && k == mirror ? Complex{z.p, {}} : z);
      if (real) put(mirror, conjugate(z));
    }
  }
  return out;
}

Batch Packed::two_stages(const Tree& tree, const Batch& x, Direction direction) {
  const TwoStages map = stages_of(tree);
  const int n = map.a * map.b;
  Batch columns;
  for (int c = 0; c < map.b; ++c) {
    for (const Line& line : x) {
      Line& column = columns.emplace_back();
      for (int m = 0; m < map.a; ++m) column.push_back(line[static_cast<std::size_t>(map.input(m, c))]);
    }
  }
  columns = transform(first_of(tree), columns, direction);
  Batch rows;
  for (int k1 = 0; k1 < map.a; ++k1) {
    for (std::size_t i = 0; i < x.size(); ++i) {
      Line& row = rows.emplace_back();
      for (int c = 0; c < map.b; ++c) {
        const Line& column = columns[static_cast<std::size_t>(c) * x.size() + i];
        const gen::ComplexConstant twiddle = root(turn(map.twiddle(c, k1), n), direction);
        row.push_back(weighted(column[static_cast<std::size_t>(k1)], twiddle));
      }
    }
  }
  rows = transform(rest_of(tree), rows, direction);
  Batch out(x.size(), Line(static_cast<std::size_t>(n)));
  for (int k1 = 0; k1 < map.a; ++k1) {
    for (std::size_t i = 0; i < x.size(); ++i) {
      const Line& row = rows[static_cast<std::size_t>(k1) * x.size() + i];
      for (int k2 = 0; k2 < map.b; ++k2) {
        out[i][static_cast<std::size_t>(map.output(k1, k2))] = row[static_cast<std::size_t>(k2)];
      }
    }
  }
  return out;
}

}  // namespace xfm::dft
