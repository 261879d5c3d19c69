#include "bench/statistics.h"

#include <algorithm>
#include <cmath>

namespace xfm::bench {

Summary summarize(std::vector<double> samples) {
  std::sort(samples.begin(), samples.end());
  const std::size_t half = samples.size() / 2;
  const double median = samples.size() % 2 == 1 ? samples[half] : (samples[half - 1] + samples[half]) / 2;
  return {samples.front(), median};
}

double geometric_mean(std::span<const double> values) {
  double sum = 0;
  for (const double value : values) sum += std::log(value);
  return std::exp(sum / static_cast<double>(values.size()));
}

}  // namespace xfm::bench
