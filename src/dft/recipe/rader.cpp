// Rader's algorithm for a prime N (Rader 1968): with g a primitive root, the inputs taken as a[q] = x[g^q]
// and the outputs as X[g^-p] are joined by a cyclic convolution of length M = N-1, done by two transforms of
// length M around a pointwise product with the spectrum of the roots of unity,
//   b[q] = exp(-2 pi i g^-q/N),  B[r] = (1/M) sum_q b[q] exp(-2 pi i q r/M).
// 1/M is folded into B, and x0 joins at the bin of frequency zero, so that the inverse spreads it over all
// outputs.
#include "gen/number.h"
#include "src/dft/recipe/packed.h"
#include "src/dft/recipe/rules.h"

namespace xfm::dft {

using gen::Complex;
using gen::ComplexConstant;
using gen::Element;
using gen::Tree;
using gen::turn;
using gen::Wide;

namespace {

// |B[0]| is 1/M exactly, and B[M/2] is real or imaginary; the other halves are true numbers.
ComplexConstant root_spectrum(int n, int g, int r) {
  const int m = n - 1, inverse = gen::inverse_modulo(g, n);
  Wide re = 0, im = 0;
  for (int q = 0; q < m; ++q) {
    // exp(-2 pi i (g'^q/N + q r/M)) as one exact fraction of the circle
    const auto angle =
        turn(static_cast<long long>(gen::power_modulo(inverse, q, n)) * m + static_cast<long long>(q) * r * n,
             static_cast<long long>(n) * m);
    re += gen::cosine(angle).value;
    im -= gen::sine(angle).value;
  }
  const auto half = [&](const char* part, Wide value) -> gen::Constant {
    if (gen::wide_abs(value) < Wide(1e-25)) return {"0", 0};
    return gen::constant("rader " + std::to_string(n) + " " + part + " " + std::to_string(r),
                         value / Wide(m));
  };
  return {half("re", re), half("im", im)};
}

}  // namespace

Batch Packed::rader(const Tree& inner, const Batch& x, Direction direction) {
  const int m = length_of(inner), n = m + 1, g = gen::smallest_primitive_root(n);
  Batch permuted(x.size());
  for (std::size_t i = 0; i < x.size(); ++i) {
    for (int q = 0; q < m; ++q)
      permuted[i].push_back(x[i][static_cast<std::size_t>(gen::power_modulo(g, q, n))]);
  }
  const Batch spectrum = transform(inner, permuted, direction);
  const auto factor = [&](int r) { return turned(root_spectrum(n, g, r), direction); };

  // The bin of frequency zero gives X0 = x0 + A[0] and Y[0] = x0 + B[0]*A[0].
  Batch zero;
  for (std::size_t i = 0; i < x.size(); ++i) zero.push_back({x[i][0], spectrum[i][0]});
  zero = each(
      zero,
      [](const Points& z, Five) {
        return Points{z[0] + z[1], z[0]};
      },
      direction);
  Batch joined;
  for (std::size_t i = 0; i < x.size(); ++i)
    joined.push_back({zero[i][1], weighted(spectrum[i][0], factor(0))});
  joined = each(
      joined, [](const Points& z, Five) { return Points{z[0] + z[1]}; }, direction);

  Batch product;
  for (std::size_t i = 0; i < x.size(); ++i) {
    Line& line = product.emplace_back(Line{joined[i][0]});
    for (int r = 1; r < m; ++r) line.push_back(weighted(spectrum[i][static_cast<std::size_t>(r)], factor(r)));
  }
  const Batch convolution = transform(inner, product, opposite(direction));

  Batch out(x.size(), Line(static_cast<std::size_t>(n)));
  const int inverse = gen::inverse_modulo(g, n);
  for (std::size_t i = 0; i < x.size(); ++i) {
    out[i][0] = zero[i][0];
    for (int p = 0; p < m; ++p) {
      const auto k = static_cast<std::size_t>(gen::power_modulo(inverse, p, n));
      out[i][k] = convolution[i][static_cast<std::size_t>(p)];
    }
  }
  return out;
}

}  // namespace xfm::dft
