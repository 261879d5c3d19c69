// The Hartley transforms of 5 and of 12 points against plain evaluations of their equations, bit for bit,
// with zeros of either sign equal. A sum of products is a linear combination: evaluated in binary64 and
// rounded once.
#include <ios>

#include "tests/bits/finite_data_test.h"

namespace xfm::test {
namespace {

template <class T>
using Samples = std::vector<T>;

constexpr double h = 0.8660254037844386;  // sqrt(3)/2

template <class T>
Samples<T> hartley5(const Samples<T>& x) {
  constexpr double c1 = 0.30901699437494745, c2 = 0.8090169943749475;
  constexpr double s1 = 0.9510565162951535, s2 = 0.5877852522924731;
  const T p = x[1] + x[4], q = x[3] + x[2], u = x[1] - x[4], v = x[3] - x[2];
  const double p2 = p, q2 = q, u2 = u, v2 = v, x0 = x[0];
  const T a1 = static_cast<T>(c1 * p2 - c2 * q2 + x0), a2 = static_cast<T>(x0 - c2 * p2 + c1 * q2);
  const T b1 = static_cast<T>(s1 * u2 - s2 * v2), b2 = static_cast<T>(s2 * u2 + s1 * v2);
  return {(p + q) + x[0], a1 + b1, a2 + b2, a2 - b2, a1 - b1};
}

/// w - c*a, w + c*a and c*a, each a linear combination.
template <class T>
T less(T w, double c, T a) {
  return static_cast<T>(double{w} - c * double{a});
}
template <class T>
T more(T w, double c, T a) {
  return static_cast<T>(double{w} + c * double{a});
}
template <class T>
T times(double c, T a) {
  return static_cast<T>(c * double{a});
}

template <class T>
Samples<T> hartley12(const Samples<T>& x) {
  Samples<T> s(6), d(6);
  for (std::size_t j = 1; j < 6; ++j) {
    s[j] = x[j] + x[12 - j];
    d[j] = x[j] - x[12 - j];
  }
  const T a0 = x[0] + s[4], a1 = less(x[0], 0.5, s[4]), a2 = times(h, d[4]), a_plus = a1 + a2,
          a_minus = a1 - a2;
  const T b0 = x[6] + s[2], b1 = less(x[6], 0.5, s[2]), b2 = times(h, d[2]), b_plus = b1 + b2,
          b_minus = b1 - b2;
  const T e0 = a0 + b0, e_half = a0 - b0, e1 = a_plus + b_minus, e2 = a_plus - b_minus, e3 = a_minus + b_plus,
          e4 = a_minus - b_plus;
  const T p = s[1] + s[5], q = d[1] + d[5], o0 = s[3] + p, p3 = d[3] - q, r = less(s[3], 0.5, p),
          u = more(d[3], 0.5, q), v = times(h, d[1] - d[5]), w = times(h, s[5] - s[1]);
  const T o1 = r + v, o2 = u - w, o3 = r - v, o4 = u + w;
  return {e0 + o0, o2 + e2, e3 - o3, e_half - p3, e1 + o1, o4 + e4,
          e0 - o0, e2 - o2, e3 + o3, p3 + e_half, e1 - o1, e4 - o4};
}

class PlainHartley : public FiniteDataTest {
 protected:
  template <class T>
  void compare(const Array& src, std::int32_t flag) {
    Samples<T> x;
    for (int j = 0; j < src.count(); ++j) x.push_back(static_cast<T>(src[j]));
    const Samples<T> unscaled = kernel().length == 5 ? hartley5<T>(x) : hartley12<T>(x);
    const T s = static_cast<T>(factor(kernel(), flag));
    const Array dst = separate(src, flag);
    for (int k = 0; k < dst.count(); ++k)
      ASSERT_EQ(static_cast<T>(dst[k]), unscaled[static_cast<std::size_t>(k)] * s)
          << "scalar " << k << " is " << std::hexfloat << dst[k] << ", flag " << flag;
  }
};

TEST_P(PlainHartley, EqualsTheEquations) {
  on_finite_data([&](const Array& src, std::int32_t flag) {
    kernel().precision == Precision::binary32 ? compare<float>(src, flag) : compare<double>(src, flag);
  });
}

/// Kernels that are missing from the catalogue are a failure of their own, below.
std::vector<Kernel> listed_kernels() {
  std::vector<Kernel> kernels;
  for (const int length : {5, 12})
    for (const char* type : {"32f", "64f"})
      if (const Kernel* const kernel = find_kernel("Hartley", length, type)) kernels.push_back(*kernel);
  return kernels;
}

INSTANTIATE_TEST_SUITE_P(All, PlainHartley, testing::ValuesIn(listed_kernels()), ByName());

TEST(PlainHartleyList, IsComplete) { EXPECT_EQ(listed_kernels().size(), 4U); }

}  // namespace
}  // namespace xfm::test
