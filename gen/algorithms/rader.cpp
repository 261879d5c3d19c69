// Rader's algorithm for a prime N (Rader 1968) on real sequences. With g a primitive root and M = N-1 the
// inputs a[q] = x[g^q] and the outputs X[g^-p] are related by a cyclic convolution, done by two transforms of
// length M around a pointwise product with the spectrum of the roots of unity,
//   b[q] = exp(-2 pi i g^-q/N),  B[r] = (1/M) sum_q b[q] exp(-2 pi i q r/M).
// Since g^(M/2) = -1, B[M-r] is conj(B[r]) for even r and -conj(B[r]) for odd r: the even bins of the
// spectrum give the real parts of the outputs, the odd bins their imaginary parts, and the two never mix.
#include <fmt/format.h>

#include <stdexcept>

#include "gen/algorithms/transform.h"
#include "gen/math/number.h"

namespace xfm::gen {

ComplexConstant rader_spectrum(int n, Root root, int r, int times) {
  const int m = n - 1, inverse = inverse_modulo(root.g, n);
  Wide re = 0, im = 0;
  for (int q = 0; q < m; ++q) {
    // exp(-2 pi i (g'^q/N + q r/M)) as one exact fraction of the circle
    const auto angle = turn(static_cast<long long>(power_modulo(inverse, q + root.shift, n)) * m +
                                static_cast<long long>(q) * r * n,
                            static_cast<long long>(n) * m);
    re += cosine(angle).value;
    im -= sine(angle).value;
  }
  const auto half = [&](const char* part, Wide value) -> Constant {
    if (wide_abs(value) < Wide(1e-25)) return {"0", 0};
    return constant(
        fmt::format("rader {} {} {} {} {}{}", n, root.g, root.shift, part, r, times == 1 ? "" : " doubled"),
        Wide(times) * value / Wide(m));
  };
  return {half("re", re), half("im", im)};
}

namespace {

// x[g^0], x[g^1], ...
Points permuted(const Points& x, int g) {
  return tabulated(x.size() - 1, [&](int q) { return x[power_modulo(g, q, x.size())]; });
}

}  // namespace

// The inverse transform is two of length M/2, one plain and one skew, both as transposed networks.
Points Transform::rader_by_halves(const Tree& tree, const Points& x, int /*instance*/) const {
  const RaderArguments args = rader_arguments(tree);
  if (args.skew == nullptr)
    throw std::invalid_argument(to_string(tree) + " cannot transform a sequence of values");
  const int g = *args.root, n = x.size(), m = n - 1, h = m / 2;
  const Points a = run(*args.there, permuted(x, g));

  // For odd r, B[r] is divided by i, so that the odd half is a real network that yields the imaginary parts.
  const Constant by_m = constant("1/" + std::to_string(m), Wide(1) / Wide(m));
  Points even{combination({x[0], -(by_m * a[0])})}, odd;
  for (int r = 1; r <= h; ++r) {
    const ComplexConstant b = rader_spectrum(n, {g, 0}, r, r < h ? 2 : 1);
    const ComplexConstant w = r % 2 == 0 ? b : ComplexConstant{b.im, -b.re};
    (r % 2 == 0 ? even : odd).push_back(combination({w.re * a[r], w.im * times_i(a[r])}));
  }
  const auto samples_of = [&](const Tree& inner, const Points& bins, Bins kind) {
    return from_bins(inner, halves(bins, &Complex::p), halves(bins, &Complex::q), kind);
  };
  const Points re = samples_of(*args.back, even, Bins::plain);
  const Points im = samples_of(*args.skew, odd, Bins::skew);

  Spectrum out(n);
  out.put(0, x[0] + a[0]);
  const int inverse = inverse_modulo(g, n);
  for (int p = 0; p < h; ++p) out.put(power_modulo(inverse, p, n), {re[p].p, im[p].p});
  return out.bins();
}

// The forward transform gives A[r] = C[r] - i*S[r] for r = 0..M/2. With beta and gamma the parts of 2*B[r],
//   z1 = beta*C + gamma*S,  z2 = gamma*C - beta*S
// are the weights of cos and sin in the inverse transform, which is the forward one transposed; S[M/2] and
// one part of B[M/2] vanish. x0 is added at frequency zero, and the inverse transform spreads it over all
// outputs.
Points Transform::rader_transposed(const Tree& tree, const Points& x, int /*instance*/) const {
  const Tree& inner = tree.args.back();
  const int n = x.size(), m = n - 1, h = m / 2;
  const Root root = choices_.root(n);
  const Points spectrum = run(inner, permuted(x, root.g));

  Points re{x[0] + Complex(rader_spectrum(n, root, 0).re * spectrum[0])}, im{Complex{}};
  for (int r = 1; r <= h; ++r) {
    const ComplexConstant b = rader_spectrum(n, root, r, r < h ? 2 : 1);
    const Complex c{spectrum[r].p, {}}, s{-spectrum[r].q, {}};
    const Complex z1 = sum({b.re * c, b.im * s}), z2 = sum({b.im * c, -(b.re * s)});
    re.push_back(r % 2 == 0 ? z1 : times_i(z2));
    im.push_back(r % 2 == 0 ? z2 : -times_i(z1));
  }
  const Points convolution = from_bins(inner, re, im);

  Points out(n);
  out[0] = x[0] + spectrum[0];
  const int step = inverse_modulo(root.g, n);
  for (int p = 0; p < m; ++p) out[power_modulo(step, p + root.shift, n)] = convolution[p];
  return out;
}

}  // namespace xfm::gen
