// Convolution of an endless signal with a short filter, piece by piece: y[n] = sum over k of h[k] x[n-k].
#pragma once

#include <chrono>
#include <cstdint>
#include <span>
#include <vector>

/// By overlap and add: every block of the signal is filtered by itself, through its spectrum, and what it
/// leaves behind its end is added to the next block.
class FastConvolution {
 public:
  /// Through real transforms of `length` points, which must be at least as many as the taps.
  FastConvolution(const std::vector<float>& h, int length);

  /// Samples that one transform takes: with the filter's tail they fill its points.
  int block() const { return block_; }
  /// The next samples, a whole number of blocks.
  void run(std::span<const float> x, std::span<float> y);

  std::int64_t blocks() const { return blocks_; }
  std::chrono::nanoseconds spent() const { return spent_; }  ///< in run()

 private:
  int length_, block_;
  std::vector<float> spectrum_;  ///< of the filter, in the Perm layout
  std::vector<float> points_;    ///< of the block at work
  std::vector<float> tail_;      ///< what the last block has left for this one
  std::int64_t blocks_ = 0;
  std::chrono::nanoseconds spent_{};
};

/// By its definition, in double: what the fast one is compared with.
class DirectConvolution {
 public:
  explicit DirectConvolution(const std::vector<float>& h);

  void run(std::span<const float> x, std::span<double> y);

 private:
  std::vector<double> h_;
  std::vector<double> signal_;  ///< the last taps-1 samples and those at work
};
