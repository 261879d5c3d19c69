// Writes a WAV file of 32-bit floating-point samples.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include <sndfile.h>

/// All failures are std::runtime_error with a one-line message.
class Wav {
 public:
  /// Creates the folders in the path.
  Wav(const std::string& path, int rate, int channels);

  /// Writes the next samples of all channels; the arrays are equally long.
  void write(std::span<const std::span<const float>> signals);
  /// Throws unless everything has reached the file.
  void close();

 private:
  struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
  };

  std::unique_ptr<SNDFILE, Close> file_;
  std::vector<float> interleaved_;
};
