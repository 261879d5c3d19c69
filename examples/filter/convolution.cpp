#include "convolution.h"

#include <algorithm>
#include <stdexcept>

#include <fmt/format.h>

#include "xfm.h"

namespace {

void check(xfmStatus status) {
  if (status != xfmStsOk) throw std::runtime_error(fmt::format("transform failed with status {}", status));
}

/// x times h, bin by bin, both in the Perm layout: first the bins without an imaginary part, bin 0 and for
/// even lengths that of half the sampling rate, then the others as pairs.
void multiply(const std::vector<float>& h, std::vector<float>& x) {
  std::size_t e = 0;
  for (const std::size_t real = x.size() % 2 == 0 ? 2 : 1; e < real; ++e) x[e] *= h[e];
  for (; e < x.size(); e += 2) {
    const float re = x[e], im = x[e + 1];
    x[e] = re * h[e] - im * h[e + 1];
    x[e + 1] = re * h[e + 1] + im * h[e];
  }
}

}  // namespace

FastConvolution::FastConvolution(const std::vector<float>& h, int length)
    : length_(length),
      block_(length - static_cast<int>(h.size()) + 1),
      spectrum_(h),
      points_(static_cast<std::size_t>(length)),
      tail_(h.size() - 1) {
  spectrum_.resize(points_.size());
  check(xfmDFTFwd_RToPerm_32f(spectrum_.data(), spectrum_.data(), length, XFM_SCALE_NONE));
}

// The block's samples are padded with zeros before the transform, so that the filtered block, which is longer
// by the filter's tail, does not wrap around.
void FastConvolution::run(std::span<const float> x, std::span<float> y) {
  const auto start = std::chrono::steady_clock::now();
  const auto block = static_cast<std::size_t>(block_);
  for (std::size_t at = 0; at < x.size(); at += block, ++blocks_) {
    const auto samples = x.subspan(at, block);
    std::fill(std::copy(samples.begin(), samples.end(), points_.begin()), points_.end(), 0.0F);
    check(xfmDFTFwd_RToPerm_32f(points_.data(), points_.data(), length_, XFM_SCALE_NONE));
    multiply(spectrum_, points_);
    check(xfmDFTInv_PermToR_32f(points_.data(), points_.data(), length_, XFM_SCALE_INV_BY_N));
    for (std::size_t i = 0; i < tail_.size(); ++i) points_[i] += tail_[i];
    std::copy_n(points_.begin(), block, y.begin() + static_cast<std::ptrdiff_t>(at));
    std::copy(points_.begin() + block_, points_.end(), tail_.begin());
  }
  spent_ += std::chrono::steady_clock::now() - start;
}

DirectConvolution::DirectConvolution(const std::vector<float>& h)
    : h_(h.rbegin(), h.rend()), signal_(h.size() - 1) {}

void DirectConvolution::run(std::span<const float> x, std::span<double> y) {
  const std::size_t kept = h_.size() - 1;
  signal_.resize(kept);
  signal_.insert(signal_.end(), x.begin(), x.end());
  for (std::size_t n = 0; n < y.size(); ++n) {
    double sum = 0;
    for (std::size_t k = 0; k < h_.size(); ++k) sum += h_[k] * signal_[n + k];
    y[n] = sum;
  }
  std::copy(signal_.end() - static_cast<std::ptrdiff_t>(kept), signal_.end(), signal_.begin());
}
