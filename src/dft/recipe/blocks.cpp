#include "src/dft/recipe/blocks.h"

namespace xfm::dft {

using gen::Constant;
using gen::cosine;
using gen::ScaledComplex;
using gen::sine;
using gen::sum;
using gen::times_i;
using gen::turn;

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

Points dft5(const Points& x, Five form) {
  const Constant c1 = cosine(turn(1, 5)), c2 = -cosine(turn(2, 5));
  const Constant s1 = sine(turn(1, 5)), s2 = sine(turn(2, 5));
  const Complex a1 = x[1] + x[4], a2 = x[2] + x[3];
  const Complex b1 = x[1] - x[4], b2 = x[2] - x[3];
  if (form == Five::six_products || form == Five::five_products) {
    const Constant quarter = gen::constant("0.25", gen::Wide(1) / 4);
    const Constant root = gen::constant("sqrt(5)/4", gen::wide_sqrt(5) / 4);
    const Complex s = a1 + a2;
    const Complex t = x[0] - Complex(quarter * s), w = root * (a1 - a2);
    const Complex t1 = t + w, t2 = t - w;
    // (u1, u2) is (b1, b2) turned and stretched; a rotation takes three products where an addition more is
    // cheaper.
    Complex u1 = sum({s1 * b1, s2 * b2}), u2 = sum({s1 * b2, -(s2 * b1)});
    if (form == Five::five_products) {
      const Complex m = s2 * (b1 + b2);
      u1 = Complex(gen::constant("sin 1/5 minus sin 2/5", s1.value - s2.value) * b1) + m;
      u2 = Complex(gen::constant("sin 1/5 plus sin 2/5", s1.value + s2.value) * b2) - m;
    }
    return {x[0] + s, t1 - times_i(u1), t2 + times_i(u2), t2 - times_i(u2), t1 + times_i(u1)};
  }
  const Complex x0 = form == Five::outer_first ? (x[0] + a1) + a2 : (a1 + a2) + x[0];
  const Complex t1 = sum({x[0], c1 * a1, -(c2 * a2)}), t2 = sum({x[0], -(c2 * a1), c1 * a2});
  const Complex u1 = sum({s1 * b1, s2 * b2}), u2 = sum({s2 * b1, -(s1 * b2)});
  return {x0, t1 - times_i(u1), t2 - times_i(u2), t2 + times_i(u2), t1 + times_i(u1)};
}

Points direct(const Points& x) {
  const int n = static_cast<int>(x.size()), h = (n - 1) / 2;
  const auto at = [&](int j) { return x[static_cast<std::size_t>(j)]; };
  Points a(x.size()), b(x.size()), out(x.size());
  for (int j = 1; j <= h; ++j) {
    a[static_cast<std::size_t>(j)] = at(j) + at(n - j);
    b[static_cast<std::size_t>(j)] = at(j) - at(n - j);
  }
  Complex total = a[static_cast<std::size_t>(h)];
  for (int j = h - 1; j >= 1; --j) total = a[static_cast<std::size_t>(j)] + total;
  out[0] = at(0) + total;
  for (int k = 1; k <= h; ++k) {
    std::vector<ScaledComplex> t{at(0)}, u;
    for (int j = 1; j <= h; ++j) {
      const gen::Turn angle = turn(static_cast<long long>(j) * k, n);
      t.push_back(cosine(angle) * a[static_cast<std::size_t>(j)]);
      u.push_back(sine(angle) * b[static_cast<std::size_t>(j)]);
    }
    const Complex cosines = sum(t), sines = times_i(sum(u));
    out[static_cast<std::size_t>(k)] = cosines - sines;
    out[static_cast<std::size_t>(n - k)] = cosines + sines;
  }
  return out;
}

}  // namespace xfm::dft
