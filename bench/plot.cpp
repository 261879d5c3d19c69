#include "bench/plot.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>

namespace xfm::bench {

namespace {

/// A series in black, with points and dashes of its own, so that a printed copy is readable.
constexpr const char* styles[] = {"dt 1 pt 7 ps 0.9", "dt 2 pt 4 ps 1.1", "dt 3 pt 9 ps 1.1",
                                  "dt 4 pt 6 ps 1.1"};

constexpr const char* look = R"(set xlabel 'N'
set ylabel 'rival''s time over ours, logarithmic'
set logscale y
set ytics (0.25, 0.33, 0.5, 0.7, 1, 1.4, 2, 3, 4, 6, 8, 12, 16)
set grid ytics lc rgb '#c0c0c0' lt 1 lw 0.5
set key outside top right noenhanced
set tics out nomirror
set arrow from graph 0, first 1 to graph 1, first 1 nohead lw 2 lc rgb 'black'
)";

std::string quoted(const std::string& text) {
  std::string result = "'";
  for (const char c : text)
    result += c == '\'' ? "''" : std::string(1, static_cast<unsigned char>(c) < ' ' ? ' ' : c);
  return result + "'";
}

void run_gnuplot(const std::string& commands) {
  std::FILE* const pipe = popen("gnuplot", "w");  // NOLINT(cert-env33-c): a fixed command
  if (pipe == nullptr) throw std::runtime_error("cannot start gnuplot");
  std::fwrite(commands.data(), 1, commands.size(), pipe);
  if (pclose(pipe) != 0) throw std::runtime_error("gnuplot is not installed, or cannot draw the pictures");
}

using Groups = std::vector<const Group*>;

std::map<std::string, Groups> by_family(const std::vector<Group>& groups) {
  std::map<std::string, Groups> families;
  for (const Group& group : groups)
    if (group.has_rival()) families[group.family].push_back(&group);
  return families;
}

std::string data(const Groups& groups) {
  std::string text;
  for (std::size_t i = 0; i < groups.size(); ++i) {
    text += fmt::format("$ratios{} << END\n", i);
    for (const Result& result : groups[i]->results)
      text += fmt::format("{} {:.4f}\n", result.kernel->length, result.ratio());
    text += "END\n";
  }
  return text;
}

/// Every picture includes the line at 1, with some room on either side.
std::string ranges(const Groups& groups) {
  double low = 0.7, high = 2;
  int longest = 0;
  for (const Group* group : groups) {
    const auto ratios = group->ratios();
    low = std::min(low, 0.9 * *std::ranges::min_element(ratios));
    high = std::max(high, 1.2 * *std::ranges::max_element(ratios));
    for (const Result& result : group->results) longest = std::max(longest, result.kernel->length);
  }
  const char* const scale = longest > 1000 ? "set logscale x 2\nset format x '2^{%L}'\n" : "";
  return fmt::format("set yrange [{:.3f}:{:.3f}]\n{}", low, high, scale);
}

std::string script(const std::string& name, const Conditions& conditions, const Groups& groups) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < groups.size(); ++i)
    lines.push_back(fmt::format("$ratios{} with linespoints lc rgb 'black' {} title {}", i,
                                styles[i % std::size(styles)], quoted(groups[i]->type)));
  std::string text = data(groups) + look + ranges(groups);
  text += fmt::format("set title {} noenhanced\n",
                      quoted(fmt::format("{} on {}: {}, {}", groups.front()->family, conditions.build.target,
                                         conditions.build.processor, conditions.rival)));
  for (const std::string format : {"svg", "png"}) {
    const char* const terminal = format == "svg"
                                     ? "svg size 800,480 font 'DejaVu Sans,12' background 'white'"
                                     : "pngcairo size 1600,960 font 'DejaVu Sans,12' fontscale 2 lw 2 ps 2";
    text += fmt::format("set terminal {}\nset output {}\nplot {}\nset output\n", terminal,
                        quoted(name + "." + format), fmt::join(lines, ", "));
  }
  return text;
}

}  // namespace

void prepare_plots(const std::string& folder) {
  std::filesystem::create_directories(folder);
  run_gnuplot("");
}

void draw_plots(const std::string& folder, const Conditions& conditions, const std::vector<Group>& groups) {
  for (const auto& [family, of_family] : by_family(groups)) {
    const std::string name = conditions.build.target + "." + family;
    std::ofstream(std::filesystem::path(folder) / (name + ".gp")) << script(name, conditions, of_family);
    run_gnuplot(fmt::format("cd {}\nload {}\n", quoted(folder), quoted(name + ".gp")));
  }
}

}  // namespace xfm::bench
