// A round trip of a sound through the MDCT: a lossy codec without its bit stream.
#include <algorithm>
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

#include "lapped.h"
#include "sound/about.h"
#include "sound/audio.h"
#include "sound/progress.h"
#include "sound/wav.h"

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

  std::vector<float> operator()(std::vector<float> coefficients) {
    if (step_ == 0) return coefficients;
    for (float& value : coefficients) {
      const float level = std::nearbyint(value / step_);
      ++levels_[level];
      ++count_;
      value = level * step_;
    }
    return coefficients;
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

/// All channels, block by block.
class RoundTrip {
 public:
  RoundTrip(Audio& from, Wav& to, Dct4& transform, double step)
      : from_(from),
        to_(to),
        quantise_(step),
        lapped_(static_cast<std::size_t>(from.channels()), Lapped(transform)),
        block_(lapped_.size(), std::vector<float>(transform.length())),
        before_(block_),
        copy_(block_) {}

  // The output is one block behind the input, so a block of silence follows the last one.
  void run(Progress& progress) {
    std::size_t before = read(before_);
    pass(before_);
    for (double done = 0; before > 0;) {
      const std::size_t got = read(block_);
      pass(block_);
      write(before);
      done += static_cast<double>(before) / from_.rate();
      progress(done);
      before_.swap(block_);
      before = got;
    }
    to_.close();
  }

  const Powers& powers() const { return powers_; }
  const Quantiser& quantiser() const { return quantise_; }

 private:
  /// Silence follows the end of the sound.
  std::size_t read(Signals& signals) {
    const std::vector<std::span<float>> channels(signals.begin(), signals.end());
    const std::size_t got = from_.read(channels);
    for (auto& signal : signals)
      std::fill(signal.begin() + static_cast<std::ptrdiff_t>(got), signal.end(), 0.0F);
    return got;
  }

  void pass(const Signals& signals) {
    for (std::size_t c = 0; c < signals.size(); ++c) {
      auto coefficients = quantise_(lapped_[c].analyse(signals[c]));
      lapped_[c].synthesise(coefficients, copy_[c]);
    }
  }

  void write(std::size_t samples) {
    std::vector<std::span<const float>> channels;
    for (std::size_t c = 0; c < copy_.size(); ++c) {
      for (std::size_t i = 0; i < samples; ++i) powers_.add(before_[c][i], copy_[c][i]);
      channels.emplace_back(std::span(copy_[c]).first(samples));
    }
    to_.write(channels);
  }

  Audio& from_;
  Wav& to_;
  Quantiser quantise_;
  std::vector<Lapped> lapped_;
  Signals block_, before_, copy_;
  Powers powers_;
};

void run(const Options& options) {
  if (!(options.step >= 0)) throw std::runtime_error("the step must not be negative");
  Dct4 transform(options.length);
  Audio from = about(options.sound, [&] { return Audio(options.sound); });
  std::error_code nothing_there;
  if (std::filesystem::equivalent(options.sound, options.output, nothing_there))
    throw std::runtime_error(options.output + ": is the input file");
  Wav to = about(options.output, [&] { return Wav(options.output, from.rate(), from.channels()); });
  RoundTrip trip(from, to, transform, options.step);
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
