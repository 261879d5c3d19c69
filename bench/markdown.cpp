// The report as a page: the ratios of all lengths, families beside each other.
#include <fmt/format.h>

#include "bench/report.h"

namespace xfm::bench {

namespace {

using Groups = std::vector<const Group*>;

std::vector<int> lengths(const Group& group) {
  std::vector<int> all;
  for (const Result& result : group.results) all.push_back(result.kernel->length);
  return all;
}

/// Those with a rival, by their lengths.
std::vector<Groups> tables(const std::vector<Group>& groups) {
  std::vector<Groups> tables;
  for (const Group& group : groups) {
    if (!group.has_rival()) continue;
    if (tables.empty() || lengths(*tables.back().front()) != lengths(group)) tables.emplace_back();
    tables.back().push_back(&group);
  }
  return tables;
}

template <class Cell>
void write_row(std::FILE* file, const std::string& head, const Groups& groups, Cell cell) {
  fmt::print(file, "| {} |", head);
  for (const Group* group : groups) fmt::print(file, " {} |", cell(*group));
  fmt::print(file, "\n");
}

void write_table(std::FILE* file, const Groups& groups) {
  fmt::print(file, "\n");
  write_row(file, "N", groups, [](const Group& group) { return group.family + " " + group.type; });
  write_row(file, "--:", groups, [](const Group&) { return "--:"; });
  for (std::size_t n = 0; n < groups.front()->results.size(); ++n) {
    const auto ratio = [n](const Group& group) { return fmt::format("{:.2f}", group.results[n].ratio()); };
    write_row(file, std::to_string(groups.front()->results[n].kernel->length), groups, ratio);
  }
  write_row(file, "mean", groups,
            [](const Group& group) { return fmt::format("**{:.2f}**", geometric_mean(group.ratios())); });
  write_row(file, "of medians", groups, [](const Group& group) {
    return fmt::format("{:.2f}", geometric_mean(group.ratios_of_medians()));
  });
}

}  // namespace

void write_markdown(std::FILE* file, const Conditions& conditions, const std::vector<Group>& groups) {
  fmt::print(file, "{} on {}, {}, {}; rounds: {}.\n", conditions.build.target, conditions.build.processor,
             conditions.build.compiler, conditions.rival, conditions.rounds);
  for (const Groups& table : tables(groups)) write_table(file, table);
}

}  // namespace xfm::bench
