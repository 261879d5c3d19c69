// Kernels of all three layouts and both precisions against plain evaluations of the equations that fix them,
// bit for bit; zeros of either sign equal, since a sign may be turned behind the factor or absorbed in front
// of it.
#include "tests/bits/data.h"
#include "tests/bits/same_values.h"
#include "tests/real/equations.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

template <class T>
Array evaluate(const Kernel& kernel, const Array& src, T factor) {
  const RealFamily& family = *real_family(kernel);
  const auto held = cells(family.layout, kernel.length);
  Array dst(kernel.precision, kernel.written);
  if (family.forward) {
    Samples<T> x;
    for (int j = 0; j < kernel.length; ++j) x.push_back(static_cast<T>(src[j]));
    const HalfSpectrum<T> spectrum = forward_equations<T>().at(kernel.length)(x, factor);
    for (int e = 0; e < kernel.written; ++e) {
      const auto [bin, part] = held[static_cast<std::size_t>(e)];
      const auto at = static_cast<std::size_t>(bin);
      dst.set(e, part == Part::zero ? 0.0 : double{part == Part::real ? spectrum.re[at] : spectrum.im[at]});
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
  const Samples<T> x = inverse_equations<T>().at(kernel.length)(spectrum, factor, family.layout);
  for (int j = 0; j < kernel.written; ++j) dst.set(j, double{x[static_cast<std::size_t>(j)]});
  return dst;
}

class PlainReal : public KernelTest {};

TEST_P(PlainReal, EqualsTheEquations) {
  constexpr int rounds = 16;
  for (const Data& data : all_data()) {
    if (data.overflows) continue;  // infinity less infinity
    for (int round = 0; round < rounds; ++round) {
      const Array src = draw(data, random, kernel().precision, kernel().read);
      for (const std::int32_t flag : flags) {
        const double s = factor(kernel(), flag);
        const Array expected = kernel().precision == Precision::single
                                   ? evaluate(kernel(), src, static_cast<float>(s))
                                   : evaluate(kernel(), src, s);
        ASSERT_TRUE(same_values(separate(src, flag), expected, Zeros::alike))
            << data.name << " data, round " << round << ", flag " << flag;
      }
    }
  }
}

/// All of them must be in the catalogue: what is not there is a failure of its own.
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
