#include "gen/math/number.h"

#include <stdexcept>
#include <string>

namespace xfm::gen {

int modulo(long long a, int n) { return static_cast<int>(((a % n) + n) % n); }

int inverse_modulo(int a, int n) {
  for (int candidate = 1; candidate <= n; ++candidate) {
    if (modulo(static_cast<long long>(a) * candidate, n) == 1 % n) return candidate % n;
  }
  throw std::invalid_argument("inverse_modulo: arguments are not coprime");
}

int power_modulo(int base, int exponent, int n) {
  long long power = 1 % n;
  for (int i = 0; i < exponent; ++i) power = power * base % n;
  return static_cast<int>(power);
}

bool is_prime(int n) {
  for (int d = 2; d * d <= n; ++d) {
    if (n % d == 0) return false;
  }
  return n >= 2;
}

int smallest_primitive_root(int p) {
  if (!is_prime(p)) throw std::invalid_argument(std::to_string(p) + " is not a prime");
  for (int g = 1; g < p; ++g) {
    int order = 1;
    for (long long power = g % p; power != 1 % p; power = power * g % p) ++order;
    if (order == p - 1) return g;
  }
  throw std::logic_error("a prime without a primitive root");
}

int TwoStages::input(int m, int c) const {
  return good_thomas ? modulo(static_cast<long long>(b) * m + static_cast<long long>(a) * c, a * b)
                     : c + b * m;
}

int TwoStages::output(int k1, int k2) const {
  if (!good_thomas) return k1 + a * k2;
  const long long row = static_cast<long long>(b) * inverse_modulo(b, a) * k1;
  const long long column = static_cast<long long>(a) * inverse_modulo(a, b) * k2;
  return modulo(row + column, a * b);
}

}  // namespace xfm::gen
