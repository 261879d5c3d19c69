// The accuracy of every kernel: within the bound, or no worse than its recorded exception, and published as
// measured. XFM_ACCURACY_UPDATE=1 renews the document first.
#include <gtest/gtest.h>

#include <cstdlib>
#include <string_view>

#include "tests/accuracy/document.h"
#include "tests/support/accuracy_exceptions.h"

namespace xfm::test {
namespace {

using catalogue::Kernel;

const Record& record() {
  static const Record read(XFM_BOUNDS_TABLE);
  return read;
}

std::vector<Measured> with_bounds() {
  std::vector<Measured> all = measure_all();
  for (auto& [kernel, errors, certified] : all) certified = record().certified(kernel.name, kernel.precision);
  return all;
}

const std::vector<Measured>& measured() {
  static const std::vector<Measured> all = with_bounds();
  return all;
}

bool is_of(const AccuracyException& exception, const Kernel& kernel) {
  return std::string_view(kernel.family) == exception.family &&
         std::string_view(kernel.type) == exception.type && kernel.length == exception.length;
}

TEST(Accuracy, KernelsAreWithinTheirBounds) {
  for (const auto& [kernel, errors, certified] : measured())
    EXPECT_LE(errors.worst, matrix_bound(kernel)) << kernel.name << ": output scalar " << errors.worst_out
                                                  << " of a unit at input scalar " << errors.worst_in;
}

// A column of the matrix is the output for an input of |x|_2 = 1.
TEST(Accuracy, CertifiedBoundsHold) {
  for (const auto& [kernel, errors, certified] : measured())
    EXPECT_LE(errors.worst, certified.norm) << kernel.name;
}

// An exception that is no longer needed must go, and one that is needed states the figure that is measured.
TEST(Accuracy, ExceptionsAreNotStale) {
  for (const AccuracyException& exception : accuracy_exceptions) {
    int kernels = 0;
    for (const auto& [kernel, errors, certified] : measured()) {
      if (!is_of(exception, kernel)) continue;
      ++kernels;
      EXPECT_GT(errors.worst, common_bound(kernel)) << kernel.name << " needs no exception";
      EXPECT_EQ(rounded_up(errors.worst), rounded_up(exception.worst)) << kernel.name;
    }
    EXPECT_EQ(kernels, 1) << exception.family << ", " << exception.length << ", " << exception.type;
  }
}

TEST(Accuracy, DocumentIsUpToDate) {
  Document document(XFM_ACCURACY_DOCUMENT);
  const std::string now = figures(measured()) + figures(record());
  if (std::getenv("XFM_ACCURACY_UPDATE") != nullptr) document.replace_figures(now);
  const std::string changed = first_difference(document.figures(), now);
  EXPECT_TRUE(changed.empty())
      << "The figures differ from the published ones; if this is intended, build the target \"accuracy\":\n"
      << changed;
}

}  // namespace
}  // namespace xfm::test
