// Makes a sound file for the tests: one second at 16 kHz, 2 kHz on the left, 5 kHz on the right, both at half
// of full scale. The extension of the file selects the format.
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include <sndfile.h>

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const std::string path = argv[1];
  const int channels = std::stoi(argv[2]);
  constexpr int rate = 16000;

  std::vector<float> sound;
  for (int n = 0; n < rate; ++n)
    for (int channel = 0; channel < channels; ++channel) {
      const double frequency = channel == 0 ? 2000 : 5000;
      sound.push_back(static_cast<float>(0.5 * std::sin(2 * std::numbers::pi * frequency * n / rate)));
    }

  SF_INFO info{};
  info.samplerate = rate;
  info.channels = channels;
  info.format = path.ends_with(".ogg")    ? SF_FORMAT_OGG | SF_FORMAT_VORBIS
                : path.ends_with(".flac") ? SF_FORMAT_FLAC | SF_FORMAT_PCM_16
                                          : SF_FORMAT_WAV | SF_FORMAT_PCM_16;
  SNDFILE* file = sf_open(path.c_str(), SFM_WRITE, &info);
  if (!file) return 1;
  const sf_count_t written = sf_writef_float(file, sound.data(), rate);
  return sf_close(file) == 0 && written == rate ? 0 : 1;
}
