#include "audio.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>

Audio::Audio(const std::string& path) {
  if (std::filesystem::is_directory(path)) throw std::runtime_error("Is a directory");
  if (!std::ifstream(path)) throw std::runtime_error(std::strerror(errno));

  file_.reset(sf_open(path.c_str(), SFM_READ, &info_));
  if (!file_) throw std::runtime_error(sf_strerror(nullptr));
  if (info_.frames == 0) throw std::runtime_error("holds no sound");
}

std::string Audio::format() const {
  SF_FORMAT_INFO name{.format = info_.format & SF_FORMAT_TYPEMASK, .name = nullptr, .extension = nullptr};
  sf_command(nullptr, SFC_GET_FORMAT_INFO, &name, sizeof name);
  return name.name ? name.name : "unknown format";
}

std::size_t Audio::read(std::span<const std::span<float>> signals) {
  const auto channels = static_cast<std::size_t>(info_.channels);
  const std::size_t wanted = signals.front().size();
  interleaved_.resize(wanted * channels);
  const auto got = static_cast<std::size_t>(
      sf_readf_float(file_.get(), interleaved_.data(), static_cast<sf_count_t>(wanted)));

  for (std::size_t channel = 0; channel < signals.size(); ++channel)
    for (std::size_t i = 0; i < got; ++i) signals[channel][i] = interleaved_[i * channels + channel];
  return got;
}
