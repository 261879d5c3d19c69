// Short-time spectra of one or two channels, by real transforms.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <vector>

#include "sound/audio.h"

/// The result of the analysis: for each channel the mean power of every bin 0..length/2 in each column of
/// time. A sine of full scale in the middle of a bin has the power 1.
struct Spectrogram {
  int length = 0;  ///< samples in a window, points of a transform
  int hop = 0;     ///< samples from one window to the next
  int bins = 0;
  int columns = 0;
  std::int64_t frames = 0;            ///< windows of a channel, each one transform
  std::chrono::nanoseconds inside{};  ///< time spent in batches of transforms
  std::chrono::nanoseconds singly{};  ///< time of the same transforms one by one
  std::vector<std::vector<float>>
      power;  ///< left and right, or the only one: power[channel][bin * columns + column]

  int channels() const { return static_cast<int>(power.size()); }

  float at(int channel, int bin, int column) const {
    return power[static_cast<std::size_t>(channel)][static_cast<std::size_t>(bin * columns + column)];
  }
};

/// Whether the library supports a length, and the longest that it supports: nothing is assumed.
bool served(int length);
int longest_length();

/// Analyses the whole file with Hann windows that overlap by three quarters, into at most `columns` columns.
/// Calls `progress` now and then with the seconds of sound that are done.
Spectrogram analyse(Audio& audio, int length, int columns, const std::function<void(double)>& progress);
