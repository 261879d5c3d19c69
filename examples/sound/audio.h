// A sound file as one complex signal.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include <sndfile.h>

#include "xfm.h"

/// An open sound file. Two real signals travel as one complex one: the left channel is the real part, the
/// right channel the imaginary part. A single channel leaves the imaginary part zero; channels after the
/// second are not read. All failures are std::runtime_error with a message of one line.
class Audio {
 public:
  explicit Audio(const std::string& path);

  int channels() const { return info_.channels; }
  int rate() const { return info_.samplerate; }
  std::int64_t samples() const { return info_.frames; }
  double seconds() const { return static_cast<double>(info_.frames) / info_.samplerate; }
  std::string format() const;

  /// Reads the next samples, and says how many: fewer than asked for only at the end.
  std::size_t read(std::span<xfm32fc> block);

 private:
  struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
  };

  SF_INFO info_{};
  std::unique_ptr<SNDFILE, Close> file_;
  std::vector<float> interleaved_;
};
