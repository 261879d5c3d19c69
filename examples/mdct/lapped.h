// The modified discrete cosine transform (MDCT) by the DCT-IV: overlapping blocks, as many coefficients as
// samples, and the samples recovered from the coefficients (Princen and Bradley 1986; Malvar 1992).
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "xfm.h"

/// A DCT-IV scaled to be its own inverse. Throws std::runtime_error for an unsupported length.
class Dct4 {
 public:
  explicit Dct4(int length);

  std::size_t length() const { return length_; }
  /// In place.
  void operator()(std::vector<float>& x);

 private:
  struct Free {
    void operator()(xfmDCT4State_32f* state) const { xfmDCT4Free_32f(state); }
  };
  std::unique_ptr<xfmDCT4State_32f, Free> state_;
  std::size_t length_;
  float scale_;
};

/// One channel, block by block. All blocks have the length of the transform.
class Lapped {
 public:
  explicit Lapped(Dct4& transform);

  /// The coefficients of this block and the previous one, which is silence at first.
  const std::vector<float>& analyse(std::span<const float> block);

  /// The block before the last one analysed, from the coefficients, which may have been changed.
  void synthesise(std::vector<float>& coefficients, std::span<float> block);

 private:
  Dct4& transform_;
  std::vector<float> window_;  ///< a quarter turn of the sine, over one block
  std::vector<float> before_;  ///< the last block that was analysed
  std::vector<float> tail_;    ///< what the last synthesis adds to the next one
  std::vector<float> coefficients_;
};
