#include "bench/build.h"

#include <cstdlib>
#include <fstream>

#include "build_info.h"

namespace xfm::bench {

namespace {

std::string processor() {
  std::ifstream file("/proc/cpuinfo");
  for (std::string line; std::getline(file, line);)
    if (line.starts_with("model name"))
      if (const auto colon = line.find(": "); colon != std::string::npos) return line.substr(colon + 2);
  return "unknown processor";
}

#ifdef NDEBUG
constexpr bool kAssertions = false;
#else
constexpr bool kAssertions = true;
#endif

#ifdef __OPTIMIZE__
constexpr bool kOptimized = true;
#else
constexpr bool kOptimized = false;
#endif

}  // namespace

Build this_build(const catalogue::Target& target) {
  return {target.name, kCompiler, XFM_BENCH_CONFIGURATION, kFlags, target.compile_flags, processor()};
}

double load() {
  double average = 0;
  return getloadavg(&average, 1) == 1 ? average : 0;
}

std::string objection() {
  // Bench and library are built together, with the same configuration.
  if (std::string(XFM_BENCH_CONFIGURATION) == "Debug") return "the library is a debug build";
  if (!kOptimized) return "compiled without optimisation";
  if (kAssertions) return "compiled without NDEBUG";
  return {};
}

}  // namespace xfm::bench
