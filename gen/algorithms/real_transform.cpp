#include "gen/algorithms/real_transform.h"

#include <stdexcept>

namespace xfm::gen::real {

Values samples(Network& network, int length) {
  Values x;
  for (int n = 0; n < length; ++n) x.push_back(network.load(n));
  return x;
}

int length_of(const Tree& plan) {
  if (plan.is_number()) return plan.number;
  if (plan.rule == "D") return plan.args[0].number;
  if (plan.rule == "R") return length_of(plan.args[1]) + 1;
  if (plan.rule == "F") return 2 * length_of(plan.args[0]);
  int product = 1;
  for (const Tree& arg : plan.args) product *= length_of(arg);
  return product;
}

namespace {

Points fork(const Tree& plan, const Values& x) {
  const std::size_t half = x.size() / 2;
  Values sums, differences;
  for (std::size_t n = 0; n < half; ++n) {
    sums.push_back(x[n] + x[n + half]);
    differences.push_back(x[n] - x[n + half]);
  }
  const Points even = transform(plan.args[0], sums), odd = skew_transform(plan.args[1], differences);
  Spectrum out(static_cast<int>(x.size()));
  for (std::size_t k = 0; k < even.size(); ++k) out.put(static_cast<int>(2 * k), even[k]);
  for (std::size_t f = 0; f < odd.size(); ++f) out.put(static_cast<int>(2 * f + 1), odd[f]);
  return out.bins();
}

}  // namespace

Points transform(const Tree& plan, const Values& x) {
  if (plan.is_number() || plan.rule == "D") return direct(plan, x);
  if (plan.rule == "x" || plan.rule == "*") return two_stages(plan, x);
  if (plan.rule == "R") return rader(plan, x);
  if (plan.rule == "F") return fork(plan, x);
  throw std::invalid_argument("no rule " + plan.rule + " for real sequences");
}

// With A and B the spectra of the real and of the imaginary parts, Z = A + iB; bin n-k needs nothing new,
// since A and B are Hermitian.
Points complex_transform(const Tree& plan, const Points& z) {
  const Points a = transform(plan, halves(z, &Complex::p)), b = transform(plan, halves(z, &Complex::q));
  Points out(z.size());
  for (std::size_t k = 0; k < a.size(); ++k) {
    out[k] = a[k] + times_i(b[k]);
    if (2 * k > 0 && 2 * k < z.size()) out[z.size() - k] = conjugate(a[k]) + times_i(conjugate(b[k]));
  }
  return out;
}

Values halves(const Points& points, Value Complex::*half) {
  Values all;
  for (const Complex& z : points) all.push_back(z.*half);
  return all;
}

Complex rotated(const Complex& z, Turn t) {
  const ComplexConstant w = root_of_unity(t);
  if (t.den == 1 || t.den == 2 || t.den == 4) {
    const Complex turned = w.re.is_zero() ? times_i(z) : z;
    return w.re.is_negative() || w.im.is_negative() ? -turned : turned;
  }
  if (t.den == 8) {
    const Complex scaled = combination({magnitude(w.re) * z});
    const Complex re = w.re.is_negative() ? -scaled : scaled;
    const Complex im = w.im.is_negative() ? -scaled : scaled;
    return {re.p - im.q, re.q + im.p};
  }
  const Complex& i_z = times_i(z);
  return combination({w.re * z, w.im * i_z});
}

}  // namespace xfm::gen::real
