#include "tests/bits/data.h"

#include <cmath>

namespace xfm::test {
namespace {

template <Kind kind>
double of_kind(Random& random, Precision precision) {
  return random.next(kind, precision);
}

double scaled(Random& random, Precision precision, int exponent32, int exponent64) {
  return std::ldexp(random.even(), precision == Precision::binary32 ? exponent32 : exponent64);
}

/// Near the least normal number: sums and products fall below it.
double tiny(Random& random, Precision precision) { return scaled(random, precision, -123, -1019); }

/// Up to a quarter of the greatest number: four of them may overflow.
double overflowing(Random& random, Precision precision) { return scaled(random, precision, 126, 1022); }

/// Mostly zeros, of either sign.
double sparse(Random& random, Precision precision) {
  return random.even() < 0.5 ? std::copysign(0.0, random.even()) : random.next(Kind::ordinary, precision);
}

constexpr Data list[] = {
    {"ordinary", of_kind<Kind::ordinary>},
    {"wide", of_kind<Kind::wide>},
    {"tiny", tiny},
    {"huge", of_kind<Kind::huge>},
    {"overflowing", overflowing, true},
    {"subnormal", of_kind<Kind::subnormal>},
    {"signs", of_kind<Kind::signs>},
    {"sparse", sparse},
};

}  // namespace

std::span<const Data> all_data() { return list; }

Array draw(const Data& data, Random& random, Precision precision, int count) {
  Array array(precision, count);
  for (int i = 0; i < count; ++i) array.set(i, data.draw(random, precision));
  return array;
}

}  // namespace xfm::test
