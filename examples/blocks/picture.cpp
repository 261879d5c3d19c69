#include "picture.h"

#include <png.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <stdexcept>

namespace {

/// libpng's own description of a picture, and what it holds.
struct Png {
  png_image image{};
  Png() { image.version = PNG_IMAGE_VERSION; }
  Png(const Png&) = delete;
  Png& operator=(const Png&) = delete;
  ~Png() { png_image_free(&image); }

  void check(int success) const {
    if (success == 0) throw std::runtime_error(image.message);
  }
};

}  // namespace

Picture read_png(const std::string& path) {
  Png png;
  png.check(png_image_begin_read_from_file(&png.image, path.c_str()));
  png.image.format = PNG_FORMAT_GRAY;
  std::vector<png_byte> bytes(PNG_IMAGE_SIZE(png.image));
  png.check(png_image_finish_read(&png.image, nullptr, bytes.data(), 0, nullptr));
  Picture picture{static_cast<int>(png.image.width), static_cast<int>(png.image.height), {}};
  for (const png_byte byte : bytes) picture.grey.push_back(static_cast<float>(byte) / 255.0F);
  return picture;
}

void write_png(const std::string& path, const Picture& picture) {
  Png png;
  png.image.width = static_cast<png_uint_32>(picture.width);
  png.image.height = static_cast<png_uint_32>(picture.height);
  png.image.format = PNG_FORMAT_GRAY;
  std::vector<png_byte> bytes;
  for (const float grey : picture.grey)
    bytes.push_back(static_cast<png_byte>(std::lround(255.0F * std::clamp(grey, 0.0F, 1.0F))));
  png.check(png_image_write_to_file(&png.image, path.c_str(), 0, bytes.data(), 0, nullptr));
}

Picture rings(int width, int height) {
  Picture picture{width, height,
                  std::vector<float>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))};
  std::mt19937 random(1);
  std::normal_distribution<float> noise(0.0F, 0.15F);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const auto dx = static_cast<float>(x - width / 2), dy = static_cast<float>(y - height / 2);
      const float grey =
          0.5F + 0.3F * std::cos((dx * dx + dy * dy) / static_cast<float>(2 * width)) + noise(random);
      picture.at(x, y) = std::round(255.0F * std::clamp(grey, 0.0F, 1.0F)) / 255.0F;
    }
  }
  return picture;
}
