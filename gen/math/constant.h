// Constants of the networks: a value to 113 bits, and a name that says what it is.
//
// A constant is rounded exactly once, to the precision of the kernel. Evaluating it in binary64 would not do:
// cosl or cos of 2 pi a/b is wrong in the last place of binary64 for most of the angles of the lengths up to
// 64, so angles are reduced to the first octant as exact fractions and evaluated in binary128.
#pragma once

#include <compare>
#include <string>

#include "gen/math/sequence.h"

namespace xfm::gen {

__extension__ using Wide = __float128;

Wide wide_sqrt(Wide v);
Wide wide_abs(Wide v);

/// The two precisions of the library.
enum class Precision { binary32, binary64 };

inline int bytes(Precision precision) { return precision == Precision::binary32 ? 4 : 8; }

/// The nearest number of the precision.
inline double rounded(Wide value, Precision precision) {
  return precision == Precision::binary32 ? static_cast<float>(value) : static_cast<double>(value);
}

/// An exact fraction num/den of the full circle, reduced, in 0 <= num/den < 1.
struct Turn {
  long num = 0, den = 1;
};
Turn turn(long long num, long long den);

/// A real constant: value, and the name that identifies it. Equal names mean equal values.
struct Constant {
  std::string name;
  Wide value = 0;

  bool is_zero() const { return value == 0; }
  bool is_one() const { return value == 1; }
  bool is_negative() const { return value < 0; }
  bool operator==(const Constant& other) const { return name == other.name; }
  std::strong_ordering operator<=>(const Constant& other) const { return name <=> other.name; }
};

Constant operator-(const Constant& c);
Constant magnitude(const Constant& c);

/// The constant, or minus the constant; unlike -c, a zero has a sign too.
Constant signed_constant(const Constant& c, bool negative);

/// A product, multiplied out before it is rounded; its name does not depend on the order of the factors.
Constant operator*(const Constant& a, const Constant& b);

/// cos and sin of an exact fraction of the circle, named by their octant form: "cos 1/16", "sin 1/12".
Constant cosine(Turn t);
Constant sine(Turn t);

/// A constant that is not a cosine or a sine.
Constant constant(std::string name, Wide value);

/// c + i*s.
struct ComplexConstant {
  Constant re, im;
  bool is_one() const { return re.is_one() && im.is_zero(); }
};

/// The sign of the exponent: minus in forward transforms.
enum class Direction { forward, inverse };

inline Direction opposite(Direction d) {
  return d == Direction::forward ? Direction::inverse : Direction::forward;
}

/// A constant of the forward transform, or its conjugate for the inverse one.
ComplexConstant directed(const ComplexConstant& w, Direction direction);

/// exp(-2 pi i t), or exp(2 pi i t) for inverse transforms.
ComplexConstant root_of_unity(Turn t, Direction direction = Direction::forward);

/// All of exp(-2 pi i k/n), k = 0..n-1, or their conjugates.
Sequence<ComplexConstant> roots_of_unity(int n, Direction direction = Direction::forward);

}  // namespace xfm::gen
