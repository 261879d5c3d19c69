// Fast convolution of two real sequences by Hartley transforms: a transform of each, one product per output,
// one transform back, all in real arithmetic and all by the same function (Bracewell 1983). Here a burst of a
// tone is convolved with the echoes of a room; both are padded with zeros so that nothing wraps around.
#include <xfm.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

namespace {

using Samples = std::vector<double>;

Samples hartley(const Samples& x, int flag) {
  Samples transform(x.size());
  const int length = static_cast<int>(x.size());
  if (xfmHartley_64f(x.data(), transform.data(), length, flag) != xfmStsOk)
    throw std::runtime_error(fmt::format("length {} is not supported, only 2 to 64", length));
  return transform;
}

/// If X and Y are the transforms, that of the convolution is
///   Z[k] = X[k] (Y[k] + Y[-k])/2 + X[-k] (Y[k] - Y[-k])/2.
Samples convolve(const Samples& x, const Samples& y) {
  const Samples a = hartley(x, XFM_SCALE_NONE), b = hartley(y, XFM_SCALE_NONE);
  Samples product(x.size());
  for (std::size_t k = 0; k < x.size(); ++k) {
    const std::size_t mirror = (x.size() - k) % x.size();
    product[k] = 0.5 * (a[k] * (b[k] + b[mirror]) + a[mirror] * (b[k] - b[mirror]));
  }
  return hartley(product, XFM_SCALE_INV_BY_N);
}

Samples directly(const Samples& x, const Samples& y) {
  Samples sum(x.size(), 0);
  for (std::size_t n = 0; n < x.size(); ++n)
    for (std::size_t m = 0; m < y.size(); ++m) sum[(n + m) % x.size()] += x[n] * y[m];
  return sum;
}

void show(const char* name, const Samples& x) {
  fmt::print("{:<9}", name);
  for (std::size_t n = 0; n < std::min<std::size_t>(x.size(), 12); ++n) fmt::print(" {:6.3f}", x[n]);
  fmt::print("{}\n", x.size() > 12 ? " ..." : "");
}

void run(int length) {
  const auto n = static_cast<std::size_t>(std::max(length, 0));
  Samples tone(n, 0), echoes(n, 0);
  for (std::size_t t = 0; t < (n + 1) / 2; ++t) tone[t] = std::sin(0.9 * static_cast<double>(t) + 0.5);
  for (std::size_t t = 0; t <= n / 2 && t < n; t += 3) echoes[t] = std::exp(-0.2 * static_cast<double>(t));
  const Samples heard = convolve(tone, echoes), expected = directly(tone, echoes);
  double error = 0;
  for (std::size_t t = 0; t < n; ++t) error = std::max(error, std::abs(heard[t] - expected[t]));
  show("tone", tone);
  show("echoes", echoes);
  show("heard", heard);
  fmt::print("{} samples, by three Hartley transforms; greatest difference from direct convolution {:.1e}\n",
             n, error);
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app("Convolves a tone with the echoes of a room, by Hartley transforms.");
  int length = 48;
  app.add_option("--length", length, "samples, 2 to 64")->capture_default_str();
  CLI11_PARSE(app, argc, argv);
  try {
    run(length);
  } catch (const std::exception& error) {
    fmt::print(stderr, "convolution: {}\n", error.what());
    return 1;
  }
  return 0;
}
