// Statistics of samples.
#pragma once

#include <span>
#include <vector>

namespace xfm::bench {

/// Least and median sample. On a machine that does other work too, the least is the steadier figure, because
/// any disturbance makes a batch longer.
struct Summary {
  double least = 0;
  double median = 0;
};

Summary summarize(std::vector<double> samples);  ///< of at least one sample
double geometric_mean(std::span<const double> values);

}  // namespace xfm::bench
