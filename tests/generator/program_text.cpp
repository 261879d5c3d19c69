// The text of a kernel's scalar program, evaluated line by line, gives the outputs of its network to the bit.
#include <bit>
#include <map>
#include <sstream>

#include "gen/network/program.h"
#include "tests/bits/generated.h"
#include "tests/generator/small_networks.h"
#include "tests/support/kernel_test.h"

namespace xfm::gen {
namespace {

/// Sums and products of two binary32 numbers are the same whether they are rounded to binary32 at once or to
/// binary64 first.
class Evaluation {
 public:
  Evaluation(const Sequence<double>& src, double factor, Precision precision) : precision_(precision) {
    values_["0"] = 0;
    values_["s"] = factor;
    for (int n = 0; n < src.size(); ++n) values_["x" + std::to_string(n)] = src[n];
  }

  void run(const std::string& text) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) step(line);
  }

  double output(int k) const {
    const auto found = values_.find("y" + std::to_string(k));
    return found == values_.end() ? 0 : found->second;  // zero by structure
  }

 private:
  // "t3 = t1 - t2", or "t4 = 0x1.8p+0 * t3  (binary64)" in a binary32 kernel.
  void step(const std::string& line) {
    std::istringstream words(line);
    std::string name, equals, first, second, third;
    words >> name >> equals >> first >> second >> third;
    const double result = first == "round" ? value(second)
                          : second == "+"  ? value(first) + value(third)
                          : second == "-"  ? value(first) - value(third)
                          : second == "*"  ? value(first) * value(third)
                                           : value(first);
    const bool narrow = precision_ == Precision::binary32 && !line.ends_with("(binary64)");
    values_[name] = narrow ? static_cast<float>(result) : result;
  }

  double value(const std::string& word) const {
    if (word.starts_with("0x")) return std::strtod(word.c_str(), nullptr);
    return word.starts_with('-') ? -values_.at(word.substr(1)) : values_.at(word);
  }

  Precision precision_;
  std::map<std::string, double> values_;
};

template <class T>
Sequence<double> interpreted(const Kernel& kernel, const Sequence<double>& src, T factor) {
  Sequence<T> in, out(kernel.written);
  for (const double v : src) in.push_back(static_cast<T>(v));
  evaluate(*kernel.network, in.data(), out.data(), factor);
  return {out.begin(), out.end()};
}

class ProgramOf : public test::KernelTest {};

TEST_P(ProgramOf, AKernelComputesItsOutputs) {
  const Kernel& made = test::generated(kernel());
  Programs programs(Equality::bits);
  const std::string text = programs.text(programs.read(*made.network, made.type.precision));
  const bool single = made.type.precision == Precision::binary32;
  const test::Array input = random_input();
  Sequence<double> src;
  for (int n = 0; n < made.read; ++n) src.push_back(n % 5 == 4 ? -0.0 : input[n]);
  const double factor = static_cast<float>(1) / 3;
  Evaluation evaluation(src, factor, made.type.precision);
  evaluation.run(text);
  const Sequence<double> expected =
      single ? interpreted(made, src, static_cast<float>(factor)) : interpreted(made, src, factor);
  for (int k = 0; k < made.written; ++k) {
    ASSERT_EQ(std::bit_cast<std::uint64_t>(evaluation.output(k)), std::bit_cast<std::uint64_t>(expected[k]))
        << "output " << k << ": " << evaluation.output(k) << " instead of " << expected[k];
  }
}

INSTANTIATE_TEST_SUITE_P(All, ProgramOf, testing::ValuesIn(test::generated_kernels()), test::ByName());

}  // namespace
}  // namespace xfm::gen
