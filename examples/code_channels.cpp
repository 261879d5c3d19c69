// Code channels: the downlink of a mobile network, where one transmitter serves many subscribers at the same
// time on the same frequency. Each has a Walsh code, a row of the Hadamard matrix, and one bit in every
// frame: the transform of all bits of a frame is the sum of the codes, each with the sign of its subscriber's
// bit. The codes are orthogonal, so the transform of the received signal separates the bits again, and noise
// that hits some chips of a frame is spread over all subscribers.
#include <xfm.h>
#include <xfmcore.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <CLI/CLI.hpp>

namespace {

struct Options {
  std::string text = "/usr/share/common-licenses/GPL-3";
  int order = 6;
  double noise = 0.3;
};

/// The transform of one frame, with one work buffer for all calls.
class Spreader {
 public:
  explicit Spreader(int order) : order_(order) {
    std::uint32_t bytes = 0;
    if (xfmWHTGetBufferSize_32f(order, &bytes) != xfmStsOk)
      throw std::runtime_error(fmt::format("order {} is not supported, only 1 to 13", order));
    if (bytes > 0) buffer_.reset(xfmMalloc(bytes));
  }

  /// Spreads and despreads: the factor 1/sqrt(N) makes the transform its own inverse and preserves the power.
  void frame(const std::vector<float>& from, std::vector<float>& to, std::size_t at) {
    const xfmStatus status = xfmWHT_32f(&from[at], &to[at], order_, XFM_SCALE_BY_SQRT_N, buffer_.get());
    if (status != xfmStsOk) throw std::runtime_error(fmt::format("status {}", status));
  }

 private:
  struct Free {
    void operator()(void* block) const { xfmFree(block); }
  };
  int order_;
  std::unique_ptr<void, Free> buffer_;
};

std::string contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text{std::istreambuf_iterator<char>(file), {}};
  if (!file || text.empty()) throw std::runtime_error(path + ": nothing to read");
  return text;
}

/// The strength of a subscriber's code: distant subscribers need more power than near ones.
double gain(std::size_t subscriber, std::size_t subscribers) {
  return 0.5 * std::pow(3, static_cast<double>(subscriber) / static_cast<double>(subscribers));
}

/// A bit is plus or minus the gain. The bits of the text go to one subscriber after another, and the last
/// frame is padded.
std::vector<float> symbols_of(const std::string& text, std::size_t subscribers) {
  std::vector<float> symbols((8 * text.size() + subscribers - 1) / subscribers * subscribers);
  for (std::size_t i = 0; i < symbols.size(); ++i) {
    const bool one = i / 8 < text.size() && (static_cast<unsigned char>(text[i / 8]) >> i % 8 & 1) != 0;
    const double strength = gain(i % subscribers, subscribers);
    symbols[i] = static_cast<float>(one ? strength : -strength);
  }
  return symbols;
}

std::string text_of(const std::vector<float>& symbols, std::size_t characters) {
  std::string text(characters, '\0');
  for (std::size_t i = 0; i < 8 * characters; ++i)
    if (symbols[i] > 0)
      text[i / 8] = static_cast<char>(static_cast<unsigned char>(text[i / 8]) | 1U << i % 8);
  return text;
}

double greatest_difference(const std::vector<float>& a, const std::vector<float>& b) {
  double greatest = 0;
  for (std::size_t i = 0; i < a.size(); ++i)
    greatest = std::max(greatest, std::abs(double{a[i]} - double{b[i]}));
  return greatest;
}

void add_noise(std::vector<float>& chips, double deviation) {
  std::mt19937_64 bits(1);
  std::normal_distribution<float> noise(0, static_cast<float>(deviation));
  for (float& chip : chips) chip += noise(bits);
}

/// The expected number of wrong bits: those where the noise exceeds the symbol and has the opposite sign.
double expected_errors(std::size_t symbols, std::size_t subscribers, double noise) {
  double sum = 0;
  for (std::size_t i = 0; i < symbols; ++i)
    sum += 0.5 * std::erfc(gain(i % subscribers, subscribers) / (std::sqrt(2.0) * noise));
  return sum;
}

void run(const Options& options) {
  using Clock = std::chrono::steady_clock;
  const std::string text = contents(options.text);
  Spreader spreader(options.order);
  const std::size_t codes = std::size_t{1} << options.order;
  const std::vector<float> sent = symbols_of(text, codes);
  std::vector<float> chips(sent.size()), received(sent.size());
  const auto transform = [&](const std::vector<float>& from, std::vector<float>& to) {
    for (std::size_t at = 0; at < sent.size(); at += codes) spreader.frame(from, to, at);
  };

  transform(sent, chips);
  const auto start = Clock::now();
  transform(chips, received);
  const std::chrono::duration<double, std::nano> time = Clock::now() - start;
  const double round_trip = greatest_difference(sent, received);
  add_noise(chips, options.noise);
  transform(chips, received);

  std::size_t errors = 0;
  for (std::size_t i = 0; i < sent.size(); ++i) errors += (sent[i] > 0) != (received[i] > 0) ? 1 : 0;
  const std::string got = text_of(received, text.size());
  fmt::print("text         {}, {} characters\n", options.text, text.size());
  fmt::print("codes        {}, {} frames, {:.1f} ns each\n", codes, sent.size() / codes,
             time.count() / static_cast<double>(sent.size() / codes));
  fmt::print("round trip   greatest error {:.2e} without noise, of symbols of 0.5 to 1.5\n", round_trip);
  fmt::print("noise        deviation {}\n", options.noise);
  fmt::print("bit errors   {} of {}, {:.0f} expected\n", errors, sent.size(),
             expected_errors(sent.size(), codes, options.noise));
  fmt::print("received     {}\n", got.substr(0, got.find("\n\n")));
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Options options;
    CLI::App app("Sends a text over the Walsh codes of a noisy channel.");
    app.add_option("text", options.text, "file to send")->capture_default_str();
    app.add_option("--order", options.order, "2^ORDER codes")->capture_default_str();
    app.add_option("--noise", options.noise, "standard deviation")
        ->check(CLI::NonNegativeNumber)
        ->capture_default_str();
    CLI11_PARSE(app, argc, argv);
    run(options);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "code_channels: %s\n", error.what());
    return 1;
  }
}
