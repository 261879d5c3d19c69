#include "tests/real/equations.h"

#include <array>

#include "tests/real/blocks.h"

namespace xfm::test {
namespace {

template <class T>
HalfSpectrum<OneOf<T>> forward2(const Samples<T>& x, T s) {
  HalfSpectrum<OneOf<T>> out(2);
  out.re = {(x[0] + x[1]) * s, (x[0] - x[1]) * s};
  return out;
}

template <class T>
HalfSpectrum<OneOf<T>> forward4(const Samples<T>& x, T s) {
  const T a = x[0] + x[2], b = x[0] - x[2], c = x[1] + x[3], d = x[1] - x[3];
  HalfSpectrum<OneOf<T>> out(4);
  out.re = {(a + c) * s, b * s, (a - c) * s};
  out.im[1] = negated<T>(d * s);
  return out;
}

/// 3, 5 or 7 points as one block: every bin but the first is a linear combination, with the factor in it.
template <class T>
HalfSpectrum<OneOf<T>> forward_block(const Samples<T>& x, T s) {
  const Folded<T> f(x);
  HalfSpectrum<OneOf<T>> out(x.size());
  out.re[0] = (f.x0 + sum_of(f.s)) * s;
  for (int k = 1; k <= static_cast<int>(f.s.size()); ++k) {
    const auto at = static_cast<std::size_t>(k);
    out.re[at] = narrow<T>(OneOf(double{s}) * even_term(k, f.x0, f.s));
    out.im[at] = narrow<T>(negated(OneOf(double{s}) * odd_term(k, f.d)));
  }
  return out;
}

template <class T>
HalfSpectrum<OneOf<T>> forward8(const Samples<T>& x, T s) {
  const auto root = cosine<double>(1, 8);
  const T s0 = x[0] + x[4], d0 = x[0] - x[4], s1 = x[1] + x[5], s2 = x[2] + x[6], d2 = x[2] - x[6];
  const T s3 = x[3] + x[7];
  const T u = s0 + s2, v = s1 + s3;
  const T e = narrow<T>(root * double{x[1] - x[5]}), f = narrow<T>(root * double{x[3] - x[7]});
  const T p = e - f, q = e + f;
  HalfSpectrum<OneOf<T>> out(8);
  out.re = {(u + v) * s, (d0 + p) * s, (s0 - s2) * s, (d0 - p) * s, (u - v) * s};
  out.im[1] = negated<T>((d2 + q) * s);
  out.im[2] = negated<T>((s1 - s3) * s);
  out.im[3] = negated<T>((q - d2) * s);
  return out;
}

/// 3 by 5 without twiddles: five blocks of three, then a real stage of five over their sums, whose outputs
/// are linear combinations, and a complex one over their bins 1, C - iD, of which bins 8 to 14 are read as
/// conjugates.
template <class T>
HalfSpectrum<OneOf<T>> forward15(const Samples<T>& x, T s) {
  constexpr std::array<std::array<std::size_t, 3>, 5> triples = {
      {{0, 5, 10}, {3, 8, 13}, {6, 11, 1}, {9, 14, 4}, {12, 2, 7}}};
  Samples<T> sums, c, d;
  for (const auto& [first, second, third] : triples) {
    const Block<T> block({x[first], x[second], x[third]});
    sums.push_back(block.even[0].only());
    c.push_back(block.even[1].only());
    d.push_back(block.odd[1].only());
  }
  const HalfSpectrum<OneOf<T>> of_sums =
      forward_block(sums, s);  // bins 0, 6, and 12, which is bin 3 mirrored
  const Block<T> p(c), q(d);
  HalfSpectrum<OneOf<T>> out(15);
  out.re = {of_sums.re[0], (p.even[1] - q.odd[1]) * s, (p.even[2] + q.odd[2]) * s,
            of_sums.re[2], (p.even[1] + q.odd[1]) * s, p.even[0] * s,
            of_sums.re[1], (p.even[2] - q.odd[2]) * s};
  out.im = {T(0),
            negated((p.odd[1] + q.even[1]) * s),
            (q.even[2] - p.odd[2]) * s,
            negated(of_sums.im[2]),
            (p.odd[1] - q.even[1]) * s,
            q.even[0] * s,
            of_sums.im[1],
            negated((p.odd[2] + q.even[2]) * s)};
  return out;
}

template <class T>
Samples<OneOf<T>> inverse2(const HalfSpectrum<T>& in, T s, Layout /*layout*/) {
  return {(in.re[0] + in.re[1]) * s, (in.re[0] - in.re[1]) * s};
}

template <class T>
Samples<OneOf<T>> inverse4(const HalfSpectrum<T>& in, T s, Layout /*layout*/) {
  const T a = in.re[0] + in.re[2], b = in.re[0] - in.re[2], twice_re = T(2) * in.re[1],
          twice_im = T(2) * in.im[1];
  return {(a + twice_re) * s, (b - twice_im) * s, (a - twice_re) * s, (b + twice_im) * s};
}

/// 3, 5 or 7 points: the inner bins are doubled first. Of three points, sqrt(3) I(1) is the same as
/// sqrt(3)/2 times the double.
template <class T>
Samples<OneOf<T>> inverse_block(const HalfSpectrum<T>& in, T s, Layout layout) {
  const std::size_t half = in.re.size() - 1, length = 2 * half + 1;
  std::vector<T> a, b;
  for (std::size_t k = 1; k <= half; ++k) {
    a.push_back(T(2) * in.re[k]);
    b.push_back(T(2) * in.im[k]);
  }
  const bool outer_first = length == 7 && layout == Layout::ccs;
  const T sum = outer_first ? (a[0] + a[2]) + a[1] : sum_of(a);
  Samples<OneOf<T>> out(length);
  out[0] = (in.re[0] + sum) * s;
  for (std::size_t j = 1; j <= half; ++j) {
    const OneOf<T> e = narrow<T>(even_term(static_cast<int>(j), in.re[0], a));
    const OneOf<T> f = narrow<T>(odd_term(static_cast<int>(j), b));
    out[j] = (e - f) * s;
    out[length - j] = (e + f) * s;
  }
  return out;
}

}  // namespace

template <class T>
std::map<int, Forward<T>> forward_equations() {
  return {{2, forward2<T>},      {3, forward_block<T>}, {4, forward4<T>},   {5, forward_block<T>},
          {7, forward_block<T>}, {8, forward8<T>},      {13, forward13<T>}, {15, forward15<T>}};
}

template <class T>
std::map<int, Inverse<T>> inverse_equations() {
  return {{2, inverse2<T>},
          {3, inverse_block<T>},
          {4, inverse4<T>},
          {5, inverse_block<T>},
          {7, inverse_block<T>}};
}

template std::map<int, Forward<float>> forward_equations();
template std::map<int, Forward<double>> forward_equations();
template std::map<int, Inverse<float>> inverse_equations();
template std::map<int, Inverse<double>> inverse_equations();

}  // namespace xfm::test
