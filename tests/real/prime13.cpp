// N = 13 by Rader's convolution (Rader 1968) over the powers of 2: x(2^q) in, X(2^-p) out. The even bins of
// the spectrum yield the real parts and the odd bins, through a skew transform, the imaginary parts.
#include <algorithm>
#include <array>

#include "tests/real/blocks.h"
#include "tests/real/equations.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

constexpr std::size_t length = 13, period = 12, half = 6;
constexpr std::array<std::size_t, period> powers = {1, 2, 4, 8, 3, 6, 12, 11, 9, 5, 10, 7};

/// A complex number whose parts are values or exact.
template <class T>
struct Pair {
  T re, im;
};

/// times * C(k) / 12, C(k) = sum over r of exp(-2 pi i 2^-r / 13) exp(-2 pi i r k / 12).
Pair<Wide> spectrum_of_roots(int k, int times) {
  Pair<Wide> sum{0, 0};
  for (std::size_t r = 0; r < period; ++r) {
    const auto root = static_cast<long>(powers[(period - r) % period]);
    const auto angle = static_cast<long>(r) * k;
    const long parts = root * 12 + angle * 13;  // in 156ths of the circle
    sum.re += cosine(parts, 156);
    sum.im -= sine(parts, 156);
  }
  return {sum.re * times / 12, sum.im * times / 12};
}

/// The bins of the spectrum of x(2^q): 3 by 4, as 15 points are 3 by 5. Bins 0 and 6 are real.
template <class T>
std::array<Pair<T>, half + 1> spectrum_of_samples(const Samples<T>& x) {
  std::array<T, 4> sums{}, c{}, d{};
  for (std::size_t b = 0; b < 4; ++b) {
    Samples<T> triple;
    for (std::size_t a = 0; a < 3; ++a) triple.push_back(x[powers[(4 * a + 3 * b) % period]]);
    const Block<T> block(triple);
    sums[b] = block.even[0].only();
    c[b] = block.even[1].only();
    d[b] = block.odd[1].only();  // bin 1 of the block is c - i d
  }
  const T even = sums[0] + sums[2], odd = sums[1] + sums[3];
  const T c0 = c[0] + c[2], c1 = c[1] + c[3], c2 = c[0] - c[2], c3 = c[1] - c[3];
  const T d0 = d[0] + d[2], d1 = d[1] + d[3], d2 = d[0] - d[2], d3 = d[1] - d[3];
  return {{{even + odd, T(0)},
           {c2 - d3, -(c3 + d2)},
           {c0 - c1, d0 - d1},                      // bin 10 mirrored
           {sums[0] - sums[2], sums[1] - sums[3]},  // bin 9 mirrored
           {c0 + c1, -(d0 + d1)},
           {c2 + d3, d2 - c3},  // bin 7 mirrored
           {even - odd, T(0)}}};
}

/// Each part of a complex product is one linear combination.
template <class T>
Pair<T> product(Pair<double> c, Pair<T> z) {
  return {narrow<T>(c.re * double{z.re} - c.im * double{z.im}),
          narrow<T>(c.re * double{z.im} + c.im * double{z.re})};
}

/// The outputs of a block of three, from its centre, the double real part and the value of its odd term.
template <class T>
struct Three {
  Three(T centre, T twice_re, T odd)
      : first(centre + twice_re),
        plus(narrow<T>(double{centre} - 0.5 * double{twice_re}) + odd),
        minus(narrow<T>(double{centre} - 0.5 * double{twice_re}) - odd) {}
  T first, plus, minus;
};

/// Real parts: six points, 2 by 3, of the bins t, G(2), G(4), G(6).
template <class T>
std::array<T, half> real_half(T t, Pair<T> g2, Pair<T> g4, T g6) {
  const auto root = sine<double>(1, 3);
  const Three<T> even(t + g6, g4.re + g2.re, narrow<T>(root * double{g2.im - g4.im}));
  const Three<T> odd(t - g6, g4.re - g2.re, narrow<T>(root * -double{g2.im + g4.im}));
  return {even.first, odd.plus, even.minus, odd.first, even.plus, odd.minus};
}

/// Imaginary parts: six points of the odd frequencies 1, 3, 5. Where a rotation by a twelfth of the circle
/// comes before a block of three, the constant of the odd term is merged into the constants of the rotation.
template <class T>
std::array<T, half> skew_half(Pair<T> g1, Pair<T> g3, Pair<T> g5) {
  const auto root = sine<double>(1, 3);
  const auto fused = static_cast<double>(sine(1, 3) / 2);
  const Pair<T> sum{g1.re + g5.re, g1.im - g5.im}, difference{g1.re - g5.re, g1.im + g5.im};
  const T rotated_re = narrow<T>(root * double{difference.re} - 0.5 * double{difference.im});
  const T rotated_im = narrow<T>(fused * double{difference.re} + 0.75 * double{difference.im});
  const Three<T> even(g3.re, sum.re, narrow<T>(root * double{sum.im}));
  const Three<T> odd(-g3.im, rotated_re, rotated_im);
  return {even.first, odd.first, -even.plus, -odd.plus, even.minus, odd.minus};
}

}  // namespace

template <class T>
HalfSpectrum<OneOf<T>> forward13(const Samples<T>& x, T s) {
  const auto a = spectrum_of_samples(x);
  const auto constant = [](int k) {
    const auto [re, im] = spectrum_of_roots(k, k == half ? 1 : 2);
    const Pair<double> c{static_cast<double>(re), static_cast<double>(im)};
    return k % 2 == 0 ? c : Pair<double>{c.im, -c.re};  // odd bins over i: their transform is real
  };
  std::array<Pair<T>, half> g{};
  for (int k = 1; k < static_cast<int>(half); ++k)
    g[static_cast<std::size_t>(k)] = product(constant(k), a[static_cast<std::size_t>(k)]);
  const T g6 = narrow<T>(constant(6).re * double{a[6].re});
  const T t = narrow<T>(double{x[0]} - 1.0 / 12 * double{a[0].re});
  const auto re = real_half(t, g[2], g[4], g6), im = skew_half(g[1], g[3], g[5]);

  HalfSpectrum<OneOf<T>> out(length);
  out.re[0] = (x[0] + a[0].re) * s;
  for (std::size_t p = 0; p < half; ++p) {
    const std::size_t k = powers[(period - p) % period], bin = std::min(k, length - k);
    out.re[bin] = re[p] * s;
    out.im[bin] = k == bin ? OneOf<T>(im[p] * s) : negated<T>(im[p] * s);
  }
  return out;
}

template HalfSpectrum<OneOf<float>> forward13(const Samples<float>&, float);
template HalfSpectrum<OneOf<double>> forward13(const Samples<double>&, double);

}  // namespace xfm::test
