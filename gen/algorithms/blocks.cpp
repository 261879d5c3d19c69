#include "gen/algorithms/blocks.h"

namespace xfm::gen {

Points dft2(const Points& x) { return {x[0] + x[1], x[0] - x[1]}; }

Points dft3(const Points& x) {
  const Constant half = sine(turn(1, 12)), c = sine(turn(1, 3));
  const Complex a = x[1] + x[2], d = x[1] - x[2];
  const Complex t = sum({x[0], -(half * a)}), u = c * d;
  return {x[0] + a, t - times_i(u), t + times_i(u)};
}

Points dft4(const Points& x) {
  const Complex a = x[0] + x[2], b = x[0] - x[2];
  const Complex c = x[1] + x[3], d = x[1] - x[3];
  return {a + c, b - times_i(d), a - c, b + times_i(d)};
}

namespace {

// The two cosine sums by their mean and half their difference. (u1, u2) is (b1, b2) rotated and scaled: four
// products and two additions, or three of each.
Points dft5_by_halves(const Points& x, bool three_products) {
  const Constant s1 = sine(turn(1, 5)), s2 = sine(turn(2, 5));
  const Constant quarter = constant("0.25", Wide(1) / 4), root = constant("sqrt(5)/4", wide_sqrt(5) / 4);
  const Complex a1 = x[1] + x[4], a2 = x[2] + x[3];
  const Complex b1 = x[1] - x[4], b2 = x[2] - x[3];
  const Complex s = a1 + a2;
  const Complex t = x[0] - Complex(quarter * s), w = root * (a1 - a2);
  const Complex t1 = t + w, t2 = t - w;
  Complex u1 = sum({s1 * b1, s2 * b2}), u2 = sum({s1 * b2, -(s2 * b1)});
  if (three_products) {
    const Complex m = s2 * (b1 + b2);
    u1 = Complex(constant("sin 1/5 minus sin 2/5", s1.value - s2.value) * b1) + m;
    u2 = Complex(constant("sin 1/5 plus sin 2/5", s1.value + s2.value) * b2) - m;
  }
  return {x[0] + s, t1 - times_i(u1), t2 + times_i(u2), t2 - times_i(u2), t1 + times_i(u1)};
}

}  // namespace

Points dft5(const Points& x, Five form) {
  if (form == Five::six_products || form == Five::five_products)
    return dft5_by_halves(x, form == Five::five_products);
  const Constant c1 = cosine(turn(1, 5)), c2 = -cosine(turn(2, 5));
  const Constant s1 = sine(turn(1, 5)), s2 = sine(turn(2, 5));
  const Complex a1 = x[1] + x[4], a2 = x[2] + x[3];
  const Complex b1 = x[1] - x[4], b2 = x[2] - x[3];
  const Complex x0 = form == Five::outer_first ? (x[0] + a1) + a2 : (a1 + a2) + x[0];
  const Complex t1 = sum({x[0], c1 * a1, -(c2 * a2)}), t2 = sum({x[0], -(c2 * a1), c1 * a2});
  const Complex u1 = sum({s1 * b1, s2 * b2}), u2 = sum({s2 * b1, -(s1 * b2)});
  return {x0, t1 - times_i(u1), t2 - times_i(u2), t2 + times_i(u2), t1 + times_i(u1)};
}

Points direct(const Points& x, Rounding rounding, Sequence<int> order) {
  const int n = x.size(), h = (n - 1) / 2;
  const bool last = rounding == Rounding::combination;  // x0 is the last term
  if (order.empty()) {
    order = tabulated(h, [&](int k) { return last ? k + 1 : h - k; });
    order.push_back(0);
  }
  Points a(h + 1), b(h + 1), out(n);
  for (int j = 1; j <= h; ++j) {
    a[j] = x[j] + x[n - j];
    b[j] = x[j] - x[n - j];
  }
  Complex total;
  for (int j = 1; j <= h; ++j) total = last ? total + a[j] : a[h + 1 - j] + total;
  for (const int k : Sequence<int>(order.rbegin(), order.rend())) {
    if (k == 0) {
      out[0] = x[0] + total;
      continue;
    }
    Sequence<ScaledComplex> t, u;
    for (int j = 1; j <= h; ++j) {
      const Turn angle = turn(static_cast<long long>(j) * k, n);
      t.push_back(cosine(angle) * a[j]);
      u.push_back((last ? -sine(angle) : sine(angle)) * b[j]);
    }
    t.insert(last ? t.end() : t.begin(), ScaledComplex(x[0]));
    const Complex cosines = last ? combination(t) : sum(t),
                  sines = last ? -times_i(combination(u)) : times_i(sum(u));
    out[k] = cosines - sines;
    out[n - k] = cosines + sines;
  }
  return out;
}

}  // namespace xfm::gen
