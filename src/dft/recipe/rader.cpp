// Rader's algorithm for a prime N (Rader 1968): with g a primitive root, the inputs taken as a[q] = x[g^q]
// and the outputs as X[g^-p] are joined by a cyclic convolution of length M = N-1, done by two transforms of
// length M around a pointwise product with the spectrum of the roots of unity,
//   b[q] = exp(-2 pi i g^-q/N),  B[r] = (1/M) sum_q b[q] exp(-2 pi i q r/M).
// 1/M is folded into B, and x0 joins at the bin of frequency zero, so that the inverse spreads it over all
// outputs.
#include "gen/algorithms/transposition.h"
#include "gen/math/number.h"
#include "gen/math/rader_spectrum.h"
#include "src/dft/recipe/lane_real.h"
#include "src/dft/recipe/packed.h"
#include "src/dft/recipe/rules.h"

namespace xfm::dft {

using gen::Complex;
using gen::ComplexConstant;
using gen::Tree;
using gen::turn;

Batch Packed::rader(const Tree& inner, const Batch& x, Direction direction) {
  const int m = length_of(inner), n = m + 1;
  const gen::Root root = choices_.root(n);
  Batch permuted(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) {
    for (int q = 0; q < m; ++q)
      permuted[i].push_back(x[i][static_cast<std::size_t>(gen::power_modulo(root.g, q, n))]);
  }
  const Batch spectrum = transform(inner, permuted, direction);
  const auto factor = [&](int r) { return turned(gen::rader_spectrum(n, root, r), direction); };

  // The bin of frequency zero gives X0 = x0 + A[0] and Y[0] = x0 + B[0]*A[0].
  Batch zero;
  for (std::size_t i = 0; i < x.size(); ++i) zero.push_back({x[i][0], spectrum[i][0]});
  zero = each(
      zero,
      [](const Points& z) {
        return Points{z[0] + z[1], z[0]};
      },
      direction);
  Batch joined;
  for (std::size_t i = 0; i < x.size(); ++i)
    joined.push_back({zero[i][1], weighted(spectrum[i][0], factor(0))});
  joined = each(
      joined, [](const Points& z) { return Points{z[0] + z[1]}; }, direction);

  Batch product;
  for (std::size_t i = 0; i < x.size(); ++i) {
    Line& line = product.emplace_back(Line{joined[i][0]});
    for (int r = 1; r < m; ++r) line.push_back(weighted(spectrum[i][static_cast<std::size_t>(r)], factor(r)));
  }
  const Batch convolution = transform(inner, product, opposite(direction));

  Batch out(x.size(), Line(static_cast<std::size_t>(n)));
  const int inverse = gen::inverse_modulo(root.g, n);
  for (std::size_t i = 0; i < x.size(); ++i) {
    out[i][0] = zero[i][0];
    for (int p = 0; p < m; ++p) {
      const auto k = static_cast<std::size_t>(gen::power_modulo(inverse, p + root.shift, n));
      out[i][k] = convolution[i][static_cast<std::size_t>(p)];
    }
  }
  return out;
}

// On real sequences: the inner transform gives A[r] = C[r] - i*S[r] for r = 0..M/2. Since g^(M/2) = -1,
// B[M-r] is conj(B[r]) for even r and -conj(B[r]) for odd r; so even r give the cosine part P of the outputs,
// odd r the sine part Q, and the two never meet before the join. With beta, gamma the doubled parts of B[r],
//   z1 = beta*C + gamma*S,  z2 = gamma*C - beta*S
// are the weights of cos and sin in the inverse transform, which is the forward network transposed.
Points LaneReal::rader(const Tree& inner, const Points& x) const {
  const int m = length_of(inner), n = m + 1, h = m / 2;
  const gen::Root root = choices_.root(n);
  Points permuted;
  for (int q = 0; q < m; ++q)
    permuted.push_back(x[static_cast<std::size_t>(gen::power_modulo(root.g, q, n))]);
  const Points spectrum = transform(inner, permuted);

  gen::Network forward(1);
  Points inputs;
  for (int q = 0; q < m; ++q) inputs.push_back({forward.load(q), {}});
  const Points outputs = LaneReal(choices_, true).transform(inner, inputs);
  gen::Transposition inverse(forward);

  const auto part = [](int r, const Complex& z) { return r % 2 == 0 ? z : gen::times_i(z); };
  const Complex sum = spectrum[0];
  inverse.send(outputs[0].p, x[0] + Complex(gen::rader_spectrum(n, root, 0).re * sum));
  for (int r = 1; r < h; ++r) {
    const ComplexConstant b = gen::rader_spectrum(n, root, r, 2);
    const auto at = static_cast<std::size_t>(r);
    const Complex c{spectrum[at].p, {}}, s{-spectrum[at].q, {}};
    const Complex z1 = gen::sum({b.re * c, b.im * s}), z2 = gen::sum({b.im * c, -(b.re * s)});
    inverse.send(outputs[at].p, part(r, r % 2 == 0 ? z1 : z2));
    inverse.send(-outputs[at].q, part(r, r % 2 == 0 ? -z2 : z1));
  }
  const ComplexConstant b = gen::rader_spectrum(n, root, h);
  const Complex middle{spectrum[static_cast<std::size_t>(h)].p, {}};
  inverse.send(outputs[static_cast<std::size_t>(h)].p, part(h, (h % 2 == 0 ? b.re : b.im) * middle));
  const Points convolution = inverse.run(m);

  Points out(x.size());
  out[0] = x[0] + sum;
  const int step = gen::inverse_modulo(root.g, n);
  for (int p = 0; p < m; ++p) {
    out[static_cast<std::size_t>(gen::power_modulo(step, p + root.shift, n))] =
        convolution[static_cast<std::size_t>(p)];
  }
  return out;
}

}  // namespace xfm::dft
