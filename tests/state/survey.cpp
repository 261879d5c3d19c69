#include "tests/state/survey.h"

#include <fmt/format.h>

#include <algorithm>

namespace xfm::test {
namespace {

void note(Survey& survey, const ProbedCall& call) {
  const std::string heading = fmt::format("{}, {} from MXCSR {:#x}, junk {:#x}: ", call.name, call.how,
                                          call.start.mxcsr, call.start.junk);
  for (const std::string& what : call.finish.damage) survey.wrong.push_back(heading + what);
  if (call.quiet && (call.finish.raised & forbidden) != 0)
    survey.wrong.push_back(heading + fmt::format("raises {:#x} in MXCSR", call.finish.raised));
  raise(survey.stack, call.group, static_cast<std::int64_t>(call.finish.stack));
}

}  // namespace

void raise(Most& most, const std::string& group, std::int64_t bytes) {
  most[group] = std::max(most[group], bytes);
}

const Survey& survey() {
  static const Survey all = [] {
    Survey result;
    const auto note_all = [&](std::set<std::string>& names) {
      return [&](const ProbedCall& call) {
        names.insert(call.name);
        note(result, call);
      };
    };
    for (auto* const calls : {probe_kernels, probe_generic_functions, probe_dct4, probe_others})
      calls(note_all(result.functions));
    probe_batches(note_all(result.batches));
    result.callees = callees();
    return result;
  }();
  return all;
}

}  // namespace xfm::test
