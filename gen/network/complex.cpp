#include "gen/network/complex.h"

#include <algorithm>

namespace xfm::gen {
namespace {

// The terms of one half that are not zero by structure.
Products products(const Sequence<ScaledComplex>& terms, Value Complex::*half) {
  Products present;
  for (const ScaledComplex& term : terms) {
    if (!(term.z.*half).absent() && !term.c.is_zero()) present.push_back({term.c, term.z.*half});
  }
  return present;
}

Value combine(const Sequence<ScaledComplex>& terms, Value Complex::*half) {
  const Products present = products(terms, half);
  return present.empty() ? Value{} : present.front().v.network->sum(present);
}

bool is_plain(const Network::Product& term) { return magnitude(term.c).is_one(); }

Value product(const Constant& c, Value v) { return v.absent() ? Value{} : v.network->mul(c, v); }

}  // namespace

Complex operator+(const Complex& a, const Complex& b) { return {a.p + b.p, a.q + b.q}; }
Complex operator-(const Complex& a, const Complex& b) { return {a.p - b.p, a.q - b.q}; }
Complex times_i(const Complex& z) { return {-z.q, z.p}; }
Complex conjugate(const Complex& z) { return {z.p, -z.q}; }
Complex exchanged(const Complex& z) { return {z.q, z.p}; }

ScaledComplex::operator Complex() const { return sum({*this}); }

Complex sum(const Sequence<ScaledComplex>& terms) {
  return {combine(terms, &Complex::p), combine(terms, &Complex::q)};
}

Value combination(Products terms, Finish finish) {
  if (terms.empty()) return {};
  const bool negated = std::ranges::all_of(terms, &Network::Product::is_negative);
  if (negated) {
    for (Network::Product& term : terms) term.v = -term.v;
  }
  auto leader = terms.begin();
  if (leader->is_negative()) {
    leader = std::ranges::find_if(
        terms, [](const Network::Product& term) { return !term.is_negative() && is_plain(term); });
    if (leader == terms.end()) leader = std::ranges::find_if_not(terms, &Network::Product::is_negative);
  }
  std::rotate(terms.begin(), leader, leader + 1);
  const Value sum = terms.front().v.network->sum(terms, finish);
  return negated ? -sum : sum;
}

Complex combination(const Sequence<ScaledComplex>& terms) {
  return {combination(products(terms, &Complex::p)), combination(products(terms, &Complex::q))};
}

Complex operator*(const ComplexConstant& w, const Complex& z) {
  // Named one by one: compilers evaluate the operands of an operator in different orders, and would number
  // the nodes differently.
  const Value cp = product(w.re, z.p), sq = product(w.im, z.q), sp = product(w.im, z.p),
              cq = product(w.re, z.q);
  return {cp - sq, sp + cq};
}

}  // namespace xfm::gen
