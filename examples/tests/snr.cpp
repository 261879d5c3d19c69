// Prints how far a copy is from a sound: the signal-to-noise ratio in dB, over all channels.
#include <cmath>
#include <stdexcept>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <sndfile.h>

namespace {

std::vector<float> samples(const std::string& path) {
  SF_INFO info{};
  SNDFILE* const file = sf_open(path.c_str(), SFM_READ, &info);
  if (file == nullptr) throw std::runtime_error(path);
  std::vector<float> values(static_cast<std::size_t>(info.frames * info.channels));
  sf_readf_float(file, values.data(), info.frames);
  sf_close(file);
  return values;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const auto original = samples(argv[1]), copy = samples(argv[2]);
  if (original.size() != copy.size()) return 3;
  double signal = 0, noise = 0;
  for (std::size_t i = 0; i < original.size(); ++i) {
    const double x = static_cast<double>(original[i]), error = static_cast<double>(copy[i]) - x;
    signal += x * x;
    noise += error * error;
  }
  fmt::print("{:.2f}\n", 10 * std::log10(signal / noise));
}
