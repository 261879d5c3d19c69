// The DCT-IV keeps its certified bounds: in every output, and in the 2-norm, which its induction is about.
#include "src/dct4/recipe/bounds.h"

#include <cmath>
#include <cstdio>

#include "tests/bounds/subject.h"
#include "tests/dct4/engine.h"
#include "tests/dct4/reference.h"

namespace xfm::test {
namespace {

template <class T>
dct4::TransformBound bound_of(int length) {
  return dct4::bound(length,
                     sizeof(T) == sizeof(float) ? gen::Precision::binary32 : gen::Precision::binary64);
}

constexpr double pi = 3.14159265358979324;

/// Uniform inputs, the inputs that make one output the greatest, and both together.
template <class T>
std::vector<std::vector<T>> inputs(int length) {
  const auto n = static_cast<std::size_t>(length);
  std::vector<T> random = noise<T>(n), greatest(n), both(n);
  const double k = length / 3 + 0.5;
  for (std::size_t j = 0; j < n; ++j) {
    const double cosine = std::cos(pi / length * (static_cast<double>(j) + 0.5) * k);
    greatest[j] = std::copysign(T(1), static_cast<T>(cosine));
    both[j] = std::copysign(random[j], greatest[j]);
  }
  return {random, greatest, both};
}

/// The parts of the two bounds that the errors of a vector reach.
struct Parts {
  double relative = 0, output = 0;
};

template <class T>
Parts parts(const std::vector<T>& src) {
  const auto length = static_cast<int>(src.size());
  const double u = std::numeric_limits<T>::epsilon() / 2;
  const dct4::TransformBound bound = bound_of<T>(length);
  const Owned<T> engine(length);
  std::vector<T> dst(src.size());
  EXPECT_EQ(engine.run(src.data(), dst.data()), xfmStsOk);
  const std::vector<long double> exact = fast_dct4({src.begin(), src.end()});
  long double errors = 0, squares = 0, of_src = 0, worst = 0, greatest = 0;
  for (std::size_t i = 0; i < src.size(); ++i) {
    const long double error = std::abs(dst[i] - exact[i]);
    errors += error * error;
    squares += exact[i] * exact[i];
    worst = std::max(worst, error);
    of_src += static_cast<long double>(src[i]) * src[i];
    greatest = std::max(greatest, static_cast<long double>(std::abs(src[i])));
  }
  const long double allowed = std::min(bound.output.norm * std::sqrt(of_src), bound.output.unit * greatest);
  return {static_cast<double>(std::sqrt(errors / squares) / (bound.relative * u)),
          static_cast<double>(worst / (allowed * u))};
}

template <class T>
void expect_within_bounds(int first, int last) {
  Parts most;
  for (int k = first; k <= last; ++k) {
    for (const std::vector<T>& src : inputs<T>(1 << k)) {
      const Parts one = parts(src);
      EXPECT_LE(one.relative, 1) << "N 2^" << k;
      EXPECT_LE(one.output, 1) << "N 2^" << k;
      EXPECT_GT(one.relative, 0.005) << "N 2^" << k << ": a bound that says little";
      most = {std::max(most.relative, one.relative), std::max(most.output, one.output)};
    }
  }
  std::printf(
      "DCT-IV 2^%d .. 2^%d, %zu bytes: bound / measured at least %.3g in the 2-norm, %.3g of an output\n",
      first, last, sizeof(T), 1 / most.relative, 1 / most.output);
}

TEST(BoundsOfDct4, Hold) {
  expect_within_bounds<float>(1, 14);
  expect_within_bounds<double>(1, 14);
}

TEST(BoundsOfDct4, DISABLED_HoldForLongLengths) {
  expect_within_bounds<float>(15, 22);
  expect_within_bounds<double>(15, 22);
}

}  // namespace
}  // namespace xfm::test
