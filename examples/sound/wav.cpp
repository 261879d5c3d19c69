#include "wav.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>

Wav::Wav(const std::string& path, int rate, int channels) {
  std::error_code ignored;  // opening the file reports what is wrong
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
  if (!std::ofstream(path)) throw std::runtime_error(std::strerror(errno));
  SF_INFO info{};
  info.samplerate = rate;
  info.channels = channels;
  info.format = SF_FORMAT_WAV | SF_FORMAT_FLOAT;
  file_.reset(sf_open(path.c_str(), SFM_WRITE, &info));
  if (!file_) throw std::runtime_error(sf_strerror(nullptr));
}

void Wav::write(std::span<const std::span<const float>> signals) {
  const std::size_t frames = signals.front().size();
  interleaved_.resize(frames * signals.size());
  for (std::size_t channel = 0; channel < signals.size(); ++channel)
    for (std::size_t i = 0; i < frames; ++i) interleaved_[i * signals.size() + channel] = signals[channel][i];
  const auto count = static_cast<sf_count_t>(frames);
  if (sf_writef_float(file_.get(), interleaved_.data(), count) != count)
    throw std::runtime_error(sf_strerror(file_.get()));
}

void Wav::close() {
  if (const int error = sf_close(file_.release()); error != SF_ERR_NO_ERROR)
    throw std::runtime_error(sf_error_number(error));
}
