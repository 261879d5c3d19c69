// The ratios as pictures, drawn by gnuplot.
#pragma once

#include <string>
#include <vector>

#include "bench/report.h"

namespace xfm::bench {

/// Creates the folder, and throws if that or gnuplot fails: to be called before a long run.
void prepare_plots(const std::string& folder);

/// For each family with a rival, TARGET.FAMILY.svg and .png show the ratio against the length, a line for
/// each type, and TARGET.FAMILY.gp draws them again: it holds the figures and the commands.
void draw_plots(const std::string& folder, const Conditions& conditions, const std::vector<Group>& groups);

/// The same for the sections of a page that scripts/speed wrote, docs/speed.md, without measuring.
void draw_plots(const std::string& folder, const std::string& page);

}  // namespace xfm::bench
