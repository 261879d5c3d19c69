// The Walsh-Hadamard transform, with its order in angle brackets: 2^9 samples.
#include <array>
#include <cstdio>

#include "xfm.hpp"

// The Walsh function that is most like the samples. The buffer saves an allocation in every call.
std::size_t most_alike(const std::array<float, 512>& samples, xfm::wht_buffer<float>& buffer) {
  std::array<float, 512> spectrum;
  xfm::wht<9>(samples, spectrum, xfm::scale::none, buffer);
  std::size_t best = 0;
  for (std::size_t k = 1; k < spectrum.size(); ++k)
    if (spectrum[k] > spectrum[best]) best = k;
  return best;
}

int main() {
  xfm::wht_buffer<float> buffer;
  std::array<float, 512> samples;
  for (std::size_t n = 0; n < samples.size(); ++n) samples[n] = n % 4 < 2 ? 1.0F : -1.0F;
  std::printf("function %zu\n", most_alike(samples, buffer));
}
