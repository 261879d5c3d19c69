// Bluestein's chirp algorithm (Bluestein 1970): with j*k = (j^2 + k^2 - (k-j)^2)/2 a transform of odd length
// N becomes a convolution with a chirp, done by two transforms of a convenient length L >= 2N-1:
//   h[j] = exp(-2 pi i e(j)/N),  e(j) = j^2 (N+1)/2 mod N,  X[k] = h[k] sum_j (x[j] h[j]) conj(h[k-j]).
// The zeros behind the N inputs are never read or multiplied, and outputs beyond the first N are never
// computed.
#include <fmt/format.h>

#include "src/dft/recipe/packed.h"
#include "src/dft/recipe/rules.h"

namespace xfm::dft {

using gen::ComplexConstant;
using gen::Tree;
using gen::turn;
using gen::Wide;

namespace {

int exponent(int j, int n) { return gen::modulo(static_cast<long long>(j) * j * ((n + 1) / 2), n); }

// (1/L) times the transform of length L of the conjugate chirp, which stands at the indices -(N-1)..N-1
// modulo L.
ComplexConstant chirp_spectrum(int n, int length, int r) {
  Wide re = 0, im = 0;
  for (int m = 1 - n; m < n; ++m) {
    const auto angle =
        turn(static_cast<long long>(exponent(m, n)) * length - static_cast<long long>(m) * r * n,
             static_cast<long long>(n) * length);
    re += gen::cosine(angle).value;
    im += gen::sine(angle).value;
  }
  const auto part = [&](const char* name, Wide value) {
    return gen::constant(fmt::format("chirp {} {} {} {}", n, length, name, r), value / Wide(length));
  };
  return {part("re", re), part("im", im)};
}

}  // namespace

Batch Packed::bluestein(const Tree& tree, const Batch& x, Direction direction) {
  const Tree &there = tree.args[0], &back = tree.args[1];
  const int n = static_cast<int>(x.front().size()), length = length_of(there);
  const auto chirp = [&](int j) { return root(turn(exponent(j, n), n), direction); };
  Batch padded;
  for (const Line& line : x) {
    Line& u = padded.emplace_back(static_cast<std::size_t>(length));
    for (int j = 0; j < n; ++j)
      u[static_cast<std::size_t>(j)] = weighted(line[static_cast<std::size_t>(j)], chirp(j));
  }
  Batch convolution = transform(there, padded, direction);
  for (Line& line : convolution) {
    for (int r = 0; r < length; ++r) {
      auto& bin = line[static_cast<std::size_t>(r)];
      bin = weighted(bin, turned(chirp_spectrum(n, length, r), direction));
    }
  }
  convolution = transform(back, convolution, opposite(direction));

  Batch out;
  for (const Line& line : convolution) {
    Line& outputs = out.emplace_back();
    Batch products;
    for (int k = 0; k < n; ++k) products.push_back({weighted(line[static_cast<std::size_t>(k)], chirp(k))});
    for (const Line& product : each(
             products, [](const Points& z) { return z; }, Direction::forward)) {
      outputs.push_back(product[0]);
    }
  }
  return out;
}

}  // namespace xfm::dft
