#include "tests/bounds/subject.h"

#include <cmath>
#include <string_view>

#include "src/wht/recipe/bounds.h"
#include "tests/bits/generated.h"
#include "tests/support/attempt.h"

namespace xfm::test {
namespace {

using catalogue::Kernel;
using gen::Bound;
using gen::Factor;

gen::Precision precision_of(const Kernel& kernel) {
  return kernel.precision == Precision::binary32 ? gen::Precision::binary32 : gen::Precision::binary64;
}

/// What all kernels of the catalogue share.
class OfCatalogue : public Subject {
 public:
  explicit OfCatalogue(const Kernel& kernel) : kernel_(kernel), definition_(definition(kernel)) {}

  Precision precision() const override { return kernel_.precision; }
  int inputs() const override { return kernel_.read; }
  int outputs() const override { return kernel_.written; }
  Array computed(const Array& src, Factor factor) const override {
    Array dst(kernel_.precision, kernel_.written);
    const std::int32_t flag = factor == Factor::one ? XFM_SCALE_NONE : XFM_SCALE_BY_SQRT_N;
    EXPECT_EQ(run(kernel_, src.data(), dst.data(), flag), xfmStsOk) << kernel_.name;
    return dst;
  }
  Wide exact_factor() const override { return gen::wide_sqrt(Wide{1} / kernel_.points); }

 protected:
  Kernel kernel_;
  std::unique_ptr<Definition> definition_;
};

/// By the scalar program. The exact matrix is that of the tests, of which the generator knows nothing.
class Generated : public OfCatalogue {
 public:
  explicit Generated(const Kernel& kernel)
      : OfCatalogue(kernel),
        exact_(matrix(*definition_, kernel)),
        analysis_(*generated(kernel).network, precision_of(kernel), kernel.read, kernel.written),
        bounds_(analysis_.bounds(exact_, Factor::one)),
        bounds_by_factor_(analysis_.bounds(exact_, Factor::any)) {}

  Bound bound(int output, Factor factor) const override {
    return (factor == Factor::one ? bounds_ : bounds_by_factor_)[output];
  }
  std::vector<Wide> exact(const Array& src) const override {
    std::vector<Wide> dst;
    for (int output = 0; output < outputs(); ++output) dst.push_back(exact_output(src, output));
    return dst;
  }
  Wide exact_output(const Array& src, int output) const override {
    Wide sum = 0;
    for (int i = 0; i < inputs(); ++i) sum += exact_[output][i] * Wide{src[i]};
    return sum;
  }
  gen::Sequence<double> worst_signs(int output, gen::Random& random) const override {
    return analysis_.worst_signs(
        output, gen::tabulated(inputs(), [&](int) { return random.below(2) == 0 ? 1.0 : -1.0; }));
  }

 private:
  static gen::Matrix matrix(const Definition& definition, const Kernel& kernel) {
    return gen::tabulated(kernel.written, [&](int out) {
      return gen::tabulated(kernel.read, [&](int in) { return definition.entry(out, in); });
    });
  }

  gen::Matrix exact_;
  gen::ErrorAnalysis analysis_;
  gen::Sequence<Bound> bounds_, bounds_by_factor_;
};

/// By induction: too long for a matrix.
class WalshHadamard : public OfCatalogue {
 public:
  using OfCatalogue::OfCatalogue;

  Bound bound(int /*output*/, Factor factor) const override {
    return wht::bound(kernel_.length, precision_of(kernel_), factor);
  }
  std::vector<Wide> exact(const Array& src) const override {
    std::vector<Wide> values;
    for (int i = 0; i < inputs(); ++i) values.emplace_back(src[i]);
    for (std::size_t distance = 1; distance < values.size(); distance *= 2) {
      for (std::size_t i = 0; i < values.size(); ++i) {
        if ((i & distance) != 0) continue;
        const Wide a = values[i], b = values[i + distance];
        values[i] = a + b;
        values[i + distance] = a - b;
      }
    }
    return values;
  }
  Wide exact_output(const Array& src, int output) const override {
    Wide sum = 0;
    for (int i = 0; i < inputs(); ++i) sum += definition_->entry(output, i) * Wide{src[i]};
    return sum;
  }
  // All sums on the way to the output grow as fast as they can.
  gen::Sequence<double> worst_signs(int output, gen::Random& /*random*/) const override {
    return gen::tabulated(inputs(),
                          [&](int i) { return static_cast<double>(definition_->entry(output, i)); });
  }
};

}  // namespace

std::unique_ptr<Subject> subject(const Kernel& kernel) {
  if (std::string_view(kernel.family) == "WHT") return std::make_unique<WalshHadamard>(kernel);
  return std::make_unique<Generated>(kernel);
}

}  // namespace xfm::test
