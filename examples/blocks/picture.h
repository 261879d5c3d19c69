// Grey pictures, and PNG files of them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

struct Picture {
  int width = 0, height = 0;
  std::vector<float> grey;  ///< 0 to 1, row by row

  float& at(int x, int y) {
    return grey[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
  }
};

/// Any PNG, in grey. Throws with the reason if it cannot be read.
Picture read_png(const std::string& path);
void write_png(const std::string& path, const Picture& picture);

/// Rings that become narrower towards the edges, under noise.
Picture rings(int width, int height);
