#include "tests/accuracy/document.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace xfm::test {
namespace {

using catalogue::Precision;

/// The kernels of one family at one length: a cell for each precision.
using Line = std::array<const Measured*, 2>;

std::string rows_of_exceptions(const std::vector<Measured>& measured) {
  std::string rows;
  for (const auto& [kernel, errors, certified] : measured) {
    if (errors.worst <= common_bound(kernel)) continue;
    rows +=
        "| `" + std::string(kernel.name) + "` | " + kernel.tree + " | " + rounded_up(errors.worst) + " |\n";
  }
  return rows;
}

std::string exceptions(const std::vector<Measured>& measured) {
  const std::string rows = rows_of_exceptions(measured);
  if (rows.empty()) return "## Beyond the bound\n\nNo kernel.\n";
  return "## Beyond the bound\n\n| kernel | breakdown | worst |\n|---|---|---|\n" + rows;
}

std::string cells(const Measured* measured) {
  if (measured == nullptr) return " | | | |";
  const auto& [kernel, errors, certified] = *measured;
  const bool beyond = errors.worst > common_bound(kernel);
  const std::string mark = beyond ? "**" : "";
  return " " + mark + rounded_up(errors.worst) + mark + " | " + rounded_up(errors.rms) + " | " +
         rounded_up(certified.norm) + " | " + rounded_up(certified.unit) + " |";
}

std::string table(const std::map<int, Line>& lines) {
  std::string text =
      "\n\n| N | binary32: worst | r.m.s. | bound | in -1 .. 1 | binary64: worst | r.m.s. | bound | in -1 .. "
      "1 "
      "|\n|---|---|---|---|---|---|---|---|---|\n";
  for (const auto& [length, line] : lines)
    text += "| " + std::to_string(length) + " |" + cells(line[0]) + cells(line[1]) + "\n";
  return text;
}

std::string text_of(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

}  // namespace

std::string rounded_up(double value) {
  if (value == 0) return "0";
  if (std::isinf(value)) return "inf";
  const double step = std::pow(10, std::floor(std::log10(value)) - 2);
  char text[32];
  std::snprintf(text, sizeof text, "%.2e", std::ceil(value / step) * step);
  return text;
}

std::string figures(const std::vector<Measured>& measured) {
  std::map<std::string, std::map<int, Line>> families;
  for (const Measured& one : measured)
    families[one.kernel.family][one.kernel.length][one.kernel.precision == Precision::binary64] = &one;
  // Families with equal figures, such as the layouts of one transform, share a table under all their names.
  std::map<std::string, std::string> headings;
  for (const auto& [family, lines] : families) {
    std::string& heading = headings[table(lines)];
    heading += (heading.empty() ? "" : ", ") + family;
  }
  std::map<std::string, std::string> tables;
  for (const auto& [body, heading] : headings) tables[heading] = body;
  std::string text = "\n" + exceptions(measured);
  for (const auto& [heading, body] : tables) text.append("\n## ").append(heading).append(body);
  return text;
}

namespace {

std::string bound_by_measured(const Record::Reached& reached) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2g", 1 / reached.part);
  return text;
}

std::string row_of_dct4(const Record& record, int exponent) {
  std::string row = "| 2^" + std::to_string(exponent) + " |";
  for (const Precision precision : {Precision::binary32, Precision::binary64}) {
    const bool single = precision == Precision::binary32;
    if (exponent > (single ? 26 : 25)) return row + " | |\n";
    const std::string name = "xfmDCT4_" + std::to_string(1 << exponent) + (single ? "_32f" : "_64f");
    const Certified certified = record.certified(name, precision);
    row += " " + rounded_up(certified.norm) + " | " + rounded_up(certified.unit) + " |";
  }
  return row + "\n";
}

}  // namespace

std::string figures(const Record& record) {
  const auto& reached = record.reached();
  const auto& least = reached.front();
  const auto& middle = reached[reached.size() / 2];
  const auto& greatest = reached.back();
  std::string text = "\n## How near inputs come to the bounds\n\n| kernels certified | " +
                     std::to_string(reached.size()) + " |\n|---|---|\n| least bound / measured | " +
                     bound_by_measured(greatest) + ", `" + greatest.name + "` |\n| median | " +
                     bound_by_measured(middle) + " |\n| greatest | " + bound_by_measured(least) + ", `" +
                     least.name + "` |\n";
  text +=
      "\n## DCT4\n\n| N | binary32: bound | in -1 .. 1 | binary64: bound | in -1 .. 1 "
      "|\n|---|---|---|---|---|\n";
  for (int exponent = 1; exponent <= 26; ++exponent) text += row_of_dct4(record, exponent);
  return text;
}

std::string first_difference(const std::string& published, const std::string& measured) {
  if (published == measured) return "";
  std::istringstream left(published), right(measured);
  std::string one, other;
  do {
    if (!std::getline(left, one)) one = "(end)";
    if (!std::getline(right, other)) other = "(end)";
  } while (one == other && (left || right));
  return "published: " + one + "\nmeasured:  " + other + "\n";
}

Document::Document(const std::string& path) : path_(path) {
  const std::string text = text_of(path);
  const std::size_t start = text.find("\n" + std::string(marker));
  if (start == std::string::npos) throw std::runtime_error(path + " has no line of the marker");
  const std::size_t end = text.find('\n', start + 1) + 1;
  by_hand_ = text.substr(0, end);
  figures_ = text.substr(end);
}

void Document::replace_figures(const std::string& figures) {
  figures_ = figures;
  std::ofstream file(path_, std::ios::binary);
  file << by_hand_ << figures_;
  if (!file.flush()) throw std::runtime_error("cannot write " + path_);
}

}  // namespace xfm::test
