// Filters a sound file by forward transform, product and inverse transform, and reports the time and the
// accuracy of the transforms.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "convolution.h"
#include "fir.h"
#include "sound/about.h"
#include "sound/audio.h"
#include "sound/progress.h"
#include "sound/wav.h"
#include "xfm.h"

namespace {

struct Options {
  // A reader's voice, from Debian's pocketsphinx-testdata.
  std::string sound =
      "/usr/share/pocketsphinx/test/data/librivox/sense_and_sensibility_01_austen_64kb-0870.wav";
  std::string output = "filtered.wav";
  double low = 0, high = 2000;  ///< Hz
  int taps = 33, length = 64;
};

/// What was done, in all channels.
struct Work {
  std::int64_t blocks = 0, samples = 0;
  std::chrono::nanoseconds spent{};
  double worst = 0, squares = 0;  ///< differences from the direct convolution
};

/// One channel, filtered in both ways.
class Channel {
 public:
  Channel(const std::vector<float>& h, int length, std::size_t stretch)
      : x(stretch), y(stretch), exact_(stretch), fast_(h, length), direct_(h) {}

  void filter(Work& work) {
    fast_.run(x, y);
    direct_.run(x, exact_);
    for (std::size_t n = 0; n < y.size(); ++n) {
      const double difference = double{y[n]} - exact_[n];
      work.worst = std::max(work.worst, std::abs(difference));
      work.squares += difference * difference;
    }
    work.samples += static_cast<std::int64_t>(y.size());
  }

  void add_cost(Work& work) const {
    work.blocks += fast_.blocks();
    work.spent += fast_.spent();
  }

  std::vector<float> x, y;  ///< the current stretch, and its filtered samples

 private:
  std::vector<double> exact_;
  FastConvolution fast_;
  DirectConvolution direct_;
};

/// Reads the next samples of all channels, with zeros after the last one.
void read(Audio& audio, std::vector<Channel>& channels, std::int64_t done) {
  std::vector<std::span<float>> signals;
  for (Channel& channel : channels) {
    std::ranges::fill(channel.x, 0.0F);
    signals.emplace_back(channel.x);
  }
  const auto left = std::max<std::int64_t>(0, audio.samples() - done);
  const auto expected = std::min(left, static_cast<std::int64_t>(channels.front().x.size()));
  if (left > 0 && static_cast<std::int64_t>(audio.read(signals)) < expected)
    throw std::runtime_error(fmt::format("damaged: the sound ends after {:.2f} s at most, of {:.2f} s",
                                         static_cast<double>(done + expected) / audio.rate(),
                                         audio.seconds()));
}

/// The output is as long as the input and in time with it: the samples of the filter's delay are left out.
Work filter(Audio& audio, Wav& wav, const Options& options, const std::vector<float>& h) {
  constexpr int blocks = 128;  // few enough to stay in the cache
  const auto stretch = static_cast<std::size_t>(blocks * (options.length - options.taps + 1));
  std::vector<Channel> channels(static_cast<std::size_t>(audio.channels()),
                                Channel(h, options.length, stretch));

  Work work;
  Progress progress(audio.seconds());
  const std::int64_t delay = (options.taps - 1) / 2, end = audio.samples() + delay;
  for (std::int64_t done = 0; done < end; done += static_cast<std::int64_t>(stretch)) {
    progress(static_cast<double>(done) / audio.rate());
    about(options.sound, [&] { read(audio, channels, done); });
    const auto first = static_cast<std::size_t>(std::max<std::int64_t>(0, delay - done));
    const auto last = std::min(stretch, static_cast<std::size_t>(end - done));
    std::vector<std::span<const float>> outputs;
    for (Channel& channel : channels) {
      channel.filter(work);
      outputs.emplace_back(std::span(channel.y).first(last).subspan(std::min(first, last)));
    }
    about(options.output, [&] { wav.write(outputs); });
  }
  for (const Channel& channel : channels) channel.add_cost(work);
  about(options.output, [&] { wav.close(); });
  progress.finish();
  return work;
}

void report(const Options& options, const Audio& audio, const Work& work) {
  const auto ns = static_cast<double>(work.spent.count());
  fmt::print("sound    {}\n", options.sound);
  fmt::print("         {}, {} channel{}, {} Hz, {:.2f} s\n", audio.format(), audio.channels(),
             audio.channels() == 1 ? "" : "s", audio.rate(), audio.seconds());
  fmt::print("filter   {:.0f} to {:.0f} Hz, {} taps\n", options.low, options.high, options.taps);
  fmt::print("blocks   {} of {} samples, each xfmDFTFwd_RToPerm_32f and xfmDFTInv_PermToR_32f of {} points\n",
             work.blocks, options.length - options.taps + 1, options.length);
  fmt::print("time     {:.1f} ns per block, {:.2f} ms in all: {:.0f} times as fast as the sound plays\n",
             ns / static_cast<double>(work.blocks), ns * 1e-6, audio.seconds() * 1e9 / ns);
  fmt::print("error    {:.1e} at most, {:.1e} r.m.s., against direct convolution in double\n", work.worst,
             std::sqrt(work.squares / static_cast<double>(work.samples)));
  fmt::print("written  {}\n", options.output);
}

void check(const Options& options) {
  // The length is tested first, so null pointers will do.
  if (xfmDFTFwd_RToPerm_32f(nullptr, nullptr, options.length, XFM_SCALE_NONE) == xfmStsBadSize)
    throw std::runtime_error(fmt::format("length {} is not supported", options.length));
  if (options.taps < 1 || options.taps % 2 == 0 || options.taps > options.length)
    throw std::runtime_error(
        fmt::format("{} taps: must be an odd number, {} at most", options.taps, options.length));
  if (!(0 <= options.low && options.low < options.high))
    throw std::runtime_error(fmt::format("{} to {} Hz is not a band", options.low, options.high));
  std::error_code missing;  // a missing file is another file
  if (std::filesystem::equivalent(options.sound, options.output, missing))
    throw std::runtime_error(options.output + ": is the input file");
}

void run(const Options& options) {
  check(options);
  Audio audio = about(options.sound, [&] { return Audio(options.sound); });
  const double half = 0.5;
  const auto h = band_pass(std::min(half, options.low / audio.rate()),
                           std::min(half, options.high / audio.rate()), options.taps);
  Wav wav = about(options.output, [&] { return Wav(options.output, audio.rate(), audio.channels()); });
  report(options, audio, filter(audio, wav, options, h));
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Options options;
    CLI::App app("Filters a sound file by overlap and add: real transform, product, inverse real transform.");
    app.add_option("sound", options.sound, "WAV, FLAC, OGG or any other format that libsndfile reads")
        ->capture_default_str();
    app.add_option("-o,--output", options.output, "WAV to write")->capture_default_str();
    app.add_option("--from", options.low, "lower edge of the band in Hz")->capture_default_str();
    app.add_option("--to", options.high, "upper edge of the band in Hz")->capture_default_str();
    app.add_option("-t,--taps", options.taps, "number of taps of the filter, odd")->capture_default_str();
    app.add_option("-n,--length", options.length, "points of a transform")->capture_default_str();
    CLI11_PARSE(app, argc, argv);
    run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "filter: %s\n", error.what());
    return 1;
  }
}
