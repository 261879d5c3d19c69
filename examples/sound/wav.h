// A WAV file of 32-bit floating-point samples, to be written.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <vector>

#include <sndfile.h>

/// All failures are std::runtime_error with a message of one line.
class Wav {
 public:
  /// Folders that the path names are made.
  Wav(const std::string& path, int rate, int channels);

  /// The next samples of all channels; the arrays are equally long.
  void write(std::span<const std::span<const float>> signals);
  /// Says whether all of it has reached the file.
  void close();

 private:
  struct Close {
    void operator()(SNDFILE* file) const { sf_close(file); }
  };

  std::unique_ptr<SNDFILE, Close> file_;
  std::vector<float> interleaved_;
};
