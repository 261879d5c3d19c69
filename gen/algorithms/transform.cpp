#include "gen/algorithms/transform.h"

#include <algorithm>
#include <stdexcept>

#include "gen/algorithms/rules.h"
#include "gen/algorithms/transposition.h"
#include "gen/math/number.h"

namespace xfm::gen {

Points samples(Network& network, int length) {
  return tabulated(length, [&](int n) { return Complex{network.load(n), {}}; });
}

bool is_real(const Points& x) {
  return std::all_of(x.begin(), x.end(), [](const Complex& z) { return z.is_real(); });
}

Points halves(const Points& x, Value Complex::*half) {
  return tabulated(x.size(), [&](int k) { return Complex{x[k].*half, {}}; });
}

void Spectrum::put(int k, const Complex& z) {
  const int n = bins_.size(), mirror = modulo(kind_ == Bins::plain ? -k : -k - 1, n);
  if (known_[k]) return;
  known_[k] = known_[mirror] = true;
  bins_[mirror] = conjugate(z);
  bins_[k] = k == mirror ? Complex{z.p, {}} : z;
}

Points Transform::run(const Tree& tree, const Points& x, int instance) const {
  const Rule& rule = rule_of(tree);
  if (rule.on_points == nullptr)
    throw std::invalid_argument(to_string(tree) + " cannot transform a sequence of values");
  if ((rule.by_halves || combines()) && !is_real(x)) return by_halves(tree, x);
  return (this->*rule.on_points)(tree, x, instance);
}

// The transforms of p and of q, added by linearity. p may be absent altogether.
Points Transform::by_halves(const Tree& tree, const Points& x) const {
  const Points p = halves(x, &Complex::p), q = halves(x, &Complex::q);
  const auto there = [](const Points& half) {
    return std::any_of(half.begin(), half.end(), [](const Complex& z) { return !z.p.absent(); });
  };
  Points out = there(p) ? run(tree, p) : Points(x.size());
  const Points of_q = run(tree, q);
  for (int k = 0; k < out.size(); ++k) out[k] = out[k] + times_i(of_q[k]);
  return out;
}

Points Transform::from_bins(const Tree& tree, const Points& re, const Points& im, Bins kind) const {
  Network there(1, rounding_);
  const Transform transform(rounding_, choices_, true);
  const Points x = samples(there, length_of(tree));
  const Points bins = kind == Bins::plain ? transform.run(tree, x) : transform.skew(tree, x);
  Sequence<WeightedOutput> outputs;
  for (int k = 0; k < re.size(); ++k) outputs.insert(outputs.end(), {{bins[k].p, re[k]}, {bins[k].q, im[k]}});
  return transposed(there, outputs, x.size());
}

Points Transform::block(const Tree& tree, const Points& x, int instance) const {
  const int n = x.size();
  if (tree.rule == "SR") return split_radix(x);
  if (tree.args.size() > 1 && tree.rule == "D") {
    const auto bin = [&](int k) { return tree.args[k + 1].number; };
    return direct(x, rounding_, tabulated(tree.args.size() - 1, bin));
  }
  if (n == 1) return x;
  if (n == 2) return dft2(x);
  if (n == 3 && !combines()) return dft3(x);
  if (n == 4) return dft4(x);
  if (n == 5 && choices_.five) return dft5(x, choices_.five(is_real(x), instance, transposed_));
  if (n % 2 == 0) throw std::invalid_argument("no block of length " + std::to_string(n));
  return direct(x, rounding_);
}

Points Transform::fork(const Tree& tree, const Points& x, int /*instance*/) const {
  const int half = x.size() / 2;
  Points sums, differences;
  for (int n = 0; n < half; ++n) {
    sums.push_back(x[n] + x[n + half]);
    differences.push_back(x[n] - x[n + half]);
  }
  const Points even = run(tree.args[0], sums), odd = skew(tree.args[1], differences);
  Points out(x.size());
  for (int k = 0; k < half; ++k) {
    out[2 * k] = even[k];
    out[2 * k + 1] = odd[k];
  }
  return out;
}

// z times exp(-2 pi i t). Quarter turns cost nothing. Among linear combinations, odd eighths take two
// products, one sum and one difference.
Complex Transform::rotated(const Complex& z, Turn t) const {
  const ComplexConstant w = root_of_unity(t);
  if (!combines() || 4 % t.den == 0) return w * z;
  if (t.den == 8) {
    const Complex scaled = combination({magnitude(w.re) * z});
    const Complex re = w.re.is_negative() ? -scaled : scaled, im = w.im.is_negative() ? -scaled : scaled;
    return {re.p - im.q, re.q + im.p};
  }
  const Complex& i_z = times_i(z);
  return combination({w.re * z, w.im * i_z});
}

}  // namespace xfm::gen
