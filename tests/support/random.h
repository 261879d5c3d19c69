// Reproducible test data: everything follows from one seed and the name of what is tested.
#pragma once

#include <cstdint>
#include <random>
#include <string>

#include "tests/support/array.h"

namespace xfm::test {

enum class Kind {
  ordinary,   ///< uniform in -1..1
  wide,       ///< magnitudes over many powers of two
  huge,       ///< near overflow, yet no sum of a transform overflows
  subnormal,  ///< below the least normal number
  signs,      ///< 0, -0, 1 and -1
};
constexpr Kind kinds[] = {Kind::ordinary, Kind::wide, Kind::huge, Kind::subnormal, Kind::signs};
const char* to_string(Kind kind);

/// The environment variable XFM_SEED, or a fixed number. A failing test prints it.
std::uint64_t seed();

class Random {
 public:
  /// The stream of this name under the seed.
  explicit Random(const std::string& name);

  /// Uniform in -1..1.
  double even();
  double next(Kind kind, Precision precision);
  void fill(Array& array, Kind kind);
  /// An array of such data.
  Array array(Precision precision, int count, Kind kind = Kind::ordinary);

 private:
  std::mt19937_64 bits_;
};

}  // namespace xfm::test
