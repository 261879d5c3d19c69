#include "picture.h"

#include <sys/wait.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include <fmt/format.h>

namespace {

// Sizes in pixels.
constexpr int left = 90, right = 130, top = 74, bottom = 62, gap = 18, data_height = 760;
constexpr int canvas_width = left + widest + right;

constexpr float silence = 1e-12F;  // power below which all is -120 dB

// "Inferno": equal steps in decibels look like equal steps, even in print and to the colour-blind.
constexpr const char* palette =
    "0 '#000004', 1 '#1b0c42', 2 '#4b0c6b', 3 '#781c6d', 4 '#a52c60', 5 '#cf4446', 6 '#ed6925', 7 '#fb9a06', "
    "8 '#f7d03c', 9 '#fcffa4'";

float decibels(float power) { return 10 * std::log10(std::max(silence, power)); }

struct Range {
  double low, high;
};

/// From the loudest cell down to where only two in a hundred are quieter: 20 to 80 dB, in multiples of five.
Range colours(const Spectrogram& s, int channels) {
  std::vector<float> all;
  for (int channel = 0; channel < channels; ++channel)
    for (const float power : s.power[static_cast<std::size_t>(channel)]) all.push_back(decibels(power));
  const auto quiet = all.begin() + static_cast<std::ptrdiff_t>(all.size() / 50);
  std::nth_element(all.begin(), quiet, all.end());
  const double high = 5 * std::ceil(*std::max_element(quiet, all.end()) / 5.0);
  const double low = 5 * std::floor(*quiet / 5.0);
  return {std::clamp(low, high - 80, high - 20), high};
}

std::string quoted(const std::string& text) {
  std::string out = "'";
  for (const char c : text)
    out += c == '\'' ? "''" : std::string(1, static_cast<unsigned char>(c) < ' ' ? ' ' : c);
  return out + "'";
}

/// A pipe to gnuplot, which throws a readable message if gnuplot fails.
class Gnuplot {
 public:
  Gnuplot() : pipe_(popen("gnuplot 2>/dev/null", "w")) {  // NOLINT(cert-env33-c): a fixed command
    if (!pipe_) throw std::runtime_error("cannot start gnuplot");
  }
  ~Gnuplot() {
    if (pipe_) pclose(pipe_);
  }
  Gnuplot(const Gnuplot&) = delete;
  Gnuplot& operator=(const Gnuplot&) = delete;

  template <typename... Args>
  void say(fmt::format_string<Args...> text, Args&&... args) {
    const std::string line = fmt::format(text, std::forward<Args>(args)...) + "\n";
    std::fwrite(line.data(), 1, line.size(), pipe_);
  }
  void send(const std::vector<float>& data) { std::fwrite(data.data(), sizeof(float), data.size(), pipe_); }

  void finish() {
    const int status = pclose(std::exchange(pipe_, nullptr));
    if (WIFEXITED(status) && WEXITSTATUS(status) == 127) throw std::runtime_error("gnuplot is not installed");
    if (status != 0) throw std::runtime_error("gnuplot could not draw the picture");
  }

 private:
  std::FILE* pipe_;
};

/// Two rows for every bin, but one each for the zero frequency and for half the sampling rate, whose bands
/// are cut in the middle by the edges of the axis: `length` rows of equal height in all, for even and odd
/// lengths alike.
std::vector<float> bands(const Spectrogram& s, int channel) {
  std::vector<float> rows;
  for (int row = 0; row < s.length; ++row)
    for (int column = 0; column < s.columns; ++column)
      rows.push_back(decibels(s.at(channel, (row + 1) / 2, column)));
  return rows;
}

/// Positions on the canvas: pixels from the top left, which gnuplot takes as fractions of the whole.
double across(int pixels) { return static_cast<double>(pixels) / canvas_width; }

struct Layout {
  int panels, panel_height;

