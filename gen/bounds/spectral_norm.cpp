#include "gen/bounds/spectral_norm.h"

#include <algorithm>
#include <cmath>

namespace xfm::gen {
namespace {

using Rows = Sequence<Sequence<double>>;

// A A^T of the rows of A.
Rows products(const Rows& rows) {
  Rows all(rows.size(), Sequence<double>(rows.size()));
  for (int i = 0; i < rows.size(); ++i) {
    for (int j = 0; j <= i; ++j) {
      double sum = 0;
      for (int k = 0; k < rows[i].size(); ++k) sum += rows[i][k] * rows[j][k];
      all[i][j] = all[j][i] = sum;
    }
  }
  return all;
}

Rows transposed(const Rows& rows) {
  Rows columns(rows[0].size(), Sequence<double>(rows.size()));
  for (int i = 0; i < rows.size(); ++i) {
    for (int j = 0; j < columns.size(); ++j) columns[j][i] = rows[i][j];
  }
  return columns;
}

// The greatest sum of magnitudes in a row: no eigenvalue is greater.
double greatest_sum(const Rows& rows) {
  double greatest = 0;
  for (const Sequence<double>& row : rows) {
    double sum = 0;
    for (const double v : row) sum += std::abs(v);
    greatest = std::max(greatest, sum);
  }
  return greatest;
}

double greatest_entry(const Rows& rows) {
  double greatest = 0;
  for (const Sequence<double>& row : rows) greatest = std::max(greatest, *std::ranges::max_element(row));
  return greatest;
}

}  // namespace

// The square of the norm is the greatest eigenvalue of B = A A^T, whose power 2^k is bounded by the greatest
// sum of B^(2^k). No entry of the diagonal exceeds the eigenvalue, so there is an end to what squaring gains.
double spectral_norm_bound(const Rows& rows) {
  if (rows.empty()) return 0;
  constexpr int squarings = 4;
  constexpr double close = 1.02;
  Rows power = products(rows.size() > rows[0].size() ? transposed(rows) : rows);
  const double least = std::sqrt(greatest_entry(power));
  double root = 0.5, bound = std::sqrt(greatest_sum(power));
  for (int k = 0; k < squarings && bound > close * least; ++k) {
    power = products(power);
    root /= 2;
    bound = std::min(bound, std::pow(greatest_sum(power), root));
  }
  return bound;
}

}  // namespace xfm::gen
