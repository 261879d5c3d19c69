// Complex transforms as convolutions: Rader's algorithm for primes (Rader 1968; rader.cpp has its formulas)
// and Bluestein's chirp algorithm (Bluestein 1970). With j*k = (j^2 + k^2 - (k-j)^2)/2 a transform of odd
// length N becomes a convolution with a chirp, done by two transforms of a convenient length L >= 2N-1:
//   h[j] = exp(-2 pi i e(j)/N),  e(j) = j^2 (N+1)/2 mod N,  X[k] = h[k] sum_j (x[j] h[j]) conj(h[k-j]).
// The zeros that pad the N inputs are never read or multiplied, and outputs beyond the first N are never
// computed.
#include <fmt/format.h>

#include <stdexcept>

#include "gen/algorithms/lines.h"
#include "gen/math/number.h"

namespace xfm::gen {

// The factor 1/M is part of B. x0 is added at frequency zero, X0 = x0 + A[0] and Y[0] = x0 + B[0]*A[0], and
// the inverse transform spreads it over all outputs.
Lines LineTransform::rader(const Tree& tree, const Lines& x, Direction direction) {
  const RaderArguments args = rader_arguments(tree);
  if (args.root)
    throw std::invalid_argument(to_string(tree) +
                                ": a packed transform takes its root from the kernel's choices");
  const Tree& inner = *args.there;
  const int m = length_of(inner), n = m + 1;
  const Root root = choices_.root(n);
  const auto factor = [&](int r) { return directed(rader_spectrum(n, root, r), direction); };
  const auto permuted = [&](int i) {
    return tabulated(m, [&](int q) { return x[i][power_modulo(root.g, q, n)]; });
  };
  const Lines spectrum = run(inner, tabulated(x.size(), permuted), direction);

  const auto for_zero = [&](int i) { return Line{x[i][0], spectrum[i][0]}; };
  const auto with_sum = [](const Points& z) { return Points{z[0] + z[1], z[0]}; };
  const Lines zero = each(tabulated(x.size(), for_zero), direction, with_sum);
  const auto for_all = [&](int i) { return Line{zero[i][1], weighted(spectrum[i][0], factor(0))}; };
  const auto only_sum = [](const Points& z) { return Points{z[0] + z[1]}; };
  const Lines joined = each(tabulated(x.size(), for_all), direction, only_sum);
  const auto product = [&](int i) {
    return tabulated(m, [&](int r) { return r == 0 ? joined[i][0] : weighted(spectrum[i][r], factor(r)); });
  };
  const Lines convolution = run(inner, tabulated(x.size(), product), opposite(direction));

  Lines out(x.size(), Line(n));
  const int inverse = inverse_modulo(root.g, n);
  for (int i = 0; i < x.size(); ++i) {
    out[i][0] = zero[i][0];
    for (int p = 0; p < m; ++p) out[i][power_modulo(inverse, p + root.shift, n)] = convolution[i][p];
  }
  return out;
}

namespace {

int exponent(int j, int n) { return modulo(static_cast<long long>(j) * j * ((n + 1) / 2), n); }

// Bin r of 1/L times the transform, of length L, of the conjugate chirp at the indices -(N-1)..N-1 modulo L.
ComplexConstant chirp_spectrum(int n, int length, int r) {
  Wide re = 0, im = 0;
  for (int m = 1 - n; m < n; ++m) {
    const auto angle =
        turn(static_cast<long long>(exponent(m, n)) * length - static_cast<long long>(m) * r * n,
             static_cast<long long>(n) * length);
    re += cosine(angle).value;
    im += sine(angle).value;
  }
  const auto part = [&](const char* name, Wide value) {
    return constant(fmt::format("chirp {} {} {} {}", n, length, name, r), value / Wide(length));
  };
  return {part("re", re), part("im", im)};
}

}  // namespace

Lines LineTransform::bluestein(const Tree& tree, const Lines& x, Direction direction) {
  const Tree &there = tree.args[0], &back = tree.args[1];
  const int n = x.front().size(), length = length_of(there);
  const auto chirp = [&](int j) { return root_of_unity(turn(exponent(j, n), n), direction); };
  Lines padded(x.size(), Line(length));
  for (int i = 0; i < x.size(); ++i) {
    for (int j = 0; j < n; ++j) padded[i][j] = weighted(x[i][j], chirp(j));
  }
  Lines convolution = run(there, padded, direction);
  for (Line& line : convolution) {
    for (int r = 0; r < length; ++r)
      line[r] = weighted(line[r], directed(chirp_spectrum(n, length, r), direction));
  }
  convolution = run(back, convolution, opposite(direction));

  return tabulated(x.size(), [&](int i) {
    const auto product = [&](int k) { return Line{weighted(convolution[i][k], chirp(k))}; };
    const Lines products = each(tabulated(n, product), Direction::forward, [](const Points& z) { return z; });
    return tabulated(n, [&](int k) { return products[k][0]; });
  });
}

}  // namespace xfm::gen
