#include "spectrum.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <stdexcept>

#include <fmt/format.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::int64_t batch =
    128;  // windows between two looks at the clock: few enough to stay in the cache

std::vector<float> hann(int length) {
  std::vector<float> window(static_cast<std::size_t>(length));
  for (std::size_t n = 0; n < window.size(); ++n)
    window[n] = static_cast<float>(
        0.5 - 0.5 * std::cos(2 * std::numbers::pi * (static_cast<double>(n) + 0.5) / length));
  return window;
}

/// Lays the windows of a stretch of signal side by side, each weighted.
void cut(const xfm32fc* signal, std::int64_t frames, int hop, const std::vector<float>& window,
         xfm32fc* out) {
  for (std::int64_t frame = 0; frame < frames; ++frame, signal += hop)
    for (std::size_t n = 0; n < window.size(); ++n)
      *out++ = {signal[n].re * window[n], signal[n].im * window[n]};
}

/// All transforms of a batch, in place, with nothing else between the two looks at the clock.
std::chrono::nanoseconds transform(xfm32fc* data, std::int64_t frames, int length) {
  xfmStatus status = xfmStsOk;
  const auto start = Clock::now();
  for (std::int64_t frame = 0; frame < frames && status == xfmStsOk; ++frame, data += length)
    status = xfmDFTFwd_CToC_32fc(data, data, length, XFM_SCALE_FWD_BY_N);
  const auto spent = Clock::now() - start;
  if (status != xfmStsOk) throw std::runtime_error(fmt::format("transform failed with status {}", status));
  return spent;
}

/// Adds the power of both channels. With Z the transform of left + i right, the symmetry of real signals
/// gives 2 left[k] = Z[k] + conj Z[N-k] and 2 i right[k] = Z[k] - conj Z[N-k].
void add_powers(const xfm32fc* z, Spectrogram& picture, int column) {
  for (int k = 0; k < picture.bins; ++k) {
    const xfm32fc a = z[k];
    const xfm32fc b = z[(picture.length - k) % picture.length];
    const auto at = static_cast<std::size_t>(k * picture.columns + column);
    picture.power[0][at] += (a.re + b.re) * (a.re + b.re) + (a.im - b.im) * (a.im - b.im);
    picture.power[1][at] += (a.re - b.re) * (a.re - b.re) + (a.im + b.im) * (a.im + b.im);
  }
}

Spectrogram blank(const Audio& audio, int length, int columns) {
  Spectrogram picture;
  picture.length = length;
  picture.hop = std::max(1, length / 4);
  picture.bins = length / 2 + 1;
  picture.frames = (audio.samples() - length) / picture.hop + 1;
  picture.columns = static_cast<int>(std::min<std::int64_t>(columns, picture.frames));
  for (auto& power : picture.power)
    power.assign(static_cast<std::size_t>(picture.bins) * static_cast<std::size_t>(picture.columns), 0.0F);
  return picture;
}

/// Sums become means: of the windows of each column, and such that a sine of full scale has power 1. The mean
/// of a Hann window is 1/2, a sine has half of its amplitude at k, and the sums above hold twice the
/// spectrum.
void normalise(Spectrogram& picture, const std::vector<std::int64_t>& windows) {
  for (auto& power : picture.power)
    for (std::size_t i = 0; i < power.size(); ++i)
      power[i] *= 4.0F / static_cast<float>(windows[i % windows.size()]);
}

}  // namespace

bool served(int length) {
  // The length is tested first, so null pointers are enough to ask.
  return xfmDFTFwd_CToC_32fc(nullptr, nullptr, length, XFM_SCALE_NONE) != xfmStsBadSize;
}

int longest_length() {
  int length = 64;
  while (length > 0 && !served(length)) --length;
  return length;
}

Spectrogram analyse(Audio& audio, int length, int columns, const std::function<void(double)>& progress) {
  if (audio.samples() < length)
    throw std::runtime_error(fmt::format("shorter than one window of {} samples", length));

  Spectrogram picture = blank(audio, length, columns);
  const std::vector<float> window = hann(length);
  std::vector<std::int64_t> windows(static_cast<std::size_t>(picture.columns));
  std::vector<xfm32fc> signal(static_cast<std::size_t>(length + (batch - 1) * picture.hop));
  std::vector<xfm32fc> spectra(static_cast<std::size_t>(length * batch));

  std::int64_t done = 0;
  std::size_t kept = 0;  // the tail of the last stretch, which the next windows overlap
  while (done < picture.frames) {
    progress(static_cast<double>(done * picture.hop) / audio.rate());
    const std::size_t filled = kept + audio.read(std::span(signal).subspan(kept));
    if (filled < window.size())
      throw std::runtime_error(fmt::format("damaged: the sound ends after {:.2f} s of {:.2f} s",
                                           static_cast<double>(done * picture.hop) / audio.rate(),
                                           audio.seconds()));

    const std::int64_t frames = (static_cast<std::int64_t>(filled) - length) / picture.hop + 1;
    cut(signal.data(), frames, picture.hop, window, spectra.data());
    picture.inside += transform(spectra.data(), frames, length);
    for (std::int64_t frame = 0; frame < frames; ++frame) {
      const auto column = static_cast<std::size_t>((done + frame) * picture.columns / picture.frames);
      add_powers(&spectra[static_cast<std::size_t>(frame * length)], picture, static_cast<int>(column));
      ++windows[column];
    }

    done += frames;
    const std::ptrdiff_t used = static_cast<std::ptrdiff_t>(frames) * picture.hop;
    std::copy(signal.begin() + used, signal.begin() + static_cast<std::ptrdiff_t>(filled), signal.begin());
    kept = filled - static_cast<std::size_t>(used);
  }
  normalise(picture, windows);
  return picture;
}
