// Values and linear combinations of the plain evaluations. A value has the precision of the element; a linear
// combination is evaluated in binary64 and rounded to the precision of the element once, at its end. In
// binary64 that rounding does nothing, so one text describes the kernels of both precisions.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace xfm::test {

/// The values allowed. The order in which a linear combination adds its terms is left open, since in binary32
/// it hardly ever shows: any value that some order gives is allowed. Everything else has a single value.
template <class T>
class OneOf {
 public:
  OneOf() : OneOf(T(0)) {}
  OneOf(T value) : values_{value} {}  // NOLINT(google-explicit-constructor): a value is one of one

  std::size_t size() const { return values_.size(); }
  bool contains(T value) const { return std::ranges::find(values_, value) != values_.end(); }
  /// The value, if the order makes no difference.
  T only() const {
    if (values_.size() != 1) throw std::logic_error("more than one value");
    return values_.front();
  }

  /// The function of every pair of one of these and one of those.
  template <class Function>
  friend auto combine(const OneOf& these, const OneOf& those, Function function) {
    std::vector<decltype(function(T(), T()))> results;
    for (const T a : these.values_)
      for (const T b : those.values_) results.push_back(function(a, b));
    return OneOf<decltype(function(T(), T()))>(std::move(results));
  }
  friend OneOf operator+(const OneOf& a, const OneOf& b) {
    return combine(a, b, [](T x, T y) { return x + y; });
  }
  friend OneOf operator-(const OneOf& a, const OneOf& b) {
    return combine(a, b, [](T x, T y) { return x - y; });
  }
  friend OneOf operator*(const OneOf& a, const OneOf& b) {
    return combine(a, b, [](T x, T y) { return x * y; });
  }

  explicit OneOf(std::vector<T> values) : values_(std::move(values)) {
    std::ranges::sort(values_);
    values_.erase(std::unique(values_.begin(), values_.end()), values_.end());
  }

 private:
  std::vector<T> values_;
};

/// A sum of terms in any order.
inline OneOf<double> sum_in_any_order(std::vector<double> terms) {
  std::vector<double> sums;
  std::ranges::sort(terms);
  do {
    double sum = terms[0];
    for (std::size_t i = 1; i < terms.size(); ++i) sum = sum + terms[i];
    sums.push_back(sum);
  } while (std::ranges::next_permutation(terms).found);
  return OneOf<double>(std::move(sums));
}

/// The rounding that ends a linear combination.
template <class T>
T narrow(double combination) {
  return static_cast<T>(combination);
}
template <class T>
OneOf<T> narrow(const OneOf<double>& combination) {
  return combine(combination, OneOf<double>(),
                 [](double x, double /*nothing*/) { return static_cast<T>(x); });
}

/// An output is negated after its factor, as 0 minus the product.
template <class T>
OneOf<T> negated(const OneOf<T>& scaled) {
  return OneOf<T>(T(0)) - scaled;
}

/// Bins 0 to N/2. The imaginary parts of bin 0 and, for even N, of bin N/2 are not read.
template <class Value>
struct HalfSpectrum {
  explicit HalfSpectrum(std::size_t length) : re(length / 2 + 1), im(length / 2 + 1) {}
  std::vector<Value> re, im;
};

template <class T>
using Samples = std::vector<T>;

}  // namespace xfm::test
