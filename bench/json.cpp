// The report for programs.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "bench/report.h"

namespace xfm::bench {

namespace {

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    result += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
  }
  return result + '"';
}

std::string object(const Summary& cycles, double nanoseconds_per_cycle) {
  return fmt::format(R"({{"cycles": {:.3f}, "cycles_median": {:.3f}, "ns": {:.4f}, "ns_median": {:.4f}}})",
                     cycles.least, cycles.median, cycles.least * nanoseconds_per_cycle,
                     cycles.median * nanoseconds_per_cycle);
}

std::string object(const Result& result) {
  const catalogue::Kernel& kernel = *result.kernel;
  std::string text = fmt::format(
      R"({{"name": {}, "length": {}, "tree": {}, "ns_per_cycle": {:.5f}, "limit": {:.3f}, "ours_over_limit": {:.4f}, "ours": {})",
      quoted(kernel.name), kernel.length, quoted(kernel.tree), result.nanoseconds_per_cycle, result.limit,
      result.ours.least / result.limit, object(result.ours, result.nanoseconds_per_cycle));
  if (result.rival)
    text += fmt::format(R"(, "rival": {}, "ratio": {:.4f}, "ratio_median": {:.4f})",
                        object(*result.rival, result.nanoseconds_per_cycle), result.ratio(),
                        result.ratio_of_medians());
  for (const Other& other : result.others)
    text += fmt::format(R"(, {}: {}, {}: {:.4f})", quoted(other.name),
                        object(other.time, result.nanoseconds_per_cycle), quoted("ratio to " + other.name),
                        result.ratio_to(other));
  return text + "}";
}

std::string object(const Group& group) {
  std::vector<std::string> kernels;
  kernels.reserve(group.results.size());
  for (const Result& result : group.results) kernels.push_back(object(result));
  std::string text = fmt::format(R"({{"family": {}, "type": {}, )", quoted(group.family), quoted(group.type));
  if (group.has_rival())
    text += fmt::format(
        R"("ratio": {:.4f}, "ratio_median": {:.4f}, "least": {{"ratio": {:.4f}, "name": {}}}, "lengths_behind": [{}], )",
        geometric_mean(group.ratios()), geometric_mean(group.ratios_of_medians()), group.weakest().ratio(),
        quoted(group.weakest().kernel->name), fmt::join(group.lengths_behind(), ", "));
  return text + fmt::format("\"kernels\": [\n      {}\n    ]}}", fmt::join(kernels, ",\n      "));
}

}  // namespace

void write_json(std::FILE* file, const Conditions& conditions, const std::vector<Group>& groups) {
  const Build& build = conditions.build;
  std::vector<std::string> objects;
  objects.reserve(groups.size());
  for (const Group& group : groups) objects.push_back(object(group));
  fmt::print(file,
             "{{\n  \"target\": {},\n  \"compiler\": {},\n  \"configuration\": {},\n  \"flags\": {},\n  "
             "\"kernel_flags\": {},\n",
             quoted(build.target), quoted(build.compiler), quoted(build.configuration), quoted(build.flags),
             quoted(build.kernel_flags));
  fmt::print(file, "  \"processor\": {},\n  \"rival\": {},\n  \"unaligned\": {},\n  \"in_place\": {},\n",
             quoted(build.processor), quoted(conditions.rival), conditions.placement.unaligned,
             conditions.placement.in_place);
  fmt::print(file, "  \"load\": {:.2f},\n  \"rounds\": {},\n  \"groups\": [\n    {}\n  ]\n}}\n",
             conditions.load, conditions.rounds, fmt::join(objects, ",\n    "));
}

}  // namespace xfm::bench
