#include "gen/complex.h"

namespace xfm::gen {
namespace {

Value combine(const std::vector<ScaledComplex>& terms, Value Complex::*half) {
  std::vector<Network::Product> products;
  Network* network = nullptr;
  for (const ScaledComplex& term : terms) {
    const Value v = term.z.*half;
    if (v.absent()) continue;
    network = v.network;
    products.push_back({term.c, v});
  }
  return network == nullptr ? Value{} : network->sum(products);
}

Value product(const Constant& c, Value v) { return v.absent() ? Value{} : v.network->mul(c, v); }

}  // namespace

Complex operator+(const Complex& a, const Complex& b) { return {a.p + b.p, a.q + b.q}; }
Complex operator-(const Complex& a, const Complex& b) { return {a.p - b.p, a.q - b.q}; }
Complex times_i(const Complex& z) { return {-z.q, z.p}; }
Complex conjugate(const Complex& z) { return {z.p, -z.q}; }
Complex exchanged(const Complex& z) { return {z.q, z.p}; }

ScaledComplex::operator Complex() const { return sum({*this}); }

Complex sum(std::initializer_list<ScaledComplex> terms) { return sum(std::vector<ScaledComplex>(terms)); }

Complex sum(const std::vector<ScaledComplex>& terms) {
  return {combine(terms, &Complex::p), combine(terms, &Complex::q)};
}

Complex operator*(const ComplexConstant& w, const Complex& z) {
  return {product(w.re, z.p) - product(w.im, z.q), product(w.im, z.p) + product(w.re, z.q)};
}

}  // namespace xfm::gen
