// Complex values in a network: p + i*q, each half a value of its own or absent.
//
// In the planar form p and q are the real and the imaginary part. In the interleaved form a node holds
// complex numbers, the network has only real coefficients, and the factor i of p + i*q is not applied before
// the last step. The same recipes serve both.
#pragma once

#include "gen/network/network.h"

namespace xfm::gen {

struct Complex {
  Value p, q;

  bool is_real() const { return q.absent(); }
  Complex operator-() const { return {-p, -q}; }
};
using Points = Sequence<Complex>;

Complex operator+(const Complex& a, const Complex& b);
Complex operator-(const Complex& a, const Complex& b);
Complex times_i(const Complex& z);
Complex conjugate(const Complex& z);
Complex exchanged(const Complex& z);  ///< real and imaginary parts exchanged

/// A product with a real constant, not yet rounded: it becomes a value of its own or a term of a sum.
struct ScaledComplex {
  Constant c{"1", 1};
  Complex z;

  ScaledComplex(const Complex& plain)
      : z(plain) {}  // NOLINT(google-explicit-constructor): a plain term of a sum
  ScaledComplex(Constant factor, const Complex& value) : c(std::move(factor)), z(value) {}
  operator Complex() const;  // NOLINT(google-explicit-constructor): c*z as a value reads as in the equations
  ScaledComplex operator-() const { return {-c, z}; }
};
inline ScaledComplex operator*(const Constant& c, const Complex& z) { return {c, z}; }

/// The terms added from left to right, rounded by the network's rule.
Complex sum(const Sequence<ScaledComplex>& terms);

/// One linear combination that begins with a positive term, so that a zero comes out as +0. If its first term
/// is negative, the first positive plain operand moves to the front, or else the first positive product. If
/// all terms are negative, the result is the negative of the combination of the negated terms.
Value combination(Products terms, Finish finish = Finish::none);
Complex combination(const Sequence<ScaledComplex>& terms);

/// w*z, (c + i*s)*(p + i*q) = (c*p - s*q) + i*(s*p + c*q), each product rounded by itself; products with 0, 1
/// and -1 cost nothing.
Complex operator*(const ComplexConstant& w, const Complex& z);

}  // namespace xfm::gen
