// Complex numbers whose operations round exactly as written, which std::complex does not guarantee.
#pragma once

#include <vector>

namespace xfm::test {

template <class T>
struct Number {
  T re, im;
};

template <class T>
using Points = std::vector<Number<T>>;

template <class T>
Number<T> operator+(Number<T> a, Number<T> b) {
  return {a.re + b.re, a.im + b.im};
}
template <class T>
Number<T> operator-(Number<T> a, Number<T> b) {
  return {a.re - b.re, a.im - b.im};
}
template <class T>
Number<T> operator*(T c, Number<T> z) {
  return {c * z.re, c * z.im};
}
/// All four products, each rounded by itself.
template <class T>
Number<T> operator*(Number<T> w, Number<T> z) {
  return {z.re * w.re - z.im * w.im, z.re * w.im + z.im * w.re};
}
template <class T>
Number<T> times_i(Number<T> z) {
  return {-z.im, z.re};
}
template <class T>
Number<T> exchanged(Number<T> z) {
  return {z.im, z.re};
}

}  // namespace xfm::test
