#include <algorithm>
#include <cmath>

#include "tests/bounds/subject.h"

namespace xfm::test {
namespace {

using gen::Factor;

double unit_roundoff(Precision precision) { return precision == Precision::binary32 ? 0x1p-24 : 0x1p-53; }

/// In 0 .. 1, with more bits than a number of either precision holds.
double fraction(gen::Random& random) { return static_cast<double>(random.bits() >> 11) * 0x1p-53; }

/// The search for the errors of one function.
class Search {
 public:
  Search(const Subject& subject, const std::string& name, std::uint64_t seed)
      : subject_(subject), name_(name), random_(seed) {}

  /// Every output of a random vector.
  void try_random(Factor factor) {
    const Array src = vector([&](int) { return 2 * fraction(random_) - 1; });
    const Array dst = subject_.computed(src, factor);
    const std::vector<Wide> exact = subject_.exact(src);
    const Norms norms(src);
    const Wide by = factor == Factor::one ? Wide{1} : 1 / subject_.exact_factor();
    for (int output = 0; output < dst.count(); ++output) {
      meet(part(norms, output, Wide{dst[output]} * by, exact[static_cast<std::size_t>(output)], factor),
           output, "random");
    }
  }

  /// One output, from its worst signs on: all magnitudes at first, then some, and what makes the error
  /// greater stays.
  void climb(int output, int steps) {
    const gen::Sequence<double> signs = subject_.worst_signs(output, random_);
    const auto changed = [&](int i) { return signs[i] * (1 + fraction(random_)) / 2; };
    Array best = vector(changed);
    double greatest = 0;
    for (int step = 0; step < steps; ++step) {
      Array src = best;
      const int one_in = step < steps / 4 ? 1 : 2 << random_.below(4);
      for (int i = 0; i < src.count(); ++i) {
        if (random_.below(one_in) == 0) src.set(i, changed(i));
      }
      const double reached = part(Norms(src), output, subject_.computed(src, Factor::one)[output],
                                  subject_.exact_output(src, output), Factor::one);
      meet(reached, output, "worst signs");
      if (reached <= greatest) continue;
      greatest = reached;
      best.copy(src);
    }
  }

  /// The outputs that may err most, by either bound, and one more.
  std::vector<int> outputs() {
    const auto most = [&](auto bound) {
      int output = 0;
      for (int j = 0; j < subject_.outputs(); ++j) {
        if (bound(j) > bound(output)) output = j;
      }
      return output;
    };
    return {most([&](int j) { return subject_.bound(j, Factor::one).norm; }),
            most([&](int j) { return subject_.bound(j, Factor::one).unit; }),
            random_.below(subject_.outputs())};
  }

  const Reached& reached() const { return reached_; }

 private:
  template <class Make>
  Array vector(Make make) {
    Array src(subject_.precision(), subject_.inputs());
    for (int i = 0; i < src.count(); ++i) src.set(i, make(i));
    return src;
  }

  /// What part of the bound the error is; 0 where a layout stores a zero.
  double part(const Norms& norms, int output, Wide got, Wide exact, Factor factor) const {
    const auto error = std::abs(static_cast<double>(got - exact));
    return error == 0 ? 0 : error / norms.times(subject_.bound(output, factor));
  }

  void meet(double part, int output, const char* kind) {
    EXPECT_LE(part, 1) << name_ << ": output " << output << ", " << kind;
    if (part > reached_.part) reached_ = {part, name_ + ", output " + std::to_string(output) + ", " + kind};
  }

  const Subject& subject_;
  const std::string name_;
  gen::Random random_;
  Reached reached_;
};

}  // namespace

Norms::Norms(const Array& src) {
  double squares = 0;
  for (int i = 0; i < src.count(); ++i) {
    squares += src[i] * src[i];
    greatest_ = std::max(greatest_, std::abs(src[i]));
  }
  const double u = unit_roundoff(src.precision());
  two_ = std::sqrt(squares) * u;
  greatest_ *= u;
}

Reached search(const Subject& subject, const std::string& name, int steps, std::uint64_t seed) {
  Search search(subject, name, seed);
  for (const Factor factor : {Factor::one, Factor::one, Factor::any}) search.try_random(factor);
  for (const int output : search.outputs()) search.climb(output, steps);
  return search.reached();
}

}  // namespace xfm::test
