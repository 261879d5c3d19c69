// Draws the spectrogram of a sound file, and reports the time of the transforms.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include "picture.h"
#include "sound/about.h"
#include "sound/audio.h"
#include "sound/progress.h"
#include "spectrum.h"

namespace {

struct Options {
  // An orchestra in stereo, 310 s: first movement of the second Brandenburg concerto, from Debian's
  // gamine-data.
  std::string sound = "/usr/share/games/gamine/sounds/BachJSBrandenburgConcertNo2inFMajorBWV1047mvmt1.ogg";
  std::string picture = "spectrogram.png";
  int length = longest_length();
};

struct Band {
  double low, high;  ///< Hz
  double level;      ///< dB
};

/// The band with the most power over the whole time.
Band loudest(const Spectrogram& s, int channel, int rate) {
  Band best{};
  double most = -1;
  for (int bin = 0; bin < s.bins; ++bin) {
    double sum = 0;
    for (int column = 0; column < s.columns; ++column) sum += static_cast<double>(s.at(channel, bin, column));
    if (sum <= most) continue;
    most = sum;
    best = {.low = std::max(0.0, (bin - 0.5) * rate / s.length),
            .high = std::min(0.5 * rate, (bin + 0.5) * rate / s.length),
            .level = 10 * std::log10(std::max(1e-12, sum / s.columns))};
  }
  return best;
}

void report(const Options& options, const Audio& audio, const Spectrogram& s) {
  const auto ns = static_cast<double>(s.inside.count()), singly = static_cast<double>(s.singly.count());
  fmt::print("sound    {}\n", options.sound);
  fmt::print("         {}, {} channel{}, {} Hz, {:.2f} s\n", audio.format(), audio.channels(),
             audio.channels() == 1 ? "" : "s", audio.rate(), audio.seconds());
  fmt::print("frames   {} of {} samples, one every {}\n", s.frames, s.length, s.hop);
  const std::int64_t transforms = s.frames * s.channels();
  fmt::print("batches  {} transforms by xfmManyDFTFwd_RToCCS_32f, {:.1f} ns each, {:.2f} ms in all\n",
             transforms, ns / static_cast<double>(transforms), ns * 1e-6);
  fmt::print("gain     {:.2f} times as fast as single calls\n", singly / ns);
  for (int channel = 0; channel < s.channels(); ++channel) {
    const Band band = loudest(s, channel, audio.rate());
    fmt::print("loudest  {:.0f} to {:.0f} Hz, {:.1f} dB{}\n", band.low, band.high, band.level,
               s.channels() == 1 ? ""
               : channel == 0    ? ", left"
                                 : ", right");
  }
  fmt::print("picture  {}\n", options.picture);
}

void run(const Options& options) {
  if (!served(options.length))
    throw std::runtime_error(
        fmt::format("length {} is not supported, the longest is {}", options.length, longest_length()));

  Audio audio = about(options.sound, [&] { return Audio(options.sound); });
  const Spectrogram spectrogram = about(options.sound, [&] {
    Progress progress(audio.seconds());
    auto result = analyse(audio, options.length, widest, std::ref(progress));
    progress.finish();
    return result;
  });
  const Caption caption{.title = std::filesystem::path(options.sound).filename().string(),
                        .channels = spectrogram.channels(),
                        .rate = audio.rate(),
                        .seconds = audio.seconds()};
  about(options.picture, [&] { draw(spectrogram, caption, options.picture); });
  report(options, audio, spectrogram);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Options options;
    CLI::App app("Draws the spectrogram of a sound file: every window of a channel is one real transform.");
    app.add_option("sound", options.sound, "WAV, FLAC, OGG or any other format that libsndfile reads")
        ->capture_default_str();
    app.add_option("-o,--output", options.picture, "PNG to write")->capture_default_str();
    app.add_option("-n,--length", options.length, "samples in a window, points of a transform")
        ->capture_default_str();
    CLI11_PARSE(app, argc, argv);
    run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "spectrogram: %s\n", error.what());
    return 1;
  }
}
