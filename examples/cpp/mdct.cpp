// The MDCT: overlapping frames of a signal, and the signal again, one block late.
#include <cmath>
#include <cstdio>
#include <vector>

#include "xfm.hpp"

constexpr std::size_t block = 256;

// What a codec does with the coefficients stands between the two directions.
double greatest_error(const std::vector<float>& signal) {
  std::vector<float> window(2 * block), coefficients(block), copy(block);
  xfm::kaiser_bessel_derived_window<float>(window, 4);
  auto transform = xfm::check(xfm::mdct<float>(window, xfm::scale::by_sqrt_n));
  double greatest = 0;
  for (std::size_t start = 0; start + 2 * block <= signal.size(); start += block) {
    xfm::check(transform.forward(std::span(signal).subspan(start, 2 * block), coefficients));
    xfm::check(transform.inverse(coefficients, copy));
    if (start == 0) continue;  // the first block has no frame before it
    for (std::size_t n = 0; n < block; ++n)
      greatest = std::fmax(greatest, std::fabs(static_cast<double>(copy[n] - signal[start + n])));
  }
  return greatest;
}

int main() {
  std::vector<float> signal(20 * block);
  for (std::size_t n = 0; n < signal.size(); ++n)
    signal[n] = std::sin(0.001F * static_cast<float>(n * n % 6283));
  std::printf("%s\n", greatest_error(signal) < 1e-6 ? "the same signal" : "another signal");
}
