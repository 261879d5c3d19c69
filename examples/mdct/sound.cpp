#include "sound.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>

Sound::Sound(const std::string& path) {
  if (std::filesystem::is_directory(path)) throw std::runtime_error("Is a directory");
  if (!std::ifstream(path)) throw std::runtime_error(std::strerror(errno));
  file_.reset(sf_open(path.c_str(), SFM_READ, &info_));
  if (!file_) throw std::runtime_error(sf_strerror(nullptr));
  if (info_.frames == 0) throw std::runtime_error("holds no sound");
}

Sound::Sound(const std::string& path, int channels, int rate) {
  const auto folder = std::filesystem::path(path).parent_path();
  if (!folder.empty()) {
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (failure) throw std::runtime_error(failure.message());
  }
  info_.channels = channels;
  info_.samplerate = rate;
  info_.format = SF_FORMAT_WAV | SF_FORMAT_FLOAT;
  file_.reset(sf_open(path.c_str(), SFM_WRITE, &info_));
  if (!file_) throw std::runtime_error(sf_strerror(nullptr));
}

std::size_t Sound::read(std::span<float> interleaved) {
  const auto channels = static_cast<std::size_t>(info_.channels);
  const auto frames = static_cast<sf_count_t>(interleaved.size() / channels);
  const auto got = static_cast<std::size_t>(sf_readf_float(file_.get(), interleaved.data(), frames));
  std::fill(interleaved.begin() + static_cast<std::ptrdiff_t>(got * channels), interleaved.end(), 0.0F);
  return got;
}

void Sound::write(std::span<const float> interleaved) {
  const auto frames = static_cast<sf_count_t>(interleaved.size()) / info_.channels;
  if (sf_writef_float(file_.get(), interleaved.data(), frames) != frames)
    throw std::runtime_error(sf_strerror(file_.get()));
}
