// The picture of a spectrogram, drawn by gnuplot.
#pragma once

#include <string>

#include "spectrum.h"

/// The text around the data.
struct Caption {
  std::string title;
  int channels = 1;  ///< panels: one, or left above right
  int rate = 0;      ///< samples a second
  double seconds = 0;
};

/// Width of the picture in columns of time, at most; each is one pixel.
constexpr int widest = 1400;

/// Writes a PNG. Each bin is a flat band as high as its part of the frequency axis: nothing is interpolated.
void draw(const Spectrogram& spectrogram, const Caption& caption, const std::string& path);
