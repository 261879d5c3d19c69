// The picture of a spectrogram, drawn by gnuplot.
#pragma once

#include <string>

#include "spectrum.h"

/// What the picture says besides the data.
struct Caption {
  std::string title;
  int channels = 1;  ///< panels: one, or left above right
  int rate = 0;      ///< samples a second
  double seconds = 0;
};

/// Widest picture in columns of time, each drawn as one pixel.
constexpr int widest = 1400;

/// Writes a PNG. Each bin is a flat band as high as its share of the frequency axis: nothing is interpolated.
void draw(const Spectrogram& spectrogram, const Caption& caption, const std::string& path);
