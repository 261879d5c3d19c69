// The binary64 lengths whose equations are written out: every product has a real factor, and i enters only in
// the last sum and difference.
#pragma once

#include <array>
#include <cmath>

#include "tests/bits/nearest.h"
#include "tests/bits/number.h"

namespace xfm::test {

inline Points<double> symmetric7(const Points<double>& x) {
  const auto c1 = cosine<double>(1, 7), c2 = -cosine<double>(2, 7), c3 = -cosine<double>(3, 7);
  const auto s1 = sine<double>(1, 7), s2 = sine<double>(2, 7), s3 = sine<double>(3, 7);
  const auto a1 = x[1] + x[6], a2 = x[2] + x[5], a3 = x[3] + x[4];
  const auto b1 = x[1] - x[6], b2 = x[2] - x[5], b3 = x[3] - x[4];
  const auto t1 = ((x[0] + c1 * a1) - c2 * a2) - c3 * a3;
  const auto t2 = ((x[0] - c2 * a1) - c3 * a2) + c1 * a3;
  const auto t3 = ((x[0] - c3 * a1) + c1 * a2) - c2 * a3;
  const auto u1 = (s1 * b1 + s2 * b2) + s3 * b3;
  const auto u2 = (s2 * b1 - s3 * b2) - s1 * b3;
  const auto u3 = (s3 * b1 - s1 * b2) + s2 * b3;
  return {x[0] + (a1 + (a2 + a3)), t1 - times_i(u1), t2 - times_i(u2), t3 - times_i(u3),
          t3 + times_i(u3),        t2 + times_i(u2), t1 + times_i(u1)};
}

/// Split radix, the twiddles reduced to sums and differences of u and v.
inline Points<double> split8(const Points<double>& x) {
  const auto r = cosine<double>(1, 8);
  const auto a0 = x[0] + x[4], a1 = x[1] + x[5], a2 = x[2] + x[6], a3 = x[3] + x[7];
  const auto d0 = x[0] - x[4], d1 = x[1] - x[5], d2 = x[2] - x[6], d3 = x[3] - x[7];
  const auto e0 = a0 + a2, e1 = a1 + a3;
  const auto u = r * d1, v = r * d3, p = u - v, q = u + v;
  return {e0 + e1, (d0 + p) - times_i(d2 + q), (a0 - a2) - times_i(a1 - a3), (d0 - p) - times_i(q - d2),
          e0 - e1, (d0 - p) + times_i(q - d2), (a0 - a2) + times_i(a1 - a3), (d0 + p) + times_i(d2 + q)};
}

/// The length-5 block with its cosines by their sum and difference, and its u2 negated.
struct Halves5 {
  Number<double> e, t1, t2, u1, u2;
};
inline Halves5 halves5(const Points<double>& x) {
  const auto s1 = sine<double>(1, 5), s2 = sine<double>(2, 5), root = std::sqrt(5.0) / 4;
  const auto a1 = x[1] + x[4], a2 = x[2] + x[3], b1 = x[1] - x[4], b2 = x[2] - x[3];
  const auto s = a1 + a2, t = x[0] - 0.25 * s, w = root * (a1 - a2);
  return {x[0] + s, t + w, t - w, s1 * b1 + s2 * b2, s1 * b2 - s2 * b1};
}

/// 5 by 2, joined only at the end.
inline Points<double> joined10(const Points<double>& x) {
  const auto [e, t1, t2, u1, u2] = halves5({x[0], x[2], x[4], x[6], x[8]});
  const auto [f, v1, v2, w1, w2] = halves5({x[5], x[7], x[9], x[1], x[3]});
  return {e + f,
          (t1 - v1) - times_i(u1 - w1),
          (t2 + v2) + times_i(u2 + w2),
          (t2 - v2) - times_i(u2 - w2),
          (t1 + v1) + times_i(u1 + w1),
          e - f,
          (t1 + v1) - times_i(u1 + w1),
          (t2 - v2) + times_i(u2 - w2),
          (t2 + v2) - times_i(u2 + w2),
          (t1 - v1) + times_i(u1 - w1)};
}

/// 3 by 4, joined only at the end.
inline Points<double> joined12(const Points<double>& x) {
  const auto s = sine<double>(1, 3);
  Points<double> e, t, u;
  for (const auto& [w, p, q] : {std::array{x[0], x[4], x[8]}, std::array{x[3], x[7], x[11]},
                                std::array{x[6], x[10], x[2]}, std::array{x[9], x[1], x[5]}}) {
    e.push_back(w + (p + q));
    t.push_back(w - 0.5 * (p + q));
    u.push_back(s * (p - q));
  }
  const auto e0 = e[0] + e[2], e1 = e[0] - e[2], e2 = e[1] + e[3], e3 = e[1] - e[3];
  const auto a = t[0] + t[2], b = u[0] + u[2], c = t[0] - t[2], d = u[2] - u[0];
  const auto f = t[1] + t[3], g = u[1] + u[3], h = t[1] - t[3], j = u[3] - u[1];
  Points<double> out(12);
  const auto join = [&](std::size_t plus, std::size_t minus, Number<double> p, Number<double> q) {
    out[plus] = p + times_i(q);
    out[minus] = p - times_i(q);
  };
  out[0] = e0 + e2;
  out[6] = e0 - e2;
  join(3, 9, e1, e3);
  join(1, 11, c + j, d - h);
  join(10, 2, a - f, g - b);
  join(8, 4, a + f, b + g);
  join(7, 5, c - j, d + h);
  return out;
}

}  // namespace xfm::test
