// Smooths a picture in the frequency domain, block by block: every block of 64 x 64 points is transformed by
// two batches, one of its rows and one of its columns, and the blocks are divided among threads.
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <exception>
#include <numbers>
#include <stdexcept>
#include <thread>
#include <vector>

#include "picture.h"
#include "xfm_many.h"

namespace {

constexpr int side = 64, hop = side / 2;
using Block = std::vector<xfm32fc>;

std::size_t index(int x, int y) { return static_cast<std::size_t>(y * side + x); }

/// Two windows that overlap by half add up to 1.
float window(int n) {
  const double s = std::sin(std::numbers::pi * (n + 0.5) / side);
  return static_cast<float>(s * s);
}

/// In place. Rows are contiguous, one after the other; columns are side by side.
using Transforms = xfmStatus (*)(const xfm32fc*, int64_t, int64_t, xfm32fc*, int64_t, int64_t, int32_t,
                                 int64_t, int32_t);
void transform(Transforms transforms, Block& block) {
  xfm32fc* const p = block.data();
  xfmStatus status = transforms(p, 1, side, p, 1, side, side, side, XFM_SCALE_INV_BY_N);
  if (status == xfmStsOk) status = transforms(p, side, 1, p, side, 1, side, side, XFM_SCALE_INV_BY_N);
  if (status != xfmStsOk) throw std::runtime_error(fmt::format("transform failed with status {}", status));
}

/// A Gaussian over both frequencies, which blurs the picture by a Gaussian of this many points.
std::vector<float> low_pass(float points) {
  std::vector<float> weights(static_cast<std::size_t>(side * side));
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const auto fx = static_cast<float>(std::min(x, side - x)),
                 fy = static_cast<float>(std::min(y, side - y));
      const float angle = 2 * std::numbers::pi_v<float> * points / side;
      weights[index(x, y)] = std::exp(-(fx * fx + fy * fy) * angle * angle / 2);
    }
  }
  return weights;
}

/// A point of the picture, which goes on beyond its edges as in a mirror.
float mirrored(Picture& picture, int x, int y) {
  const auto inside = [](int i, int size) {
    i = std::abs(i) % (2 * size);
    return i < size ? i : 2 * size - 1 - i;
  };
  return picture.at(inside(x, picture.width), inside(y, picture.height));
}

/// Blocks of every other row of blocks do not touch those of the next one but one, so threads take whole
/// rows.
void smooth_row(Picture& from, Picture& to, int top, const std::vector<float>& weights) {
  Block block(static_cast<std::size_t>(side * side));
  for (int left = -hop; left < from.width; left += hop) {
    for (int y = 0; y < side; ++y)
      for (int x = 0; x < side; ++x)
        block[index(x, y)] = {mirrored(from, left + x, top + y) * window(x) * window(y), 0};
    transform(xfmManyDFTFwd_CToC_32fc, block);
    for (std::size_t i = 0; i < block.size(); ++i)
      block[i] = {block[i].re * weights[i], block[i].im * weights[i]};
    transform(xfmManyDFTInv_CToC_32fc, block);
    for (int y = std::max(0, -top); y < side && top + y < to.height; ++y)
      for (int x = std::max(0, -left); x < side && left + x < to.width; ++x)
        to.at(left + x, top + y) += block[index(x, y)].re;
  }
}

/// Even rows of blocks first, then odd ones: within either, no two touch the same points of the result.
Picture smoothed(Picture& picture, float points, unsigned threads) {
  Picture result{picture.width, picture.height, std::vector<float>(picture.grey.size())};
  const std::vector<float> weights = low_pass(points);
  for (const int first : {-hop, 0}) {
    std::vector<std::jthread> team;
    for (unsigned t = 0; t < threads; ++t) {
      team.emplace_back([&, t] {
        for (int top = first + static_cast<int>(t) * side; top < picture.height;
             top += static_cast<int>(threads) * side)
          smooth_row(picture, result, top, weights);
      });
    }
  }
  return result;
}

double deviation(const Picture& a, const Picture& b) {
  double sum = 0;
  for (std::size_t i = 0; i < a.grey.size(); ++i)
    sum += std::pow(static_cast<double>(a.grey[i] - b.grey[i]), 2);
  return std::sqrt(sum / static_cast<double>(a.grey.size()));
}

struct Options {
  std::string from, before = "before.png", after = "after.png";
  float points = 1.5F;
  unsigned threads = std::max(1U, std::thread::hardware_concurrency());
};

void run(const Options& options) {
  Picture picture = options.from.empty() ? rings(1024, 768) : read_png(options.from);
  write_png(options.before, picture);
  const auto start = std::chrono::steady_clock::now();
  const Picture result = smoothed(picture, options.points, options.threads);
  const std::chrono::duration<double, std::milli> spent = std::chrono::steady_clock::now() - start;
  write_png(options.after, result);
  fmt::print("picture  {} x {}, smoothed by {} points\n", picture.width, picture.height, options.points);
  fmt::print("threads  {}, {:.1f} ms\n", options.threads, spent.count());
  fmt::print("change   {:.4f} of full scale\n", deviation(picture, result));
  fmt::print("written  {} and {}\n", options.before, options.after);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Options options;
    CLI::App app("Smooths a picture by two-dimensional transforms of its blocks.");
    app.add_option("picture", options.from, "PNG to read, instead of rings under noise");
    app.add_option("--before", options.before, "PNG to write: the picture in grey")->capture_default_str();
    app.add_option("--after", options.after, "PNG to write: the picture smoothed")->capture_default_str();
    app.add_option("--points", options.points, "How far the picture is smoothed; 0: not at all")
        ->check(CLI::Range(0.0, 16.0))
        ->capture_default_str();
    app.add_option("--threads", options.threads, "How many work")
        ->check(CLI::Range(1, 64))
        ->capture_default_str();
    CLI11_PARSE(app, argc, argv);
    run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "blocks: %s\n", error.what());
    return 1;
  }
}
