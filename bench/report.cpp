#include "bench/report.h"

#include <algorithm>

namespace xfm::bench {

std::vector<double> Group::ratios() const {
  std::vector<double> all;
  for (const Result& result : results) all.push_back(result.ratio());
  return all;
}

std::vector<double> Group::ratios_to_other(std::size_t i) const {
  std::vector<double> all;
  for (const Result& result : results) all.push_back(result.ratio_to(result.others[i]));
  return all;
}

std::vector<double> Group::ratios_of_medians() const {
  std::vector<double> all;
  for (const Result& result : results) all.push_back(result.ratio_of_medians());
  return all;
}

const Result& Group::weakest() const { return *std::ranges::min_element(results, {}, &Result::ratio); }

std::vector<int> Group::lengths_behind() const {
  std::vector<int> lengths;
  for (const Result& result : results)
    if (result.ratio() < 1) lengths.push_back(result.kernel->length);
  return lengths;
}

std::vector<Group> grouped(const std::vector<Result>& results) {
  std::vector<Group> groups;
  for (const Result& result : results) {
    const auto belongs = [&](const Group& group) {
      return group.family == result.kernel->family && group.type == result.kernel->type;
    };
    auto group = std::find_if(groups.begin(), groups.end(), belongs);
    if (group == groups.end())
      group = groups.insert(groups.end(), {result.kernel->family, result.kernel->type, {}});
    group->results.push_back(result);
  }
  return groups;
}

}  // namespace xfm::bench
