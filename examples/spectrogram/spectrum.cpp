#include "spectrum.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>
#include <stdexcept>

#include <fmt/format.h>

#include "xfm_many.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::int64_t batch =
    128;  // windows between two readings of the clock: few enough to stay in the cache

std::vector<float> hann(int length) {
  std::vector<float> window(static_cast<std::size_t>(length));
  for (std::size_t n = 0; n < window.size(); ++n)
    window[n] = static_cast<float>(
        0.5 - 0.5 * std::cos(2 * std::numbers::pi * (static_cast<double>(n) + 0.5) / length));
  return window;
}

/// Elements of a half spectrum in the CCS layout: bins 0 to length/2 as pairs.
int spectrum_elements(int length) { return 2 * (length / 2 + 1); }

/// Copies the windows of a stretch of signal side by side, each weighted, with room for its spectrum.
void cut(const float* signal, std::int64_t frames, int hop, const std::vector<float>& window, float* out) {
  const int stride = spectrum_elements(static_cast<int>(window.size()));
  for (std::int64_t frame = 0; frame < frames; ++frame, signal += hop, out += stride)
    for (std::size_t n = 0; n < window.size(); ++n) out[n] = signal[n] * window[n];
}

/// The time of a call, with nothing else between the two readings of the clock.
template <class Call>
std::chrono::nanoseconds timed(Call call) {
  const auto start = Clock::now();
  const xfmStatus status = call();
  const auto spent = Clock::now() - start;
  if (status != xfmStsOk) throw std::runtime_error(fmt::format("transform failed with status {}", status));
  return spent;
}

/// All transforms of a stretch by one call, in place: contiguous frames, with room for their spectra.
xfmStatus transform(float* data, std::int64_t frames, int length) {
  const int distance = spectrum_elements(length);
  return xfmManyDFTFwd_RToCCS_32f(data, 1, distance, data, 1, distance, length, frames, XFM_SCALE_FWD_BY_N);
}

/// The same one by one, to compare the times.
xfmStatus transform_singly(float* data, std::int64_t frames, int length) {
  xfmStatus status = xfmStsOk;
  for (std::int64_t frame = 0; frame < frames && status == xfmStsOk;
       ++frame, data += spectrum_elements(length))
    status = xfmDFTFwd_RToCCS_32f(data, data, length, XFM_SCALE_FWD_BY_N);
  return status;
}

/// In CCS every bin is a complex number, even bin 0 and that of half the sampling rate.
void add_powers(const float* spectrum, Spectrogram& picture, std::size_t channel, int column) {
  for (int k = 0; k < picture.bins; ++k) {
    const float re = *spectrum++, im = *spectrum++;
    picture.power[channel][static_cast<std::size_t>(k * picture.columns + column)] += re * re + im * im;
  }
}

/// The rest of each signal after its first samples.
std::vector<std::span<float>> behind(std::vector<std::vector<float>>& signals, std::size_t first) {
  std::vector<std::span<float>> rest;
  rest.reserve(signals.size());
  for (auto& signal : signals) rest.push_back(std::span(signal).subspan(first));
  return rest;
}

Spectrogram blank(const Audio& audio, int length, int columns) {
  Spectrogram picture;
  picture.length = length;
  picture.hop = std::max(1, length / 4);
  picture.bins = length / 2 + 1;
  picture.frames = (audio.samples() - length) / picture.hop + 1;
  picture.columns = static_cast<int>(std::min<std::int64_t>(columns, picture.frames));
  const std::vector<float> nothing(static_cast<std::size_t>(picture.bins) *
                                   static_cast<std::size_t>(picture.columns));
  picture.power.assign(static_cast<std::size_t>(std::min(2, audio.channels())), nothing);
  return picture;
}

/// Sums become means: of the windows of each column, and such that a sine of full scale has power 1. The mean
/// of a Hann window is 1/2, and a sine has half of its amplitude at k.
void normalise(Spectrogram& picture, const std::vector<std::int64_t>& windows) {
  for (auto& power : picture.power)
    for (std::size_t i = 0; i < power.size(); ++i)
      power[i] *= 16.0F / static_cast<float>(windows[i % windows.size()]);
}

}  // namespace

bool served(int length) {
  // The length is tested first, so null pointers will do.
  return xfmDFTFwd_RToCCS_32f(nullptr, nullptr, length, XFM_SCALE_NONE) != xfmStsBadSize;
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
  const auto stretch = static_cast<std::size_t>(length + (batch - 1) * picture.hop);
  std::vector<std::vector<float>> signals(picture.power.size(), std::vector<float>(stretch));
  std::vector<float> spectra(static_cast<std::size_t>(spectrum_elements(length) * batch)), copy;

  std::int64_t done = 0;
  std::size_t kept = 0;  // the tail of the last stretch, which the next windows overlap
  while (done < picture.frames) {
    progress(static_cast<double>(done * picture.hop) / audio.rate());
    const std::size_t filled = kept + audio.read(behind(signals, kept));
    if (filled < window.size())
      throw std::runtime_error(fmt::format("damaged: the sound ends after {:.2f} s of {:.2f} s",
                                           static_cast<double>(done * picture.hop) / audio.rate(),
                                           audio.seconds()));

    const std::int64_t frames = (static_cast<std::int64_t>(filled) - length) / picture.hop + 1;
    const auto column_of = [&](std::int64_t frame) {
      return static_cast<int>((done + frame) * picture.columns / picture.frames);
    };
    for (std::size_t channel = 0; channel < signals.size(); ++channel) {
      cut(signals[channel].data(), frames, picture.hop, window, spectra.data());
      copy = spectra;
      picture.singly += timed([&] { return transform_singly(copy.data(), frames, length); });
      picture.inside += timed([&] { return transform(spectra.data(), frames, length); });
      for (std::int64_t frame = 0; frame < frames; ++frame)
        add_powers(&spectra[static_cast<std::size_t>(frame * spectrum_elements(length))], picture, channel,
                   column_of(frame));
    }
    for (std::int64_t frame = 0; frame < frames; ++frame)
      ++windows[static_cast<std::size_t>(column_of(frame))];

    done += frames;
    const std::size_t used = static_cast<std::size_t>(frames) * static_cast<std::size_t>(picture.hop);
    for (auto& signal : signals)
      std::copy(signal.begin() + static_cast<std::ptrdiff_t>(used),
                signal.begin() + static_cast<std::ptrdiff_t>(filled), signal.begin());
    kept = filled - used;
  }
  normalise(picture, windows);
  return picture;
}
