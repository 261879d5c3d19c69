// The measurement must be able to find an error, and the document to show it.
#include <cmath>
#include <cstring>
#include <limits>

#include "tests/accuracy/document.h"

namespace xfm::test {
namespace {

using catalogue::Kernel;

const Kernel& kernel_named(const std::string& name) {
  for (const Kernel& kernel : catalogue::kernels())
    if (kernel.name == name) return kernel;
  throw std::logic_error("no kernel " + name);
}

TEST(RoundedUp, ThreeDigitsAndNeverLess) {
  EXPECT_EQ(rounded_up(0), "0");
  EXPECT_EQ(rounded_up(2.5e-7), "2.50e-07");
  EXPECT_EQ(rounded_up(2.501e-7), "2.51e-07");
  EXPECT_EQ(rounded_up(2.509e-7), "2.51e-07");
  EXPECT_EQ(rounded_up(9.991e-16), "1.00e-15");
  EXPECT_EQ(rounded_up(9.81e-16), "9.81e-16");
  EXPECT_EQ(rounded_up(std::numeric_limits<double>::infinity()), "inf");
}

/// A definition that is off at one entry by a given amount.
class Displaced : public Definition {
 public:
  Displaced(const Kernel& kernel, double by) : exact_(definition(kernel)), by_(by) {}
  Wide entry(int out, int in) const override {
    return exact_->entry(out, in) + (out == 3 && in == 5 ? Wide{by_} : Wide{0});
  }

 private:
  std::unique_ptr<Definition> exact_;
  double by_;
};

// Length 4 is exact, so the displacement is the only error.
TEST(Errors, OneEntryShows) {
  for (const char* type : {"32fc", "64fc"}) {
    const Kernel& kernel = kernel_named(std::string("xfmDFTFwd_CToC_4_") + type);
    const Errors exact = errors_of_matrix(kernel, Displaced(kernel, 0));
    EXPECT_EQ(exact.worst, 0);
    EXPECT_EQ(exact.rms, 0);
    const Errors errors = errors_of_matrix(kernel, Displaced(kernel, -0x1p-40));
    EXPECT_EQ(errors.worst, 0x1p-40);
    EXPECT_EQ(errors.worst_out, 3);
    EXPECT_EQ(errors.worst_in, 5);
    EXPECT_DOUBLE_EQ(errors.rms, 0x1p-40 / 8);  // 64 entries
  }
}

TEST(Errors, OfTheOtherDirectionAreLarge) {
  const Errors errors = errors_of_matrix(kernel_named("xfmDFTFwd_CToC_4_64fc"),
                                         *definition(kernel_named("xfmDFTInv_CToC_4_64fc")));
  EXPECT_EQ(errors.worst, 2);
}

TEST(Errors, NanIsInfinitelyWrong) {
  Kernel kernel = kernel_named("xfmDFTFwd_CToC_4_64fc");
  kernel.call = [](const void*, void* dst, std::int32_t) -> xfmStatus {
    std::memset(dst, 0xFF, 64);
    return xfmStsOk;
  };
  EXPECT_TRUE(std::isinf(errors_of_matrix(kernel, *definition(kernel)).worst));
}

// A length that only one precision has, and an entry beyond the bound.
TEST(Figures, TableOfAFamily) {
  const Kernel& narrow = kernel_named("xfmDFTFwd_CToC_8_32fc");
  const Kernel& wide = kernel_named("xfmDFTFwd_CToC_9_64fc");
  const std::string text =
      figures({{narrow, {.worst = 3.001e-7, .rms = 1e-8}, {.norm = 4e-7, .unit = 5.005e-6}},
               {wide, {.worst = 2e-15}}});
  EXPECT_NE(text.find("| `xfmDFTFwd_CToC_8_32fc` | " + std::string(narrow.tree) + " | 3.01e-07 |\n\n"),
            std::string::npos);
  EXPECT_NE(text.find("\n| 8 | **3.01e-07** | 1.00e-08 | 4.00e-07 | 5.01e-06 | | | | |\n"
                      "| 9 | | | | | 2.00e-15 | 0 | 0 | 0 |\n"),
            std::string::npos)
      << text;
  EXPECT_NE(figures({{wide, {.worst = 1e-16}}}).find("No kernel."), std::string::npos);
}

TEST(Figures, FamiliesOfEqualFiguresShareATable) {
  const Kernel& one = kernel_named("xfmDFTFwd_CToC_8_64fc");
  const Kernel& other = kernel_named("xfmDFTInv_CToC_8_64fc");
  const std::string equal = figures({{one, {.worst = 1e-16}}, {other, {.worst = 1e-16}}});
  EXPECT_NE(equal.find("\n## DFTFwd_CToC, DFTInv_CToC\n"), std::string::npos) << equal;
  const std::string apart = figures({{one, {.worst = 1e-16}}, {other, {.worst = 2e-16}}});
  EXPECT_NE(apart.find("\n## DFTFwd_CToC\n"), std::string::npos) << apart;
  EXPECT_NE(apart.find("\n## DFTInv_CToC\n"), std::string::npos) << apart;
}

TEST(Figures, FirstDifference) {
  EXPECT_EQ(first_difference("a\nb\n", "a\nb\n"), "");
  EXPECT_EQ(first_difference("a\nb\n", "a\nc\n"), "published: b\nmeasured:  c\n");
  EXPECT_EQ(first_difference("a\n", "a\nc\n"), "published: (end)\nmeasured:  c\n");
  EXPECT_NE(first_difference("a", "a\n"), "");
}

}  // namespace
}  // namespace xfm::test
