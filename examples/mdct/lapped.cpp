#include "lapped.h"

#include <bit>
#include <cmath>
#include <numbers>
#include <stdexcept>

#include <fmt/format.h>

Dct4::Dct4(int length)
    : length_(static_cast<std::size_t>(length)), scale_(std::sqrt(2.0F / static_cast<float>(length))) {
  constexpr int longest = 1 << 16;
  xfmDCT4State_32f* state = nullptr;
  // The library accepts some lengths that give no DCT-IV; powers of two are safe.
  if (length < 4 || length > longest || !std::has_single_bit(static_cast<unsigned>(length)))
    throw std::runtime_error(fmt::format("length {} is not a power of two from 4 to {}", length, longest));
  if (xfmDCT4InitAlloc_32f(&state, length) != xfmStsOk)
    throw std::runtime_error("no memory for the transform");
  state_.reset(state);
}

void Dct4::operator()(std::vector<float>& x) {
  xfmDCT4_32f(x.data(), x.data(), state_.get());
  for (float& value : x) value *= scale_;
}

Lapped::Lapped(Dct4& transform)
    : transform_(transform),
      window_(transform.length()),
      before_(transform.length()),
      tail_(transform.length()),
      coefficients_(transform.length()) {
  const auto n = static_cast<double>(window_.size());
  for (std::size_t i = 0; i < window_.size(); ++i)
    window_[i] = static_cast<float>(std::sin(std::numbers::pi * (static_cast<double>(i) + 0.5) / (2 * n)));
}

// If the previous block is (a, b) and this one (c, d), each times its half of the window, the input of the
// DCT-IV is (-reverse(c) - d, a - reverse(b)).
const std::vector<float>& Lapped::analyse(std::span<const float> block) {
  const std::size_t n = window_.size(), half = n / 2;
  for (std::size_t i = 0; i < half; ++i) {
    const std::size_t mirror = n - 1 - i, inner = half - 1 - i, outer = half + i;
    coefficients_[i] = -window_[outer] * block[inner] - window_[inner] * block[outer];
    coefficients_[outer] = window_[i] * before_[i] - window_[mirror] * before_[mirror];
  }
  before_.assign(block.begin(), block.end());
  transform_(coefficients_);
  return coefficients_;
}

// The DCT-IV returns (p, q) = (-reverse(c) - d, a - reverse(b)). This unfolds to (q, -reverse(q)) for the
// previous block and (-reverse(p), -p) for this one; after the window the mirrored parts of neighbours
// cancel.
void Lapped::synthesise(std::vector<float>& coefficients, std::span<float> block) {
  const std::size_t n = window_.size(), half = n / 2;
  transform_(coefficients);
  for (std::size_t i = 0; i < half; ++i) {
    const std::size_t mirror = n - 1 - i;
    const float q = coefficients[half + i];
    block[i] = tail_[i] + window_[i] * q;
    block[mirror] = tail_[mirror] - window_[mirror] * q;
  }
  for (std::size_t i = 0; i < half; ++i) {
    const std::size_t inner = half - 1 - i, outer = half + i;
    const float p = coefficients[i];
    tail_[inner] = -window_[outer] * p;
    tail_[outer] = -window_[inner] * p;
  }
}
