// xfmbench: every kernel against a rival.
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <exception>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/build.h"
#include "bench/dct4.h"
#include "bench/fftw_interface.h"
#include "bench/many.h"
#include "bench/plot.h"
#include "bench/progress.h"
#include "bench/race.h"
#include "bench/report.h"
#include "bench/rivals.h"
#include "tools/catalogue.h"

namespace {

using namespace xfm;
using namespace xfm::bench;
using Kernels = std::vector<const catalogue::Kernel*>;

struct Options {
  std::vector<std::string> only;
  std::string target, against;
  int rounds = 1000;
  std::string json;
  std::string markdown;
  std::string plot, draw;
  bool list = false;
  bool many = false, alone = false, fftw_interface = false;
  Placement placement;
};

void define(CLI::App& app, Options& options) {
  app.add_option("--only", options.only, "Only kernels whose name contains TEXT, such as _64fc; repeatable")
      ->type_name("TEXT")
      ->allow_extra_args(false);
  app.add_option("--target", options.target,
                 "Measure the library of this target, instead of the one that the loader chooses")
      ->type_name("NAME");
  app.add_option("--against", options.against,
                 "Race another libxfm, a shared library or a target of this build, instead of FFTW")
      ->type_name("FILE|NAME");
  app.add_option("--rounds", options.rounds, "Rounds per kernel")
      ->check(CLI::Range(1, 1000000))
      ->capture_default_str();
  app.add_option("--json", options.json, "Also write all figures to FILE, as JSON")->type_name("FILE");
  app.add_option("--markdown", options.markdown, "Also write the ratios to FILE, as Markdown")
      ->type_name("FILE");
  auto* const plot = app.add_option("--plot", options.plot,
                                    "Also draw the ratios of each family into FOLDER, as SVG and PNG")
                         ->type_name("FOLDER");
  app.add_option("--draw", options.draw,
                 "With --plot: draw the tables of PAGE, such as docs/speed.md, instead of measuring")
      ->type_name("PAGE")
      ->needs(plot);
  app.add_flag("--list", options.list, "List the kernels without measuring them");
  auto* const many =
      app.add_flag("--many", options.many,
                   "Race batches instead, beside FFTW's and single calls, for two counts and both roads "
                   "to memory");
  app.add_flag("--alone", options.alone, "With --many: beside single calls only")->needs(many);
  for (const char* option : {"--target", "--against", "--json", "--markdown", "--plot"})
    many->excludes(app.get_option(option));
  app.add_flag("--fftw-interface", options.fftw_interface,
               "Race plans of FFTW's interface in front of xfm beside FFTW's own, and beside bare kernels")
      ->excludes(many);
  app.add_flag("--unaligned", options.placement.unaligned,
               "Start the arrays one real scalar past an aligned address");
  app.add_flag("--in-place", options.placement.in_place, "Transform in place: dst is src");
}

/// Pack and Perm are the arithmetic of CCS with other addresses: beside FFTW they run only on request.
bool runs_unasked(const catalogue::Kernel& kernel) {
  const std::string name = kernel.name;
  return name.find("Pack") == std::string::npos && name.find("Perm") == std::string::npos;
}

Kernels chosen(const Options& options) {
  Kernels kernels;
  for (const auto& rows : {catalogue::kernels(), dct4_kernels()}) {
    if (options.many && rows.data() != catalogue::kernels().data()) continue;
    for (const catalogue::Kernel& kernel : rows) {
      const auto matches = [&](const std::string& text) {
        return std::string(kernel.name).find(text) != std::string::npos;
      };
      const auto& only = options.only;
      const bool wanted = only.empty() ? options.list || !options.against.empty() || runs_unasked(kernel)
                                       : std::any_of(only.begin(), only.end(), matches);
      if (wanted) kernels.push_back(&kernel);
    }
  }
  return kernels;
}

std::vector<std::unique_ptr<Race>> planned(const Kernels& kernels, Placement placement,
                                           const Builds& builds) {
  std::vector<std::unique_ptr<Race>> races;
  races.reserve(kernels.size());
  for (const catalogue::Kernel* kernel : kernels) {
    races.push_back(std::make_unique<Race>(*kernel, placement, builds));
    show_progress("planning", races.size(), kernels.size());
  }
  return races;
}

std::vector<Result> raced(const std::vector<std::unique_ptr<Race>>& races, int rounds) {
  constexpr int kRoundsInARow = 20;
  for (int done = 0; done < rounds;) {
    const int now = std::min(kRoundsInARow, rounds - done);
    for (const auto& race : races) race->run(now);
    done += now;
    show_progress("racing, round", static_cast<std::size_t>(done), static_cast<std::size_t>(rounds));
  }
  std::vector<Result> results;
  results.reserve(races.size());
  for (const auto& race : races) results.push_back(race->result());
  return results;
}

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

/// Opened before the work, so that a wrong path does not cost a whole run.
File opened(const std::string& path) {
  File file(path.empty() ? nullptr : std::fopen(path.c_str(), "w"), std::fclose);
  if (!path.empty() && !file) throw std::runtime_error(fmt::format("{}: {}", path, std::strerror(errno)));
  return file;
}

void measure(const Options& options) {
  if (!options.draw.empty()) {
    prepare_plots(options.plot);
    return draw_plots(options.plot, options.draw);
  }
  const Kernels kernels = chosen(options);
  if (kernels.empty()) throw std::runtime_error("no kernel has such a name; --list shows all names");
  if (options.list) {
    for (const catalogue::Kernel* kernel : kernels) fmt::print("{}\n", kernel->name);
    return;
  }
  if (const std::string reason = objection(); !reason.empty())
    throw std::runtime_error("refusing to measure: " + reason);
  if (options.fftw_interface) return race_fftw_interface(options.rounds);
  if (options.many) return race_batches(kernels, {options.rounds, options.alone});
  const File json = opened(options.json), markdown = opened(options.markdown);
  if (!options.plot.empty()) prepare_plots(options.plot);
  const Builds builds = loaded_builds(chosen_target(options.target), options.against);
  const std::string rival = builds.other.empty() ? rival_version() : "libxfm, " + options.against;
  const Conditions conditions{this_build(*builds.target), rival, options.placement, options.rounds, load()};
  print_heading(conditions);
  std::fflush(stdout);
  const auto groups = grouped(raced(planned(kernels, options.placement, builds), options.rounds));
  print_tables(groups);
  print_summary(groups);
  if (json) write_json(json.get(), conditions, groups);
  if (markdown) write_markdown(markdown.get(), conditions, groups);
  if (!options.plot.empty()) draw_plots(options.plot, conditions, groups);
}

}  // namespace

int main(int argc, char** argv) try {
  Options options;
  CLI::App app("Races every kernel against a rival, in turns, and prints the ratio of their times.");
  define(app, options);
  CLI11_PARSE(app, argc, argv);
  measure(options);
} catch (const std::exception& error) {
  std::fflush(stdout);
  std::fprintf(stderr, "xfmbench: %s\n", error.what());
  return 1;
}
