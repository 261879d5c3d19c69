// Rader's algorithm for a prime N (Rader 1968) on real sequences. With g a primitive root and M = N-1 the
// inputs a[q] = x[g^q] and the outputs X[g^-p] are related by a cyclic convolution, done by two transforms of
// length M around a pointwise product with the spectrum of the roots of unity,
//   b[q] = exp(-2 pi i g^-q/N),  B[r] = (1/M) sum_q b[q] exp(-2 pi i q r/M).
// Since g^(M/2) = -1, B[M-r] is conj(B[r]) for even r and -conj(B[r]) for odd r: the even bins of the
// spectrum give the real parts of the outputs, the odd bins their imaginary parts, and the two never mix.
#include <stdexcept>

#include "gen/algorithms/transform.h"
#include "gen/math/number.h"

namespace xfm::gen {
namespace {

// x[g^0], x[g^1], ...
Points permuted(const Points& x, int g) {
  Points inputs;
  for (int q = 0; q + 1 < x.size(); ++q) inputs.push_back(x[power_modulo(g, q, x.size())]);
  return inputs;
}

// Runs a network of real sequences from bins to samples. A bin and its mirror image share one weight.
template <class Make>
Points from_bins(int length, Rounding rounding, Make make, const Points& bins) {
  Network network(1, rounding);
  const Points outputs = make(samples(network, length));
  Transposition transposition(network);
  for (int k = 0; k < bins.size(); ++k) {
    transposition.send(outputs[k].p, {bins[k].p, {}});
    transposition.send(outputs[k].q, {bins[k].q, {}});
  }
  return transposition.run(length);
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
  const Points re = from_bins(
      h, rounding_, [&](const Points& y) { return run(*args.back, y); }, even);
  const Points im = from_bins(
      h, rounding_, [&](const Points& y) { return skew(*args.skew, y); }, odd);

  Spectrum out(n);
  out.put(0, x[0] + a[0]);
  const int inverse = inverse_modulo(g, n);
  for (int p = 0; p < h; ++p) out.put(power_modulo(inverse, p, n), {re[p].p, im[p].p});
  return out.bins();
}

// The forward transform gives A[r] = C[r] - i*S[r] for r = 0..M/2. With beta and gamma the parts of 2*B[r],
//   z1 = beta*C + gamma*S,  z2 = gamma*C - beta*S
// are the weights of cos and sin in the inverse transform, which is the forward one transposed. x0 is added
// at frequency zero, and the inverse transform spreads it over all outputs.
Points Transform::rader_transposed(const Tree& tree, const Points& x, int /*instance*/) const {
  const Tree& inner = tree.args.back();
  const int n = x.size(), m = n - 1, h = m / 2;
  const Root root = choices_.root(n);
  const Points spectrum = run(inner, permuted(x, root.g));

  Network there(1, rounding_);
  const Points outputs = Transform(rounding_, choices_, true).run(inner, samples(there, m));
  Transposition back(there);
  const auto part = [](int r, const Complex& z) { return r % 2 == 0 ? z : times_i(z); };
  back.send(outputs[0].p, x[0] + Complex(rader_spectrum(n, root, 0).re * spectrum[0]));
  for (int r = 1; r < h; ++r) {
    const ComplexConstant b = rader_spectrum(n, root, r, 2);
    const Complex c{spectrum[r].p, {}}, s{-spectrum[r].q, {}};
    const Complex z1 = sum({b.re * c, b.im * s}), z2 = sum({b.im * c, -(b.re * s)});
    back.send(outputs[r].p, part(r, r % 2 == 0 ? z1 : z2));
    back.send(-outputs[r].q, part(r, r % 2 == 0 ? -z2 : z1));
  }
  const ComplexConstant b = rader_spectrum(n, root, h);
  const Complex middle{spectrum[h].p, {}};
  back.send(outputs[h].p, part(h, (h % 2 == 0 ? b.re : b.im) * middle));
  const Points convolution = back.run(m);

  Points out(n);
  out[0] = x[0] + spectrum[0];
  const int step = inverse_modulo(root.g, n);
  for (int p = 0; p < m; ++p) out[power_modulo(step, p + root.shift, n)] = convolution[p];
  return out;
}

}  // namespace xfm::gen
