// Convolution of an endless signal with a short filter, block by block: y[n] = sum over k of h[k] x[n-k].
#pragma once

#include <chrono>
#include <cstdint>
#include <span>
#include <vector>

/// By overlap and add: every block of the signal is filtered by itself, through its spectrum, and the part
/// that extends past its end is added to the next block.
class FastConvolution {
 public:
  /// By real transforms of `length` points, at least as many as there are taps.
  FastConvolution(const std::vector<float>& h, int length);

  /// Samples per transform: together with the filter's tail they fill its points.
  int block() const { return block_; }
  /// The next samples, a whole number of blocks.
  void run(std::span<const float> x, std::span<float> y);

  std::int64_t blocks() const { return blocks_; }
  std::chrono::nanoseconds spent() const { return spent_; }  ///< in run()

 private:
  int length_, block_;
  std::vector<float> spectrum_;  ///< of the filter, in the Perm layout
  std::vector<float> points_;    ///< of the current block
  std::vector<float> tail_;      ///< what the last block adds to this one
  std::int64_t blocks_ = 0;
  std::chrono::nanoseconds spent_{};
};

/// By the definition, in double: the reference for the fast one.
class DirectConvolution {
 public:
  explicit DirectConvolution(const std::vector<float>& h);

  void run(std::span<const float> x, std::span<double> y);

 private:
  std::vector<double> h_;
  std::vector<double> signal_;  ///< the last taps-1 samples and the current ones
};
