// By induction over the plan. Every step of a run is an orthogonal map times a number, of its input or of
// parts of it whose images are orthogonal. So it passes the relative error in the 2-norm on unchanged: of
// parts, the greatest one. Errors of steps in sequence compound: 1 + e = (1 + e1)(1 + e2). A step of
// additions has a relative error of u, since every result has.
#include "src/dct4/recipe/bounds.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "src/dct4/breakdown.h"

namespace xfm::dct4 {
namespace {

/// A relative error in the 2-norm, and how many steps with products contribute to it.
struct Error {
  double relative = 0;
  int products = 0;
};

/// One step after the other.
Error operator+(Error a, Error b) {
  return {a.relative + b.relative + a.relative * b.relative, a.products + b.products};
}
/// Of parts.
Error worse(Error a, Error b) { return {std::max(a.relative, b.relative), std::max(a.products, b.products)}; }

class Plan {
 public:
  explicit Plan(gen::Precision precision) : u_(gen::unit_roundoff(precision)) {}

  Error transform(int length) const {
    switch (length) {
      case 2:
        return turn_by_constant();
      case 8:
        return leaf(4) + turn_by_constant() + expansion(2);
      case 16:
        return leaf(4) + turn_by_constant() + expansion(4);
      case 32:
        return leaf(16) + turn_by_constant() + expansion(2);
      default: {
        const int r = radix_rule(length / 2);
        constexpr double greatest_twist = pi / 2;
        return fold(length / r) + turn(2, greatest_twist) + expansion(r);
      }
    }
  }

 private:
  static constexpr double pi = std::numbers::pi;

  // Steps. Constants in the code are computed in extended precision and rounded.
  Error addition() const { return {u_, 0}; }
  Error product() const { return Error{u_, 1} + Error{stored_ * u_, 0}; }
  /// Complex products by a number that is off by this much (Brent, Percival and Zimmermann 2007).
  Error complex_product(double off) const { return Error{std::sqrt(5) * u_, 1} + Error{off, 0}; }
  Error turn_by_constant() const { return complex_product(stored_ * u_); }
  /// By a number from a table, whose angle is at most this and was rounded so many times; pi is off by less
  /// than u / 2. The cosine and the sine are off by a unit in the last place, 2 u.
  Error turn(int roundings, double angle) const {
    return complex_product(((roundings + 0.5) * angle + 2) * u_ * (1 + 0x1p-10));
  }

  /// src/dct4/fold.h
  Error leaf(int m) const {
    if (m == 2) return {};
    if (m == 4) return addition() + product() + addition();
    if (m == 8) return worse(leaf(4), leaf(4) + turn_by_constant()) + addition();
    const Error quarters = leaf(m / 4) + turn_by_constant() + addition();
    return worse(leaf(m / 2), quarters) + addition();
  }

  /// src/dct4/expansion.h
  Error expansion(int r) const {
    if (r == 1) return {};
    if (r == 2) return addition() + odd_expansion(2);
    const Error even = expansion(r / 4), odd = odd_expansion(r / 2);
    const Error quarters = addition() + turn_by_constant() + expansion(r / 4);
    return addition() + worse(addition() + worse(even, odd), quarters);
  }
  Error odd_expansion(int r) const {
    if (r == 2) return addition() + product();
    return addition() + turn_by_constant() + expansion(r / 4);
  }

  /// The DFT across sub-sequences, src/dct4/odd_combine_run.cpp.
  Error dft(int n) const {
    if (n == 2) return addition();
    if (n == 4) return addition() + addition();
    return addition() + addition() + worse({}, addition() + product()) + addition();
  }

  /// A leaf or a split.
  Error fold(int m) const {
    if (leaf_kind(m) != 0) return leaf(m);
    const int r2 = radix_rule(m / 2);
    if (r2 <= 8) return fold(m / r2) + turn(2, pi) + dft(r2);
    return fold(m / r2) + turn(2, pi) + dft(r2 / 4) + turn(3, 1.5 * pi) + dft(4);
  }

  static constexpr double stored_ = 1 + 0x1p-9;  // extended precision rounds first
  double u_;
};

gen::Constant cosine(long a, long b) { return gen::cosine(gen::turn(a, 2 * b)); }
gen::Constant sine(long a, long b) { return gen::sine(gen::turn(a, 2 * b)); }

// Shears are not orthogonal: N = 4 goes the way of the kernels. As transform_4() in src/dct4/base.h.
gen::Sequence<gen::Bound> bounds_of_4(gen::Precision precision) {
  gen::Network network(1);
  const auto tangent = [&](long a) {
    return gen::constant("tan " + std::to_string(a), sine(a, 32).value / cosine(a, 32).value);
  };
  const gen::Constant p0 = tangent(7), q0 = sine(7, 16), p1 = tangent(5), q1 = sine(5, 16), s = cosine(1, 4);
  const auto times = [&](const gen::Constant& c, gen::Value v) { return network.mul(c, v); };
  const gen::Value x0 = network.load(0), x1 = network.load(1), x2 = network.load(2), x3 = network.load(3);
  const gen::Value a = x0 - times(p0, x3), b = x3 + times(q0, a), c = a - times(p0, b);
  const gen::Value d = x1 - times(p1, x2), e = x2 + times(q1, d), f = d - times(p1, e);
  const gen::Value g = times(s, b - e), h = times(s, c + f);
  const gen::Value outputs[] = {b + e, g + h, g - h, c - f};
  for (int k = 0; k < 4; ++k) network.store(outputs[k], k);
  const auto definition = [](const gen::Sequence<gen::Wide>& src, gen::Sequence<gen::Wide>& dst) {
    for (int k = 0; k < 4; ++k) {
      dst[k] = 0;
      for (int j = 0; j < 4; ++j) dst[k] += src[j] * cosine((2 * j + 1) * (2 * k + 1), 16).value;
    }
  };
  return gen::bounds(network, precision, gen::matrix_of(definition, 4, 4), gen::Factor::one);
}

TransformBound bound_of_4(gen::Precision precision) {
  const gen::Sequence<gen::Bound> outputs = bounds_of_4(precision);
  double squares = 0;
  for (const gen::Bound& one : outputs) squares += one.norm * one.norm;
  return {std::sqrt(squares / 2), gen::greatest(outputs)};
}

}  // namespace

// |exact|_2 is sqrt(N/2) |x|_2, and |x|_2 is at most sqrt(N) max |x(i)|. A step with products underflows in
// at most four products for each complex number of N/2, and in the steps that follow the error grows by
// sqrt(N/2) at most: sqrt(8 N/2) sqrt(N/2) t.
TransformBound bound(int length, gen::Precision precision) {
  if (length == 4) return bound_of_4(precision);
  const Error error = Plan(precision).transform(length);
  constexpr double evaluation = 1 + 0x1p-40;
  const double relative = error.relative / gen::unit_roundoff(precision) * evaluation, n = length;
  const double norm = relative * std::sqrt(n / 2);
  return {relative, {norm, norm * std::sqrt(n), 2 * n * error.products * (1 + 0x1p-10)}};
}

}  // namespace xfm::dct4
