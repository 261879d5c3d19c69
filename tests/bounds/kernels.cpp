// Every function's certified bounds: as recorded, and kept by random inputs and by those that a search finds.
// XFM_BOUNDS_UPDATE=1 renews the record first.
#include <gtest/gtest-spi.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>

#include "src/dct4/recipe/bounds.h"
#include "tests/bounds/subject.h"
#include "tests/golden/table.h"

namespace xfm::test {
namespace {

using gen::Bound;
using gen::Factor;

const Row headings = {"kernel", "norm", "unit", "underflow", "norm_by_factor", "unit_by_factor", "reached"};

/// Four significant digits, never less than the value.
std::string rounded_up(double value) {
  if (value < 0x1p-20) return "0";  // nothing but margin
  const double step = std::pow(10, std::floor(std::log10(value)) - 3);
  char text[32];
  std::snprintf(text, sizeof text, "%.4g", std::ceil(value / step) * step);
  return text;
}

std::string two_digits(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2g", value);
  return text;
}

Bound greatest(const Subject& subject, Factor factor) {
  return gen::greatest(
      gen::tabulated(subject.outputs(), [&](int output) { return subject.bound(output, factor); }));
}

/// So many steps, but fewer for long vectors.
int steps_of(const catalogue::Kernel& kernel, int steps) {
  return std::max(4, steps * 64 / std::max(64, kernel.points));
}

std::uint64_t hash(const std::string& text) {
  std::uint64_t value = 0xcbf29ce484222325;
  for (const char c : text) value = (value ^ static_cast<unsigned char>(c)) * 0x100000001b3;
  return value;
}

/// The least and the greatest part of its bound that a function's error reaches.
class Summary {
 public:
  void meet(const Reached& reached) {
    ++count_;
    if (reached.part > greatest_.part) greatest_ = reached;
    if (least_.where.empty() || reached.part < least_.part) least_ = reached;
  }
  void print(const char* what) const {
    std::printf("%d %s certified; bound / measured between %.3g (%s) and %.3g (%s)\n", count_, what,
                1 / greatest_.part, greatest_.where.c_str(), 1 / least_.part, least_.where.c_str());
  }

 private:
  int count_ = 0;
  Reached greatest_, least_;
};

Row row_of(const catalogue::Kernel& kernel, const Subject& subject, const Reached& reached) {
  const Bound plain = greatest(subject, Factor::one), scaled = greatest(subject, Factor::any);
  return {kernel.name,
          rounded_up(plain.norm),
          rounded_up(plain.unit),
          rounded_up(plain.underflow),
          rounded_up(scaled.norm),
          rounded_up(scaled.unit),
          two_digits(reached.part)};
}

/// The DCT-IV of every length; its errors are the matter of other tests.
Table rows_of_dct4() {
  Table rows;
  for (const gen::Precision precision : {gen::Precision::binary32, gen::Precision::binary64}) {
    const bool single = precision == gen::Precision::binary32;
    for (int k = 1; k <= (single ? 26 : 25); ++k) {
      const dct4::TransformBound bound = dct4::bound(1 << k, precision);
      rows.push_back({"xfmDCT4_" + std::to_string(1 << k) + (single ? "_32f" : "_64f"),
                      rounded_up(bound.output.norm), rounded_up(bound.output.unit),
                      rounded_up(bound.output.underflow), "-", "-", "-"});
    }
  }
  return rows;
}

TEST(Bounds, AllKernelsAreCertified) {
  Table found;
  Summary summary;
  for (const catalogue::Kernel& kernel : catalogue::kernels()) {
    const auto tested = subject(kernel);
    const Reached reached = search(*tested, kernel.name, steps_of(kernel, 60), hash(kernel.name));
    summary.meet(reached);
    found.push_back(row_of(kernel, *tested, reached));
  }
  summary.print("kernels");
  std::ranges::move(rows_of_dct4(), std::back_inserter(found));
  if (std::getenv("XFM_BOUNDS_UPDATE") != nullptr) write_table(XFM_BOUNDS_TABLE, headings, found);
  const std::string changed = difference(read_table(XFM_BOUNDS_TABLE), found);
  EXPECT_TRUE(changed.empty())
      << "Not as recorded; if this is intended, build the target \"bounds\" and then "
         "\"accuracy\":\n"
      << changed;
}

TEST(Bounds, DISABLED_LongSearch) {
  Summary summary;
  for (const catalogue::Kernel& kernel : catalogue::kernels())
    summary.meet(search(*subject(kernel), kernel.name, steps_of(kernel, 5000), hash(kernel.name) + 1));
  summary.print("kernels");
}

/// A kernel that is off by a little more than its bound allows is found.
class Displaced : public Subject {
 public:
  explicit Displaced(std::unique_ptr<Subject> of) : of_(std::move(of)) {}
  Precision precision() const override { return of_->precision(); }
  int inputs() const override { return of_->inputs(); }
  int outputs() const override { return of_->outputs(); }
  Bound bound(int output, Factor factor) const override { return of_->bound(output, factor); }
  std::vector<Wide> exact(const Array& src) const override { return of_->exact(src); }
  Wide exact_output(const Array& src, int output) const override { return of_->exact_output(src, output); }
  Wide exact_factor() const override { return of_->exact_factor(); }
  gen::Sequence<double> worst_signs(int output, gen::Random& random) const override {
    return of_->worst_signs(output, random);
  }
  Array computed(const Array& src, Factor factor) const override {
    Array dst = of_->computed(src, factor);
    dst.set(2, dst[2] + 2.5 * Norms(src).times(bound(2, Factor::one)));
    return dst;
  }

 private:
  std::unique_ptr<Subject> of_;
};

TEST(Bounds, AnErrorBeyondThemIsFound) {
  for (const catalogue::Kernel& kernel : catalogue::kernels()) {
    if (kernel.length != 8) continue;
    Reached reached;
    testing::TestPartResultArray failures;
    {
      const testing::ScopedFakeTestPartResultReporter reporter(
          testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
      reached = search(Displaced(subject(kernel)), kernel.name, 4, 1);
    }
    EXPECT_GT(reached.part, 1) << kernel.name;
    EXPECT_GT(failures.size(), 0) << kernel.name;
  }
}

}  // namespace
}  // namespace xfm::test
