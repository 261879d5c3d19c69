// The kernel against the definition of its transform in binary128: its matrix, column by column, and random
// vectors.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <map>

#include "tests/support/kernel_test.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

struct Errors {
  double worst = 0, squares = 0;
  long entries = 0;
  int worst_out = 0, worst_in = 0;

  void add(Wide got, Wide expected, int out, int in) {
    auto error = static_cast<double>(got - expected);
    if (std::isnan(error)) error = std::numeric_limits<double>::infinity();
    squares += error * error;
    ++entries;
    if (std::abs(error) <= worst) return;
    worst = std::abs(error);
    worst_out = out;
    worst_in = in;
  }
  void add(const Errors& others) {
    worst = std::max(worst, others.worst);
    squares += others.squares;
    entries += others.entries;
  }
  double rms() const { return std::sqrt(squares / static_cast<double>(entries)); }
};

class Matrix : public KernelTest {
 public:
  static void SetUpTestSuite() {
    std::printf("%-32s %12s %12s\n", "entries of the matrix", "worst error", "rms error");
  }
  static void TearDownTestSuite() {
    for (const auto& [type, errors] : all)
      std::printf("%-32s %12.3g %12.3g\n", ("all _" + type).c_str(), errors.worst, errors.rms());
  }

 protected:
  /// The matrix of the kernel, from all unit vectors.
  static Errors errors_of_matrix();
  static inline std::map<std::string, Errors> all;
};

Errors Matrix::errors_of_matrix() {
  const auto reference = definition(kernel());
  Errors errors;
  for (int in = 0; in < kernel().read; ++in) {
    Array unit(kernel().precision, kernel().read);
    unit.fill(0.0);
    unit.set(in, 1.0);
    const Array dst = separate(unit, XFM_SCALE_NONE);
    for (int out = 0; out < kernel().written; ++out)
      errors.add(Wide{dst[out]}, reference->entry(out, in), out, in);
  }
  return errors;
}

TEST_P(Matrix, MeetsTheDefinition) {
  const Errors errors = errors_of_matrix();
  std::printf("%-32s %12.3g %12.3g\n", kernel().name, errors.worst, errors.rms());
  all[kernel().type].add(errors);
  EXPECT_LE(errors.worst, matrix_bound(kernel()))
      << "output scalar " << errors.worst_out << " of a unit at input scalar " << errors.worst_in;
}

// Sums of columns round too. Of data of like magnitudes every output is right within a few roundings of the
// sum of all magnitudes, and mostly far closer.
TEST_P(Matrix, RandomVectors) {
  const auto reference = definition(kernel());
  const double rounding = kernel().precision == Precision::binary32 ? 0x1p-24 : 0x1p-53;
  const double bound = std::min(relative_bound(kernel().precision), 4 * rounding);
  const int rounds = kernel().points > 1000 ? 1 : 4;  // one is vast, and takes a while in binary128
  for (int round = 0; round < rounds; ++round) {
    const Array src = random_input();
    const double magnitudes = magnitude(*reference, src);
    const std::vector<Wide> expected = transform(*reference, src, kernel().written);
    const Array dst = separate(src, XFM_SCALE_NONE);
    for (int out = 0; out < dst.count(); ++out) {
      const auto error = static_cast<double>(Wide{dst[out]} - expected[static_cast<std::size_t>(out)]);
      ASSERT_LE(std::abs(error), bound * magnitudes) << "round " << round << ", scalar " << out;
    }
  }
}

XFM_FOR_ALL_KERNELS(Matrix);

}  // namespace
}  // namespace xfm::test
