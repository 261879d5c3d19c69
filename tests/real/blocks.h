// The direct blocks of odd length p: sums and differences of opposite elements, one product a term.
#pragma once

#include "tests/bits/nearest.h"
#include "tests/real/half_spectrum.h"

namespace xfm::test {

/// x0 + sum over j of cos(2 pi j k / p) * s(j), j = 1 .. (p-1)/2, inside a linear combination.
template <class T>
OneOf<double> even_term(int k, T x0, const std::vector<T>& s) {
  const auto p = 2 * static_cast<long>(s.size()) + 1;
  std::vector<double> terms = {double{x0}};
  for (std::size_t j = 0; j < s.size(); ++j)
    terms.push_back(cosine<double>(static_cast<long>(j + 1) * k, p) * double{s[j]});
  return sum_in_any_order(std::move(terms));
}

/// sum over j of sin(2 pi j k / p) * d(j).
template <class T>
OneOf<double> odd_term(int k, const std::vector<T>& d) {
  const auto p = 2 * static_cast<long>(d.size()) + 1;
  std::vector<double> terms;
  for (std::size_t j = 0; j < d.size(); ++j)
    terms.push_back(sine<double>(static_cast<long>(j + 1) * k, p) * double{d[j]});
  return sum_in_any_order(std::move(terms));
}

/// From the left. The order is open, except in the inverse block of 7 points.
template <class T>
T sum_of(const std::vector<T>& terms) {
  T sum = terms[0];
  for (std::size_t j = 1; j < terms.size(); ++j) sum = sum + terms[j];
  return sum;
}

/// x(j) + x(p-j) and x(j) - x(p-j).
template <class T>
struct Folded {
  explicit Folded(const Samples<T>& x) : x0(x[0]) {
    for (std::size_t j = 1; j <= x.size() / 2; ++j) {
      s.push_back(x[j] + x[x.size() - j]);
      d.push_back(x[j] - x[x.size() - j]);
    }
  }
  T x0;
  std::vector<T> s, d;
};

/// A block of p real points inside a longer transform, as values. Bin k is even[k] - i odd[k].
template <class T>
struct Block {
  explicit Block(const Samples<T>& x) {
    const Folded<T> f(x);
    even.emplace_back(f.x0 + sum_of(f.s));
    odd.emplace_back(T(0));
    for (int k = 1; k <= static_cast<int>(f.s.size()); ++k) {
      even.push_back(narrow<T>(even_term(k, f.x0, f.s)));
      odd.push_back(narrow<T>(odd_term(k, f.d)));
    }
  }
  std::vector<OneOf<T>> even, odd;
};

}  // namespace xfm::test
