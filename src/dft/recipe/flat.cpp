// Blocks taken apart into smaller ones where there are too few of them to fill the lanes. Every output keeps
// its operation tree: only what stands beside what in a register changes.
#include "src/dft/recipe/packed.h"

namespace xfm::dft {

using gen::Constant;
using gen::cosine;
using gen::Element;
using gen::sine;
using gen::turn;
using gen::weighted;

// Length 4 as two stages of two: x0 +- x2 beside x1 +- x3, then a +- c beside b -+ i*d.
Batch Packed::four_flat(const Batch& x) {
  const auto two = [](const Points& z, Five) { return dft2(z); };
  Batch columns;
  for (const std::size_t c : {0U, 1U}) {
    for (const Line& line : x) columns.push_back({line[c], line[c + 2]});
  }
  columns = each(columns, two);
  Batch rows;
  for (const int k : {0, 1}) {
    for (std::size_t i = 0; i < x.size(); ++i) {
      const auto k1 = static_cast<std::size_t>(k);
      rows.push_back({columns[i][k1], weighted(columns[x.size() + i][k1], gen::root_of_unity(turn(k, 4)))});
    }
  }
  rows = each(rows, two);
  Batch out;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const Line &even = rows[i], &odd = rows[x.size() + i];
    out.push_back({even[0], odd[0], even[1], odd[1]});
  }
  return out;
}

// A direct symmetric block of odd length n: the h sums and differences beside one another, then the h pairs
// of rows
//   t_k = x0 + sum_j cos(2 pi j k/n) a_j,  u_k = sum_j sin(2 pi j k/n) b_j,
// each lane with the constants of its row.
Batch Packed::direct_flat(const Batch& x) {
  const std::size_t n = x.front().size(), h = (n - 1) / 2;
  Batch pairs;
  for (std::size_t j = 1; j <= h; ++j) {
    for (const Line& line : x) pairs.push_back({line[j], line[n - j]});
  }
  pairs = each(pairs, [](const Points& z, Five) { return dft2(z); });
  const auto pair = [&](std::size_t j, std::size_t i) -> const Line& {
    return pairs[(j - 1) * x.size() + i];
  };

  Batch totals;
  for (std::size_t i = 0; i < x.size(); ++i) {
    Line& line = totals.emplace_back(Line{x[i][0]});
    for (std::size_t j = 1; j <= h; ++j) line.push_back(pair(j, i)[0]);
  }
  totals = each(
      totals, n == 5 ? [](const Points& z, Five) { return Points{z[0], (z[1] + z[2]) + z[0]}; }
                     : [](const Points& z, Five) {
                         return Points{z[0], direct_total(z)};
                       });

  Batch rows;
  for (std::size_t k = 1; k <= h; ++k) {
    for (std::size_t i = 0; i < x.size(); ++i) {
      Line& line = rows.emplace_back(Line{totals[i][0]});
      const auto angle = [&](std::size_t j) {
        return turn(static_cast<long long>(j * k), static_cast<long long>(n));
      };
      for (std::size_t j = 1; j <= h; ++j)
        line.push_back(weighted(pair(j, i)[0], {cosine(angle(j)), {"0", 0}}));
      for (std::size_t j = 1; j <= h; ++j)
        line.push_back(weighted(pair(j, i)[1], {sine(angle(j)), {"0", 0}}));
    }
  }
  rows = each(rows, [](const Points& z, Five) {
    const std::size_t half = z.size() / 2;
    Complex t = z[0], u = z[half + 1];
    for (std::size_t j = 1; j <= half; ++j) t = t + z[j];
    for (std::size_t j = half + 2; j < z.size(); ++j) u = u + z[j];
    return Points{t - times_i(u), t + times_i(u)};
  });

  Batch out(x.size(), Line(n));
  for (std::size_t i = 0; i < x.size(); ++i) {
    out[i][0] = totals[i][1];
    for (std::size_t k = 1; k <= h; ++k) {
      out[i][k] = rows[(k - 1) * x.size() + i][0];
      out[i][n - k] = rows[(k - 1) * x.size() + i][1];
    }
  }
  return out;
}

}  // namespace xfm::dft
