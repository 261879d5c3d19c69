// Results as tables for people, as JSON for programs, and as Markdown for a page.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

#include "bench/build.h"
#include "bench/race.h"

namespace xfm::bench {

/// The kernels of one family and element type.
struct Group {
  std::string family;
  std::string type;
  std::vector<Result> results;

  bool has_rival() const { return results.front().rival.has_value(); }
  std::vector<double> ratios() const;
  /// Against further rival number i.
  std::vector<double> ratios_to_other(std::size_t i) const;
  std::vector<double> ratios_of_medians() const;
  /// The result with the least ratio.
  const Result& weakest() const;
  /// The lengths at which the rival is ahead, by least time.
  std::vector<int> lengths_behind() const;
};

/// By family and type, in the order of first appearance.
std::vector<Group> grouped(const std::vector<Result>& results);

/// How the figures were obtained.
struct Conditions {
  Build build;
  std::string rival;
  Placement placement;
  int rounds;
  double load;  ///< of the machine when the run began
};

void print_heading(const Conditions& conditions);
void print_tables(const std::vector<Group>& groups);
void print_summary(const std::vector<Group>& groups);
void write_json(std::FILE* file, const Conditions& conditions, const std::vector<Group>& groups);
void write_markdown(std::FILE* file, const Conditions& conditions, const std::vector<Group>& groups);

}  // namespace xfm::bench
