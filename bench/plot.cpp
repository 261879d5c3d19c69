#include "bench/plot.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <utility>

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

/// The ratios of a family and element type.
struct Curve {
  std::string family, type;
  std::vector<std::pair<int, double>> ratios;  ///< by length
};
using Curves = std::vector<Curve>;

/// What was measured together.
struct Measurement {
  std::string target;
  std::string conditions;  ///< processor and rival
  Curves curves;
};

Measurement measurement(const Conditions& conditions, const std::vector<Group>& groups) {
  const Build& build = conditions.build;
  Measurement all{build.target, fmt::format("{}, {}", build.processor, conditions.rival), {}};
  for (const Group& group : groups) {
    if (!group.has_rival()) continue;
    Curve& curve = all.curves.emplace_back(Curve{group.family, group.type, {}});
    for (const Result& result : group.results)
      curve.ratios.emplace_back(result.kernel->length, result.ratio());
  }
  return all;
}

/// "a | b |" after the first bar of a row.
std::vector<std::string> cells(const std::string& row) {
  std::vector<std::string> cells;
  std::istringstream rest(row.substr(1));
  for (std::string cell; std::getline(rest, cell, '|');) {
    const auto begin = cell.find_first_not_of(' ');
    cells.push_back(begin == cell.npos ? "" : cell.substr(begin, cell.find_last_not_of(' ') + 1 - begin));
  }
  return cells;
}

/// One row of a table of ratios: its heads are families with a type, other rows begin with a length, or are
/// means.
void read_row(const std::vector<std::string>& row, Curves& curves, std::size_t& first) {
  if (row.front() == "N") {
    first = curves.size();
    for (std::size_t i = 1; i < row.size(); ++i) {
      const auto space = row[i].find(' ');
      curves.push_back({row[i].substr(0, space), row[i].substr(space + 1), {}});
    }
  } else if (row.front().find_first_not_of("0123456789") == std::string::npos) {
    for (std::size_t i = 1; i < row.size(); ++i)
      curves.at(first + i - 1).ratios.emplace_back(std::stoi(row.front()), std::stod(row[i]));
  }
}

/// The sections that scripts/speed writes, from "<!-- TARGET: begin -->" on: a line of conditions, and
/// tables.
std::vector<Measurement> measurements(const std::string& page) {
  std::ifstream file(page);
  if (!file) throw std::runtime_error(fmt::format("{}: cannot be read", page));
  std::vector<Measurement> all;
  bool inside = false;
  std::size_t first = 0;
  for (std::string line; std::getline(file, line);) {
    const auto mark = line.find(": begin -->");
    if (line.starts_with("<!-- ") && mark != line.npos) {
      inside = true;
      all.push_back({line.substr(5, mark - 5), "", {}});
    } else if (line.starts_with("<!-- ")) {
      inside = false;
    } else if (inside && line.starts_with("|")) {
      read_row(cells(line), all.back().curves, first);
    } else if (inside && all.back().conditions.empty()) {
      const std::string prefix = all.back().target + " on ";
      const std::string text = line.substr(0, line.find("; rounds"));
      all.back().conditions = text.starts_with(prefix) ? text.substr(prefix.size()) : text;
    }
  }
  if (all.empty()) throw std::runtime_error(fmt::format("{}: no tables of ratios", page));
  return all;
}

std::map<std::string, Curves> by_family(const Curves& curves) {
  std::map<std::string, Curves> families;
  for (const Curve& curve : curves) families[curve.family].push_back(curve);
  return families;
}

std::string data(const Curves& curves) {
  std::string text;
  for (std::size_t i = 0; i < curves.size(); ++i) {
    text += fmt::format("$ratios{} << END\n", i);
    for (const auto& [length, ratio] : curves[i].ratios) text += fmt::format("{} {:.4f}\n", length, ratio);
    text += "END\n";
  }
  return text;
}

/// Every picture includes the line at 1, with some room on either side.
std::string ranges(const Curves& curves) {
  double low = 0.7, high = 2;
  int longest = 0;
  for (const Curve& curve : curves) {
    for (const auto& [length, ratio] : curve.ratios) {
      low = std::min(low, 0.9 * ratio);
      high = std::max(high, 1.2 * ratio);
      longest = std::max(longest, length);
    }
  }
  const char* scale = "";
  if (longest > 1000) scale = "set logscale x 2\nset format x '2^{%L}'\n";
  if (longest == 64) scale = "set xrange [0:66]\nset xtics 8\n";
  return fmt::format("set yrange [{:.3f}:{:.3f}]\n{}", low, high, scale);
}

std::string script(const std::string& name, const Measurement& measurement, const Curves& curves) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < curves.size(); ++i)
    lines.push_back(fmt::format("$ratios{} with linespoints lc rgb 'black' {} title {}", i,
                                styles[i % std::size(styles)], quoted(curves[i].type)));
  std::string text = data(curves) + look + ranges(curves);
  text += fmt::format(
      "set title {} noenhanced\n",
      quoted(fmt::format("{} on {}: {}", curves.front().family, measurement.target, measurement.conditions)));
  for (const std::string format : {"svg", "png"}) {
    const char* const terminal = format == "svg"
                                     ? "svg size 800,480 font 'DejaVu Sans,12' background 'white'"
                                     : "pngcairo size 1600,960 font 'DejaVu Sans,12' fontscale 2 lw 2 ps 2";
    text += fmt::format("set terminal {}\nset output {}\nplot {}\nset output\n", terminal,
                        quoted(name + "." + format), fmt::join(lines, ", "));
  }
  return text;
}

void draw(const std::string& folder, const Measurement& measurement) {
  for (const auto& [family, curves] : by_family(measurement.curves)) {
    const std::string name = measurement.target + "." + family;
    std::ofstream(std::filesystem::path(folder) / (name + ".gp")) << script(name, measurement, curves);
    run_gnuplot(fmt::format("cd {}\nload {}\n", quoted(folder), quoted(name + ".gp")));
  }
}

}  // namespace

void prepare_plots(const std::string& folder) {
  std::filesystem::create_directories(folder);
  run_gnuplot("");
}

void draw_plots(const std::string& folder, const Conditions& conditions, const std::vector<Group>& groups) {
  draw(folder, measurement(conditions, groups));
}

void draw_plots(const std::string& folder, const std::string& page) {
  for (const Measurement& measurement : measurements(page)) draw(folder, measurement);
}

}  // namespace xfm::bench
