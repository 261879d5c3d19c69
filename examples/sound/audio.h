// A sound file as real signals, one per channel.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include <sndfile.h>

/// An open sound file. All failures are std::runtime_error with a one-line message.
class Audio {
 public:
  explicit Audio(const std::string& path);

  int channels() const { return info_.channels; }
  int rate() const { return info_.samplerate; }
  std::int64_t samples() const { return info_.frames; }
  double seconds() const { return static_cast<double>(info_.frames) / info_.samplerate; }
  std::string format() const;

  /// Reads the next samples of the first channels, each into its own array; the arrays are equally long.
  /// Returns how many there were: fewer than requested only at the end.
  std::size_t read(std::span<const std::span<float>> signals);

 private:
  struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
  };

  SF_INFO info_{};
  std::unique_ptr<SNDFILE, Close> file_;
  std::vector<float> interleaved_;
};