  Layout(int channels, int rows)
      : panels(channels), panel_height(rows * std::max(1, data_height / channels / rows)) {}
  int height() const { return panel_top(panels) - gap + bottom; }
  int panel_top(int panel) const { return top + panel * (panel_height + gap); }
  double down(int pixels) const { return 1 - static_cast<double>(pixels) / height(); }
};

void prepare(Gnuplot& plot, const Layout& layout, const std::string& file) {
  plot.say("set terminal pngcairo size {},{} font 'Sans,11'", canvas_width, layout.height());
  plot.say("set output {}", quoted(file));
  plot.say("set palette maxcolors 256 defined ({})", palette);
  plot.say("set tics out nomirror scale 0.7");
  plot.say("set lmargin at screen {}; set rmargin at screen {}", across(left), across(left + widest));
}

void draw_title(Gnuplot& plot, const Layout& layout, const Spectrogram& s, const Caption& caption) {
  const double ms = 1000.0 / caption.rate;
  plot.say("set label 1 {} at screen {},{} left font 'Sans:Bold,15' noenhanced", quoted(caption.title),
           across(left), layout.down(24));
  plot.say(
      "set label 2 '{} Hz, Hann windows of {} samples ({:.2f} ms) every {} ({:.2f} ms), bands of {:.0f} Hz' "
      "at screen {},{} left textcolor '#555555'",
      caption.rate, s.length, s.length * ms, s.hop, s.hop * ms, 1.0 * caption.rate / s.length, across(left),
      layout.down(50));
}

void draw_scale(Gnuplot& plot, const Layout& layout, const Range& range) {
  const int foot = layout.height() - bottom;
  plot.say("set cbrange [{}:{}]; set cbtics 10", range.low, range.high);
  plot.say("set cblabel 'Power of a band, dB (0 = sine of full scale)' offset 1.5");
  plot.say("set colorbox vertical user origin {},{} size {},{}", across(left + widest + 24),
           layout.down(foot), across(18), layout.down(top) - layout.down(foot));
}

/// One channel. Time runs from the first sample to the last; a column is drawn where its windows are.
void draw_panel(Gnuplot& plot, const Layout& layout, const Spectrogram& s, const Caption& caption,
                int channel) {
  const bool last = channel == layout.panels - 1;
  const int head = layout.panel_top(channel);
  const double column = static_cast<double>(s.frames) * s.hop / s.columns / caption.rate;
  const double first = (s.length - s.hop) / 2.0 / caption.rate + column / 2;
  const double row = caption.rate / 2000.0 / s.length;

  plot.say("set tmargin at screen {}; set bmargin at screen {}", layout.down(head),
           layout.down(head + layout.panel_height));
  plot.say("set xrange [0:{}]; set yrange [0:{}]", caption.seconds, caption.rate / 2000.0);
  plot.say("set xlabel '{}'; set format x '{}'", last ? "Time, s" : "", last ? "%g" : "");
  plot.say("set ylabel \"{}Frequency, kHz\"", layout.panels == 1 ? ""
                                              : channel == 0     ? "{/:Bold Left}\\n"
                                                                 : "{/:Bold Right}\\n");
  plot.say("plot '-' binary array=({},{}) format='%float32' origin=({},{}) dx={} dy={} with image notitle",
           s.columns, s.length, first, row / 2, column, row);
  plot.send(bands(s, channel));
  plot.say("unset label; unset colorbox");
}

}  // namespace

void draw(const Spectrogram& s, const Caption& caption, const std::string& path) {
  std::signal(SIGPIPE, SIG_IGN);  // a gnuplot that ends early is reported below, not fatal
  const auto file = std::filesystem::absolute(path);
  std::error_code ignored;  // it matters only whether the file can be written
  std::filesystem::create_directories(file.parent_path(), ignored);
  if (!std::ofstream(file)) throw std::runtime_error(std::strerror(errno));

  Gnuplot plot;
  const Layout layout(caption.channels, s.length);
  prepare(plot, layout, file.string());
  plot.say("set multiplot");
  draw_title(plot, layout, s, caption);
  draw_scale(plot, layout, colours(s, caption.channels));
  for (int channel = 0; channel < caption.channels; ++channel) draw_panel(plot, layout, s, caption, channel);
  plot.say("unset multiplot");
  plot.finish();
}
