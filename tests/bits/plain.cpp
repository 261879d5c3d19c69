// Kernels against plain evaluations of the equations that fix them to the bit. Zeros of either sign are
// equal, since trivial products may be computed or not.
#include <set>

#include "tests/bits/data.h"
#include "tests/bits/equations.h"
#include "tests/bits/same_values.h"
#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

const std::string forward = "DFTFwd_CToC", inverse = "DFTInv_CToC";

/// The lengths that must have equations here, whatever the tables of equations.h hold.
const std::set<int> lengths_32fc = {2,  3,  4,  5,  6,  8,  9,  10, 12, 15, 16, 18,
                                    20, 24, 25, 27, 30, 32, 40, 45, 48, 50, 60, 64};
const std::set<int> lengths_64fc = {2, 3, 4, 5, 7, 8, 10, 12};

bool listed(const Kernel& kernel) {
  if (kernel.family != forward && kernel.family != inverse) return false;
  return (kernel.precision == Precision::binary32 ? lengths_32fc : lengths_64fc).contains(kernel.length);
}

std::vector<Kernel> listed_kernels() {
  std::vector<Kernel> kernels;
  for (const Kernel& kernel : catalogue::kernels()) {
    if (listed(kernel)) kernels.push_back(kernel);
  }
  return kernels;
}

class Plain : public KernelTest {
 protected:
  /// The number of evaluations that the kernel was compared with.
  template <class T>
  int compare(const std::multimap<int, Transform<T>>& equations);

 private:
  template <class T>
  Array evaluate(const Transform<T>& forward_transform, const Array& src, T factor) const;
};

// An inverse kernel is the forward one with real and imaginary parts exchanged before and after.
template <class T>
Array Plain::evaluate(const Transform<T>& forward_transform, const Array& src, T factor) const {
  const bool backward = kernel().family == inverse;
  Points<T> x;
  for (int n = 0; n < kernel().length; ++n) {
    const Number<T> z{static_cast<T>(src[2 * n]), static_cast<T>(src[2 * n + 1])};
    x.push_back(backward ? exchanged(z) : z);
  }
  Array dst = output();
  int at = 0;
  for (const Number<T>& z : forward_transform(x)) {
    const Number<T> scaled = factor * (backward ? exchanged(z) : z);
    dst.set(at++, double{scaled.re});
    dst.set(at++, double{scaled.im});
  }
  return dst;
}

template <class T>
int Plain::compare(const std::multimap<int, Transform<T>>& equations) {
  constexpr int rounds = 8;
  int compared = 0;
  const auto [first, last] = equations.equal_range(kernel().length);
  for (auto equation = first; equation != last; ++equation, ++compared) {
    for (const Data& data : all_data()) {
      if (data.overflows) continue;  // infinity times a trivial factor of zero
      for (int round = 0; round < rounds; ++round) {
        const Array src = draw(data, random, kernel().precision, kernel().read);
        for (const std::int32_t flag : flags) {
          const Array expected = evaluate(equation->second, src, static_cast<T>(factor(kernel(), flag)));
          EXPECT_TRUE(same_values(separate(src, flag), expected, Zeros::alike))
              << data.name << " data, round " << round << ", flag " << flag;
          if (HasFailure()) return compared;
        }
      }
    }
  }
  return compared;
}

TEST_P(Plain, EqualsTheEquations) {
  const int compared =
      kernel().precision == Precision::binary32 ? compare(equations_32fc()) : compare(equations_64fc());
  EXPECT_GE(compared, 1) << "no equations for this length";
}

INSTANTIATE_TEST_SUITE_P(All, Plain, testing::ValuesIn(listed_kernels()), ByName());

TEST(PlainList, IsInTheCatalogue) {
  for (const std::string& family : {forward, inverse}) {
    for (const int length : lengths_32fc) EXPECT_NE(find_kernel(family, length, "32fc"), nullptr) << length;
    for (const int length : lengths_64fc) EXPECT_NE(find_kernel(family, length, "64fc"), nullptr) << length;
  }
}

}  // namespace
}  // namespace xfm::test
