// A function with its certified bounds and its exact outputs, whatever its family.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "gen/bounds/bounds.h"
#include "gen/math/random.h"
#include "tests/support/array.h"
#include "tests/support/reference.h"

namespace xfm::test {

class Subject {
 public:
  virtual ~Subject() = default;
  virtual Precision precision() const = 0;
  virtual int inputs() const = 0;
  virtual int outputs() const = 0;

  /// With a factor or without, and relative to it.
  virtual gen::Bound bound(int output, gen::Factor factor) const = 0;
  virtual std::vector<Wide> exact(const Array& src) const = 0;
  virtual Wide exact_output(const Array& src, int output) const = 0;
  /// The factor 1/sqrt(N), or 1.
  virtual Array computed(const Array& src, gen::Factor factor) const = 0;
  virtual Wide exact_factor() const = 0;
  /// Inputs 1 and -1 at which the roundings of an output may add up.
  virtual gen::Sequence<double> worst_signs(int output, gen::Random& random) const = 0;
};

/// A kernel of the catalogue.
std::unique_ptr<Subject> subject(const catalogue::Kernel& kernel);

/// The two norms of an input, in units of u.
struct Norms {
  explicit Norms(const Array& src);
  /// The least bound that holds for the input, which must be far from underflow.
  double times(const gen::Bound& bound) const { return std::min(bound.norm * two_, bound.unit * greatest_); }

 private:
  double two_ = 0, greatest_ = 0;
};

/// How much of its bound the error of an output reaches, at the inputs found.
struct Reached {
  double part = 0;
  std::string where;
};

/// Random inputs, and a search from the worst signs of some outputs on with so many steps. Reports a failure
/// if a bound does not hold.
Reached search(const Subject& subject, const std::string& name, int steps, std::uint64_t seed);

}  // namespace xfm::test
