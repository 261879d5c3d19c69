// Kernels of all three layouts and both precisions against plain evaluations of the equations that fix them,
// bit for bit except for the order of terms inside a linear combination. Zeros of either sign are equal,
// since an output may be negated after its factor or before.
#include <ios>

#include "tests/bits/finite_data_test.h"
#include "tests/real/equations.h"

namespace xfm::test {
namespace {

/// Scalar by scalar of dst.
template <class T>
std::vector<OneOf<T>> evaluate(const Kernel& kernel, const Array& src, T factor) {
  const RealFamily& family = *real_family(kernel);
  const auto held = cells(family.layout, kernel.length);
  if (family.forward) {
    Samples<T> x;
    for (int j = 0; j < kernel.length; ++j) x.push_back(static_cast<T>(src[j]));
    const HalfSpectrum<OneOf<T>> spectrum = forward_equations<T>().at(kernel.length)(x, factor);
    std::vector<OneOf<T>> dst;
    for (const auto& [bin, part] : held) {
      const auto at = static_cast<std::size_t>(bin);
      dst.push_back(part == Part::zero ? OneOf<T>() : part == Part::real ? spectrum.re[at] : spectrum.im[at]);
    }
    return dst;
  }
  HalfSpectrum<T> spectrum(static_cast<std::size_t>(kernel.length));
  for (int e = 0; e < kernel.read; ++e) {
    const auto [bin, part] = held[static_cast<std::size_t>(e)];
    if (part != Part::zero)
      (part == Part::real ? spectrum.re : spectrum.im)[static_cast<std::size_t>(bin)] =
          static_cast<T>(src[e]);
  }
  return inverse_equations<T>().at(kernel.length)(spectrum, factor, family.layout);
}

class PlainReal : public FiniteDataTest {
 protected:
  template <class T>
  void compare(const Array& src, std::int32_t flag) {
    const auto expected = evaluate(kernel(), src, static_cast<T>(factor(kernel(), flag)));
    const Array dst = separate(src, flag);
    ASSERT_EQ(dst.count(), static_cast<int>(expected.size()));
    for (int i = 0; i < dst.count(); ++i)
      ASSERT_TRUE(expected[static_cast<std::size_t>(i)].contains(static_cast<T>(dst[i])))
          << "scalar " << i << " is " << std::hexfloat << dst[i] << ", flag " << flag;
  }
};

TEST_P(PlainReal, EqualsTheEquations) {
  on_finite_data([&](const Array& src, std::int32_t flag) {
    kernel().precision == Precision::binary32 ? compare<float>(src, flag) : compare<double>(src, flag);
  });
}

// How much the order leaves open: almost nothing in binary32, little in binary64.
TEST(PlainRealOrders, SeldomShow) {
  Random random("orders");
  int open_single = 0, open_double = 0;
  for (int round = 0; round < 1000; ++round) {
    const OneOf<double> sum = sum_in_any_order({random.even(), random.even(), random.even(), random.even()});
    open_single += narrow<float>(sum).size() > 1 ? 1 : 0;
    open_double += sum.size() > 4 ? 1 : 0;
  }
  EXPECT_LE(open_single, 2);
  EXPECT_LE(open_double, 50);
}

/// Kernels that are missing from the catalogue are a failure of their own, below.
std::vector<Kernel> listed_kernels() {
  std::vector<Kernel> kernels;
  for (const RealFamily& family : real_families)
    for (const int length :
         family.forward ? std::vector{2, 3, 4, 5, 7, 8, 13, 15} : std::vector{2, 3, 4, 5, 7})
      for (const char* type : {"32f", "64f"})
        if (const Kernel* const kernel = find_kernel(family.name, length, type)) kernels.push_back(*kernel);
  return kernels;
}

INSTANTIATE_TEST_SUITE_P(All, PlainReal, testing::ValuesIn(listed_kernels()), ByName());

TEST(PlainRealList, IsComplete) { EXPECT_EQ(listed_kernels().size(), 3U * 2 * (8 + 5)); }

}  // namespace
}  // namespace xfm::test
