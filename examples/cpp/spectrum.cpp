// Real DFTs: half spectra know their layout.
#include <array>
#include <cstdio>

#include "xfm.hpp"

// The third harmonic of 48 samples, removed in the frequency domain, in the memory of the samples alone: Pack
// and Perm have as many elements as there are samples.
void remove_third_harmonic(std::array<float, 48>& samples) {
  xfm::perm_view<float, 48> spectrum(samples);
  xfm::dft_forward<48>(samples, spectrum, xfm::scale::inverse_by_n);
  spectrum.set_bin(3, 0);
  xfm::dft_inverse<48>(spectrum, samples, xfm::scale::inverse_by_n);
}

// CCS has every bin as a complex number, the first and the last one too.
float power(const std::array<float, 48>& samples) {
  xfm::ccs<float, 48> spectrum;
  xfm::dft_forward<48>(samples, spectrum, xfm::scale::forward_by_n);
  float sum = 0;
  for (const std::complex<float> bin : spectrum) sum += 2 * std::norm(bin);
  return sum - std::norm(spectrum.bin(0)) -
         std::norm(spectrum.bin(24));  // the only bins that have no mirror image
}

// The same numbers in another order.
xfm::pack<float, 48> to_pack(const xfm::ccs<float, 48>& spectrum) {
  xfm::pack<float, 48> packed;
  xfm::convert(spectrum, packed);
  return packed;
}

int main() {
  std::array<float, 48> samples;
  for (std::size_t n = 0; n < 48; ++n)
    samples[n] = n % 16 < 8 ? 1.0F : -1.0F;  // the third harmonic and its harmonics
  const float before = power(samples);
  remove_third_harmonic(samples);
  xfm::ccs<float, 48> spectrum;
  xfm::dft_forward<48>(samples, spectrum, xfm::scale::none);
  std::printf("power %.3f before, %.3f after\n", static_cast<double>(before),
              static_cast<double>(power(samples)));
  std::printf("bin 9: %.3f in CCS, %.3f in Pack\n", static_cast<double>(std::abs(spectrum.bin(9))),
              static_cast<double>(std::abs(to_pack(spectrum).bin(9))));
}
