// The published figures: the generated part of docs/accuracy.md, and the file around it.
#pragma once

#include <string>
#include <vector>

#include "tests/accuracy/errors.h"
#include "tests/accuracy/record.h"

namespace xfm::test {

/// Three significant digits, never less than the value.
std::string rounded_up(double value);

/// The kernels beyond the bound of their precision, then a table for each family.
std::string figures(const std::vector<Measured>& measured);

/// The record of certified bounds: how near to them inputs come, and a table of the DCT-IV.
std::string figures(const Record& record);

/// The first line in which two texts differ, from both; empty for equal texts.
std::string first_difference(const std::string& published, const std::string& measured);

/// A text that is written by hand up to the line that starts with the marker, and generated from there on.
class Document {
 public:
  static constexpr const char* marker = "<!-- figures";

  /// Throws if the file or its marker is missing.
  explicit Document(const std::string& path);
  const std::string& figures() const { return figures_; }
  /// Rewrites the file with these figures.
  void replace_figures(const std::string& figures);

 private:
  std::string path_, by_hand_, figures_;
};

}  // namespace xfm::test
