#include "gen/math/constant.h"

#include <cmath>
#include <numeric>
#include <set>
#include <string_view>

namespace xfm::gen {
namespace {

// 2 pi as a sum of three binary64 values, more than 113 bits.
Wide two_pi() {
  return Wide(0x1.921fb54442d18p+2) + Wide(0x1.1a62633145c07p-52) + Wide(-0x1.f1976b7ed8fbcp-108);
}

// Taylor series on the first octant, evaluated from the smallest term up for accuracy.
Wide series(Wide x, int first_power) {
  constexpr int terms = 18;
  Wide tail = 0;
  for (int t = terms; t > 0; --t) {
    const int p = first_power + 2 * t;
    tail = -(x * x) / Wide(p * (p - 1)) * (1 + tail);
  }
  return (first_power == 0 ? Wide(1) : x) * (1 + tail);
}

std::string fraction(Turn t) { return std::to_string(t.num) + "/" + std::to_string(t.den); }

// The named constant cos or sin of t for 0 <= t <= 1/8. 0, 1, 1/2 and sqrt(1/2) need no series.
Constant octant(bool is_cosine, Turn t) {
  if (t.num == 0) return is_cosine ? Constant{"1", 1} : Constant{"0", 0};
  if (!is_cosine && t.num == 1 && t.den == 12) return {"0.5", Wide(1) / 2};
  if (t.num == 1 && t.den == 8) return {"cos 1/8", wide_sqrt(Wide(1) / 2)};
  const Wide angle = two_pi() * Wide(t.num) / Wide(t.den);
  return {(is_cosine ? "cos " : "sin ") + fraction(t), series(angle, is_cosine ? 0 : 1)};
}

}  // namespace

Wide wide_abs(Wide v) { return v < 0 ? -v : v; }

Wide wide_sqrt(Wide v) {
  if (v == 0) return 0;
  Wide root = std::sqrt(static_cast<double>(v));
  for (int i = 0; i < 3; ++i) root = (root + v / root) / 2;
  return root;
}

Turn turn(long long num, long long den) {
  num = ((num % den) + den) % den;
  const long long divisor = std::gcd(num, den);
  return {static_cast<long>(num / divisor), static_cast<long>(den / divisor)};
}

Constant operator-(const Constant& c) {
  if (c.is_zero()) return c;
  return {c.name.starts_with('-') ? c.name.substr(1) : "-" + c.name, -c.value};
}

Constant signed_constant(const Constant& c, bool negative) {
  if (!negative) return c;
  if (!c.is_zero()) return -c;
  return c.name == "-0" ? Constant{"0", 0} : Constant{"-0", -Wide(0)};
}

Constant magnitude(const Constant& c) { return c.is_negative() ? -c : c; }

namespace {

constexpr std::string_view times = " x ";

// "a x b x c" with the factors sorted by name, so that the order of multiplication does not matter.
std::string product_name(const std::string& a, const std::string& b) {
  std::multiset<std::string> factors;
  for (std::string rest : {a, b}) {
    for (std::size_t at = rest.find(times); at != std::string::npos; at = rest.find(times)) {
      factors.insert(rest.substr(0, at));
      rest.erase(0, at + times.size());
    }
    factors.insert(rest);
  }
  std::string name;
  for (const std::string& factor : factors) name += (name.empty() ? "" : std::string(times)) + factor;
  return name;
}

}  // namespace

Constant operator*(const Constant& a, const Constant& b) {
  if (a.is_zero() || b.is_one()) return a;
  if (b.is_zero() || a.is_one()) return b;
  if (a.is_negative()) return -(-a * b);
  if (b.is_negative()) return -(a * -b);
  return {product_name(a.name, b.name), a.value * b.value};
}

Constant cosine(Turn t) {
  const long n = t.num, d = t.den;
  if (2 * n > d) return cosine(turn(d - n, d));           // cos(-x) = cos x
  if (4 * n > d) return -cosine(turn(d - 2 * n, 2 * d));  // cos(1/2 - x) = -cos x
  if (8 * n > d) return octant(false, turn(d - 4 * n, 4 * d));
  return octant(true, t);
}

Constant sine(Turn t) { return cosine(turn(4LL * t.num - t.den, 4LL * t.den)); }

Constant constant(std::string name, Wide value) { return {std::move(name), value}; }

ComplexConstant directed(const ComplexConstant& w, Direction direction) {
  return direction == Direction::forward ? w : ComplexConstant{w.re, -w.im};
}

ComplexConstant root_of_unity(Turn t, Direction direction) {
  return directed({cosine(t), -sine(t)}, direction);
}

Sequence<ComplexConstant> roots_of_unity(int n, Direction direction) {
  return tabulated(n, [&](int k) { return root_of_unity(turn(k, n), direction); });
}

}  // namespace xfm::gen
