// The report for people.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

#include "bench/report.h"

namespace xfm::bench {

namespace {

void print_row(const Result& result) {
  const auto& [kernel, cycle, limit, ours, rival, others] = result;
  const std::string length = fmt::format("{:7}", kernel->length);
  const std::string own = fmt::format("{:8.1f} {:8.1f}", ours.least, ours.median);
  const std::string reach = fmt::format("{:8.1f} {:10.2f}", limit, ours.least / limit);
  if (!rival) {
    fmt::print("{} {:>9} {:>8}   {} {:>8} {:>8}   {}\n", length, "-", "-", own, "-", "-", reach);
    return;
  }
  fmt::print("{} {:8.2f}x {:7.2f}x   {} {:8.1f} {:8.1f}   {}{}\n", length, result.ratio(),
             result.ratio_of_medians(), own, rival->least, rival->median, reach,
             result.ratio() < 1 ? "  < 1.0: the rival is ahead" : "");
}

void print_table(const Group& group) {
  fmt::print("\n{} {}\n", group.family, group.type);
  fmt::print("{:>7} {:>9} {:>8}   {:>8} {:>8} {:>8} {:>8}   {:>8} {:>10}\n", "N", "ratio", "(median)", "ours",
             "(median)", "rival", "(median)", "limit", "ours/limit");
  for (const Result& result : group.results) print_row(result);
}

/// Further rivals: ratio and core cycles, and the geometric mean of the ratios.
void print_others(const Group& group) {
  const std::vector<Other>& names = group.results.front().others;
  if (names.empty()) return;
  fmt::print("\n{:>5}", "N");
  for (const Other& other : names) fmt::print(" {:>20}", other.name);
  for (const Result& result : group.results) {
    fmt::print("\n{:5}", result.kernel->length);
    for (const Other& other : result.others)
      fmt::print(" {:8.2f}x {:10.1f}", result.ratio_to(other), other.time.least);
  }
  fmt::print("\n{:>5}", "mean");
  for (std::size_t i = 0; i < names.size(); ++i)
    fmt::print(" {:8.2f}x {:10}", geometric_mean(group.ratios_to_other(i)), "");
  fmt::print("\n");
}

void print_means(const Group& group) {
  const auto ratios = group.ratios();
  const Result& weakest = group.weakest();
  const auto behind = group.lengths_behind();
  fmt::print("{:<14} {:<5} {:7} {:8.3f}x {:7.3f}x {:7.3f}x at {:<7}  {}\n", group.family, group.type,
             ratios.size(), geometric_mean(ratios), geometric_mean(group.ratios_of_medians()),
             weakest.ratio(), weakest.kernel->length,
             behind.empty() ? "none" : fmt::format("{}", fmt::join(behind, " ")));
}

}  // namespace

void print_heading(const Conditions& conditions) {
  const Build& build = conditions.build;
  fmt::print("target     {}\n", build.target);
  fmt::print("compiler   {}, {}\n", build.compiler, build.configuration);
  fmt::print("flags      {}\n", build.flags);
  fmt::print("kernels    {}\n", build.kernel_flags);
  fmt::print("processor  {}\n", build.processor);
  fmt::print("rival      {}\n", conditions.rival);
  fmt::print("data       {}, {}, in the first-level cache where they fit; one transform per call\n",
             conditions.placement.unaligned ? "unaligned" : "aligned",
             conditions.placement.in_place ? "in place" : "out of place");
  fmt::print("rounds     {}, interleaved; load of the machine at the start {:.2f}\n", conditions.rounds,
             conditions.load);
}

void print_tables(const std::vector<Group>& groups) {
  fmt::print(
      "\nratio: the rival's time over ours, by least time and by median; above 1 we are ahead.\n"
      "ours, rival, limit: core cycles per call; the limit is an estimate for the target's registers.\n");
  for (const Group& group : groups) {
    print_table(group);
    print_others(group);
  }
}

void print_summary(const std::vector<Group>& groups) {
  if (std::none_of(groups.begin(), groups.end(), [](const Group& group) { return group.has_rival(); }))
    return;
  fmt::print("\ngeometric mean of the ratios\n{:<14} {:<5} {:>7} {:>9} {:>8} {:>12}   {}\n", "family", "type",
             "lengths", "ratio", "(median)", "least", "lengths below 1.0");
  for (const Group& group : groups)
    if (group.has_rival()) print_means(group);
}

}  // namespace xfm::bench
