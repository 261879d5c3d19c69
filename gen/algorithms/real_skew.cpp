// Skew transforms, the bins halfway between those of the transform of the same length.
//
// An odd length is the plain transform of (-1)^n y[n] in another order of bins. A power of two is a complex
// transform of half the length: (y[n] - i y[n+N/2]) exp(-pi i n/N) has the bins Z[0], Z[2], ... Other lengths
// are composed of the two, without twiddles or with them.
#include "gen/algorithms/real_transform.h"
#include "gen/math/number.h"

namespace xfm::gen::real {
namespace {

// Bins 0..(N-1)/2, from either side: Z[N-1-f] is the conjugate of Z[f].
class SkewSpectrum {
 public:
  explicit SkewSpectrum(std::size_t length) : length_(length), bins_((length + 1) / 2) {}

  void put(std::size_t f, const Complex& z) {
    const std::size_t mirror = length_ - 1 - f;
    bins_[std::min(f, mirror)] = f <= mirror ? z : conjugate(z);
  }
  const Points& bins() const { return bins_; }

 private:
  std::size_t length_;
  Points bins_;
};

Points odd(const Tree& plan, const Values& y) {
  Values x;
  for (std::size_t n = 0; n < y.size(); ++n) x.push_back(n % 2 == 0 ? y[n] : -y[n]);
  const Points bins = transform(plan, x);
  SkewSpectrum out(y.size());
  for (std::size_t k = 0; k < bins.size(); ++k) out.put((k + y.size() / 2) % y.size(), bins[k]);
  return out.bins();
}

// `rest` is the plan of half the length.
Points power_of_two(const Tree& rest, const Values& y) {
  const std::size_t half = y.size() / 2;
  Points z;
  for (std::size_t n = 0; n < half; ++n) {
    z.push_back(
        rotated({y[n], -y[n + half]}, turn(static_cast<long long>(n), static_cast<long long>(2 * y.size()))));
  }
  const Points bins = complex_transform(rest, z);
  SkewSpectrum out(y.size());
  for (std::size_t j = 0; j < half; ++j) out.put(2 * j, bins[j]);
  return out.bins();
}

// Columns of length p, which are skew themselves, and rows of length q; column r turns by
// exp(-2 pi i r (f + 1/2)/N).
Points with_twiddles(const Tree& plan, const Values& y) {
  const Tree &first = plan.args[0], &rest = plan.args[1];
  const auto p = static_cast<std::size_t>(length_of(first)), q = static_cast<std::size_t>(length_of(rest));
  std::vector<Points> columns;
  for (std::size_t r = 0; r < q; ++r) {
    Values column;
    for (std::size_t t = 0; t < p; ++t) column.push_back(y[q * t + r]);
    columns.push_back(skew_transform(first, column));
  }
  SkewSpectrum out(y.size());
  for (std::size_t f = 0; 2 * f + 1 <= p; ++f) {
    const bool real = 2 * f + 1 == p;
    Points row;
    for (std::size_t r = 0; r < q; ++r) {
      const Turn angle = turn(static_cast<long long>(r * (2 * f + 1)), static_cast<long long>(2 * y.size()));
      row.push_back(real ? columns[r][f] : rotated(columns[r][f], angle));
    }
    const Points bins = real ? skew_transform(rest, halves(row, &Complex::p)) : complex_transform(rest, row);
    for (std::size_t u = 0; u < bins.size(); ++u) out.put(f + p * u, bins[u]);
  }
  return out.bins();
}

// Good-Thomas on the sequence continued to 2N = p * 2q: plain transforms of the odd length p, skew ones of
// the even length q.
Points good_thomas(const Tree& odd_plan, const Tree& even_plan, const Values& y) {
  const int n = static_cast<int>(y.size()), p = length_of(odd_plan), q = length_of(even_plan);
  std::vector<Points> columns;
  for (int b = 0; b < q; ++b) {
    Values column;
    for (int a = 0; a < p; ++a) {
      const int j = modulo(2LL * q * a + static_cast<long long>(p) * b, 2 * n);
      column.push_back(j < n ? y[static_cast<std::size_t>(j)] : -y[static_cast<std::size_t>(j - n)]);
    }
    columns.push_back(transform(odd_plan, column));
  }
  SkewSpectrum out(y.size());
  const auto put = [&](int k1, int k2, const Complex& z) {
    int k = k1;
    while (k % (2 * q) != k2) k += p;
    out.put(static_cast<std::size_t>(k / 2), z);
  };
  for (int k1 = 0; 2 * k1 < p; ++k1) {
    Points row;
    for (int b = 0; b < q; ++b)
      row.push_back(columns[static_cast<std::size_t>(b)][static_cast<std::size_t>(k1)]);
    const Points re = skew_transform(even_plan, halves(row, &Complex::p));
    const Points im = k1 == 0 ? Points(re.size()) : skew_transform(even_plan, halves(row, &Complex::q));
    for (int f = 0; 2 * f < q; ++f) {
      const Complex &a = re[static_cast<std::size_t>(f)], &b = im[static_cast<std::size_t>(f)];
      put(k1, 2 * f + 1, a + times_i(b));
      if (k1 > 0) put(k1, 2 * (q - 1 - f) + 1, conjugate(a) + times_i(conjugate(b)));
    }
  }
  return out.bins();
}

// A Good-Thomas plan as its odd factors and its even one.
void split(const Tree& plan, std::vector<Tree>& odd, Tree& even) {
  if (plan.rule == "x") {
    for (const Tree& arg : plan.args) split(arg, odd, even);
  } else if (length_of(plan) % 2 == 0) {
    even = plan;
  } else {
    odd.push_back(plan);
  }
}

}  // namespace

Points skew_transform(const Tree& plan, const Values& y) {
  if (y.size() % 2 == 1) return odd(plan, y);
  if (y.size() == 2) return {{y[0], -y[1]}};
  if (plan.rule == "*") {
    const bool halves = plan.args[0].number == 2;
    return halves ? power_of_two(plan.args[1], y) : with_twiddles(plan, y);
  }
  std::vector<Tree> odd;
  Tree even;
  split(plan, odd, even);
  while (odd.size() > 1) {
    const Tree last = odd.back();
    odd.pop_back();
    odd.back() = Tree{"x", 0, {odd.back(), last}};
  }
  return good_thomas(odd.front(), even, y);
}

}  // namespace xfm::gen::real
