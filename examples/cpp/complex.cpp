// Complex DFTs: one whose length is in the type, and one whose length is known at run time.
#include <array>
#include <cstdio>
#include <vector>

#include "xfm.hpp"

// A tone of three periods in 64 samples. The call is one jump to the kernel of 64 points, and cannot fail.
std::array<std::complex<float>, 64> spectrum_of_tone() {
  std::array<std::complex<float>, 64> data;
  for (std::size_t n = 0; n < 64; ++n)
    data[n] = std::polar(1.0F, 2 * 3.14159265F * 3 * static_cast<float>(n) / 64);
  xfm::dft_forward<64>(data, data, xfm::scale::forward_by_n);
  return data;
}

// Any length from 2 to 64: what cannot be excluded by types is a status.
bool invert(std::vector<std::complex<double>>& data) {
  return xfm::dft_inverse(data, data, xfm::scale::inverse_by_n) == xfm::status::ok;
}

int main() {
  const auto tone = spectrum_of_tone();
  std::printf("bin 3: %.3f\n", static_cast<double>(std::abs(tone[3])));
  std::vector<std::complex<double>> served(12), unserved(65);
  std::printf("12 points: %s, 65 points: %s\n", invert(served) ? "done" : "refused",
              invert(unserved) ? "done" : "refused");
}
