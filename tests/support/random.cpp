#include "tests/support/random.h"

#include <cmath>
#include <cstdlib>

namespace xfm::test {
namespace {

/// FNV-1a: the same on every machine, unlike std::hash.
std::uint64_t hash(const std::string& text) {
  std::uint64_t value = 0xcbf29ce484222325;
  for (const char c : text) value = (value ^ static_cast<unsigned char>(c)) * 0x100000001b3;
  return value;
}

}  // namespace

const char* to_string(Kind kind) {
  switch (kind) {
    case Kind::ordinary:
      return "ordinary";
    case Kind::wide:
      return "wide";
    case Kind::huge:
      return "huge";
    case Kind::subnormal:
      return "subnormal";
    default:
      return "signs";
  }
}

std::uint64_t seed() {
  static const char* const given = std::getenv("XFM_SEED");
  return given != nullptr ? std::strtoull(given, nullptr, 0) : 20221;
}

Random::Random(const std::string& name) : bits_(seed() ^ hash(name)) {}

double Random::even() { return std::ldexp(static_cast<double>(bits_() >> 11), -52) - 1; }

double Random::next(Kind kind, Precision precision) {
  const bool single = precision == Precision::binary32;
  const int greatest_exponent = single ? 127 : 1023;
  switch (kind) {
    case Kind::ordinary:
      return rounded(precision, even());
    case Kind::wide:
      return rounded(precision, std::ldexp(even(), static_cast<int>(bits_() % 41) - 20));
    case Kind::huge:  // a transform of length 8192 sums up to 2^14 scalars
      return rounded(precision, std::ldexp(even(), greatest_exponent - 15));
    case Kind::subnormal:
      return rounded(precision, std::ldexp(even(), -greatest_exponent));
    default:
      return std::copysign(static_cast<double>(bits_() & 1), even());
  }
}

void Random::fill(Array& array, Kind kind) {
  for (int i = 0; i < array.count(); ++i) array.set(i, next(kind, array.precision()));
}

Array Random::array(Precision precision, int count, Kind kind) {
  Array result(precision, count);
  fill(result, kind);
  return result;
}

}  // namespace xfm::test
