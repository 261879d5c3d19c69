#include <cmath>
#include <cstddef>
#include <numbers>

#include "bench/twist.h"

namespace xfm::bench {

template <class Real>
std::vector<Twist<Real>> twists() {
  std::vector<Twist<Real>> result{x86_64::twist<Real>()};
  if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma"))
    result.push_back(x86_64_v3::twist<Real>());
  if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512dq") &&
      __builtin_cpu_supports("avx512vl"))
    result.push_back(x86_64_v4::twist<Real>());
  return result;
}

template <class Real>
std::vector<Real> twist_table(int length) {
  const double unit = std::numbers::pi / (8.0 * length);
  std::vector<Real> table;
  table.reserve(static_cast<std::size_t>(length + 2));
  const auto add = [&](double angle) {
    table.push_back(static_cast<Real>(std::cos(angle)));
    table.push_back(static_cast<Real>(std::sin(angle)));
  };
  add(6 * unit);
  for (int n = 0; 2 * n < length; ++n) add(-unit * (8 * n + 1));
  return table;
}

template std::vector<Twist<float>> twists<float>();
template std::vector<Twist<double>> twists<double>();
template std::vector<float> twist_table<float>(int);
template std::vector<double> twist_table<double>(int);

}  // namespace xfm::bench
