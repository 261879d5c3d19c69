// Sound files, read and written block by block.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

#include <sndfile.h>

/// All failures are std::runtime_error with a message of one line.
class Sound {
 public:
  /// Opens a file that exists.
  explicit Sound(const std::string& path);
  /// Makes a WAV of 32-bit floats, which keeps what 16 bits would drown.
  Sound(const std::string& path, int channels, int rate);

  int channels() const { return info_.channels; }
  int rate() const { return info_.samplerate; }
  std::int64_t frames() const { return info_.frames; }
  double seconds() const { return static_cast<double>(info_.frames) / info_.samplerate; }

  /// Reads whole frames, one sample a channel, and says how many; the rest of the block is silence.
  std::size_t read(std::span<float> interleaved);
  void write(std::span<const float> interleaved);

 private:
  struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
  };
  SF_INFO info_{};
  std::unique_ptr<SNDFILE, Close> file_;
};
