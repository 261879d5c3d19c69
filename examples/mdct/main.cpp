// A round trip of a sound through the MDCT: a lossy codec without its bit stream.
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <limits>
#include <span>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "sound/about.h"
#include "sound/audio.h"
#include "sound/progress.h"
#include "sound/wav.h"
#include "xfm.hpp"

namespace {

struct Options {
  // A reader's voice, 8.2 s, from Debian's pocketsphinx-testdata.
  std::string sound =
      "/usr/share/pocketsphinx/test/data/librivox/sense_and_sensibility_01_austen_64kb-0870.wav";
  std::string output = "mdct.wav";
  int length = 1024;
  double step = 0;
};

/// Rounds coefficients to multiples of a step, and counts the levels to estimate the size of a code for them.
class Quantiser {
 public:
  explicit Quantiser(double step) : step_(static_cast<float>(step)) {}

  void operator()(std::span<float> coefficients) {
    if (step_ == 0) return;
    for (float& value : coefficients) {
      const float level = std::nearbyint(value / step_);
      ++levels_[level];
      ++count_;
      value = level * step_;
    }
  }

  /// Entropy of the levels, each coded by itself.
  double bits_a_sample() const {
    double bits = 0;
    for (const auto& [level, times] : levels_) {
      const double share = static_cast<double>(times) / static_cast<double>(count_);
      bits -= share * std::log2(share);
    }
    return bits;
  }

 private:
  float step_;
  std::unordered_map<float, long> levels_;
  long count_ = 0;
};

/// Signal and noise, sample by sample.
struct Powers {
  double signal = 0, noise = 0;

  void add(float original, float copy) {
    const double x = original, error = static_cast<double>(copy) - x;
    signal += x * x;
    noise += error * error;
  }
  double ratio() const {
    return noise == 0 ? std::numeric_limits<double>::infinity() : 10 * std::log10(signal / noise);
  }
};

using Signals = std::vector<std::vector<float>>;

void check_length(int length) {
  constexpr int longest = 1 << 16;
  if (length < 4 || length > longest || !std::has_single_bit(static_cast<unsigned>(length)))
    throw std::runtime_error(fmt::format("length {} is not a power of two from 4 to {}", length, longest));
}

/// The sine window, and a factor that makes the transform orthogonal: rounding coefficients then makes as
/// much noise as rounding samples does.
xfm::mdct<float> transform_of(std::size_t length) {
  std::vector<float> window(2 * length);
  xfm::sine_window<float>(window);
  return xfm::check(xfm::mdct<float>(window, xfm::scale::by_sqrt_n));
}

/// All channels, block by block.
class RoundTrip {
 public:
  RoundTrip(Audio& from, Wav& to, int length, double step)
      : from_(from),
        to_(to),
        quantise_(step),
        length_(static_cast<std::size_t>(length)),
        frames_(static_cast<std::size_t>(from.channels()), std::vector<float>(2 * length_)),
        copies_(frames_.size(), std::vector<float>(length_)) {
    while (transforms_.size() < frames_.size()) transforms_.push_back(transform_of(length_));
  }

  // The output is one block behind the input, so a block of silence follows the last one.
  void run(Progress& progress) {
    std::size_t before = read();
    pass();
    for (double done = 0; before > 0;) {
      const std::size_t got = read();
      pass();
      write(before);
      done += static_cast<double>(before) / from_.rate();
      progress(done);
      before = got;
    }
    to_.close();
  }

  const Powers& powers() const { return powers_; }
  const Quantiser& quantiser() const { return quantise_; }

 private:
  /// The newer half of each frame becomes the older one. Silence precedes the sound, and follows it.
  std::size_t read() {
    std::vector<std::span<float>> blocks;
    for (auto& frame : frames_) {
      const auto newer = frame.begin() + static_cast<std::ptrdiff_t>(length_);
      std::copy(newer, frame.end(), frame.begin());
      std::fill(newer, frame.end(), 0.0F);
      blocks.emplace_back(newer, frame.end());
    }
    return from_.read(blocks);
  }

  void pass() {
    for (std::size_t c = 0; c < frames_.size(); ++c) {
      xfm::check(transforms_[c].forward(frames_[c], copies_[c]));
      quantise_(copies_[c]);
      xfm::check(transforms_[c].inverse(copies_[c], copies_[c]));
    }
  }

  /// The older halves of the frames are the originals of what is finished.
  void write(std::size_t samples) {
    std::vector<std::span<const float>> channels;
    for (std::size_t c = 0; c < copies_.size(); ++c) {
      for (std::size_t i = 0; i < samples; ++i) powers_.add(frames_[c][i], copies_[c][i]);
      channels.emplace_back(std::span(copies_[c]).first(samples));
    }
    to_.write(channels);
  }

  Audio& from_;
  Wav& to_;
  Quantiser quantise_;
  std::size_t length_;
  std::vector<xfm::mdct<float>> transforms_;
  Signals frames_, copies_;
  Powers powers_;
};

void run(const Options& options) {
  if (!(options.step >= 0)) throw std::runtime_error("the step must not be negative");
  check_length(options.length);
  Audio from = about(options.sound, [&] { return Audio(options.sound); });
  std::error_code nothing_there;
  if (std::filesystem::equivalent(options.sound, options.output, nothing_there))
    throw std::runtime_error(options.output + ": is the input file");
  Wav to = about(options.output, [&] { return Wav(options.output, from.rate(), from.channels()); });
  RoundTrip trip(from, to, options.length, options.step);
  Progress progress(from.seconds());
  about(options.output, [&] { trip.run(progress); });
  progress.finish();

  fmt::print("sound    {}\n", options.sound);
  fmt::print("         {} channel{}, {} Hz, {:.2f} s\n", from.channels(), from.channels() == 1 ? "" : "s",
             from.rate(), from.seconds());
  fmt::print("blocks   {} samples, {} coefficients each\n", options.length, options.length);
  if (options.step > 0) {
    const double bits = trip.quantiser().bits_a_sample();
    fmt::print("step     {}: {:.3f} bits per sample, {:.1f} kbit/s by entropy\n", options.step, bits,
               bits * from.rate() * from.channels() / 1000);
  } else {
    fmt::print("step     none\n");
  }
  fmt::print("SNR      {:.2f} dB\n", trip.powers().ratio());
  fmt::print("copy     {}\n", options.output);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Options options;
    CLI::App app("Sends a sound through the MDCT and back, and rounds its coefficients on the way.");
    app.add_option("sound", options.sound, "WAV, FLAC, OGG or any other format that libsndfile reads")
        ->capture_default_str();
    app.add_option("-o,--output", options.output, "WAV to write")->capture_default_str();
    app.add_option("-n,--length", options.length, "coefficients per block, a power of two")
        ->capture_default_str();
    app.add_option("-s,--step", options.step,
                   "round coefficients to multiples of this; full scale is 1; 0: do not round")
        ->capture_default_str();
    CLI11_PARSE(app, argc, argv);
    run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "mdct: %s\n", error.what());
    return 1;
  }
}
