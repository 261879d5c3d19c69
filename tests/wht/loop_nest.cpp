#include "tests/wht/loop_nest.h"

#include <bit>
#include <cmath>

namespace xfm::test {
namespace {

// Orders 1, 3, ... 13. In binary64 1 divided by the rounded root, one step below the nearest value.
constexpr std::uint32_t odd_roots_binary32[] = {0x3F3504F3, 0x3EB504F3, 0x3E3504F3, 0x3DB504F3,
                                                0x3D3504F3, 0x3CB504F3, 0x3C3504F3};
constexpr std::uint64_t odd_roots_binary64[] = {0x3FE6A09E667F3BCC, 0x3FD6A09E667F3BCC, 0x3FC6A09E667F3BCC,
                                                0x3FB6A09E667F3BCC, 0x3FA6A09E667F3BCC, 0x3F96A09E667F3BCC,
                                                0x3F86A09E667F3BCC};

template <class T>
Array run(const Array& src, double factor) {
  const int n = src.count();
  std::vector<T> x;
  x.reserve(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) x.push_back(static_cast<T>(src[i]));
  const auto at = [&](int i) -> T& { return x[static_cast<std::size_t>(i)]; };
  for (int stride = 1; stride < n; stride *= 2) {
    for (int i = 0; i < n; ++i) {
      if ((i & stride) != 0) continue;
      const T a = at(i), b = at(i + stride);
      at(i) = a + b;
      at(i + stride) = a - b;
    }
  }
  Array result(src.precision(), n);
  for (int i = 0; i < n; ++i) {
    const T scaled = at(i) * static_cast<T>(factor);
    result.set(i, double{scaled});
  }
  return result;
}

}  // namespace

double root_factor(Precision precision, int order) {
  if (order % 2 == 0) return std::ldexp(1.0, -order / 2);
  const auto row = static_cast<std::size_t>(order / 2);
  return precision == Precision::binary32 ? double{std::bit_cast<float>(odd_roots_binary32[row])}
                                          : std::bit_cast<double>(odd_roots_binary64[row]);
}

Array loop_nest(const Array& src, double factor) {
  return src.precision() == Precision::binary32 ? run<float>(src, factor) : run<double>(src, factor);
}

}  // namespace xfm::test
