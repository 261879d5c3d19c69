// xfmgen: writes the library's kernels and everything that follows from the list of families, and shows what
// a row of a table comes to.
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <tuple>

#include "gen/algorithms/tree.h"
#include "gen/network/check.h"
#include "gen/write/emit.h"
#include "gen/write/files.h"
#include "tools/families.h"
#include "tools/listing.h"

namespace {

using xfm::families;
using xfm::Family;
using xfm::gen::Kernel;

// One file a family and length, both precisions: a changed row recompiles that file and no other.
void write_all(const std::filesystem::path& out) {
  const auto write = [&](const std::string& name, const std::string& text) {
    xfm::gen::write_if_changed(out / name, text);
  };
  xfm::gen::SharedConstants shared;
  std::vector<xfm::gen::Row> rows;
  for (const Family& family : families()) {
    for (const int length : family.lengths) {
      std::vector<Kernel> kernels;
      for (const auto& type : family.types) {
        if (!family.by_hand()) kernels.push_back(family.make(length, type.precision, ""));
        rows.push_back(family.by_hand() ? family.row(length, type.precision) : xfm::row_of(kernels.back()));
      }
      if (!family.by_hand()) {
        write(fmt::format("{}_{}.cpp", family.name, length),
              xfm::gen::emit_file(kernels, family.vocabulary, shared));
      }
    }
  }
  write("constants.cpp", shared.definitions("src/simd/x86_64.h"));
  write("generic.cpp", xfm::generic_functions());
  write("catalogue.cpp", xfm::catalogue(rows));
  write("xfm.map", xfm::export_map());
}

// The public header stands in the source tree: renewed on demand, and compared by the tests.
int write_header(const std::filesystem::path& frame, const std::filesystem::path& header, bool check) {
  const std::string text = xfm::public_header(xfm::gen::read_file(frame));
  if (!check) {
    xfm::gen::write_if_changed(header, text);
    return 0;
  }
  if (xfm::gen::read_file(header) == text) return 0;
  std::cerr << header.string() << " does not match the list of families; build the target \"header\"\n";
  return 1;
}

int show(const std::string& name, int length, const std::string& suffix, const std::string& tree) {
  for (const Family& family : families()) {
    for (const auto& type : family.types) {
      if (family.by_hand() || family.name != name || type.suffix() != suffix) continue;
      const Kernel kernel = family.make(length, type.precision, tree);
      const xfm::gen::Counts counts = count(*kernel.network);
      fmt::print("{}\n  tree       {}\n  adds       {} (row {})\n  mults      {} (row {})\n", kernel.name,
                 to_string(xfm::gen::parse_tree(kernel.tree)), counts.adds, kernel.adds, counts.mults,
                 kernel.mults);
      fmt::print(
          "  lanes      {}\n  packed     {} additions, {} multiplications with the factor, {} shuffles, {} "
          "exchanges, {} loads, {} stores\n\n",
          kernel.network->width(), counts.add_nodes, counts.mult_nodes, counts.shuffles, counts.exchanges,
          counts.loads, counts.stores);
      xfm::gen::SharedConstants shared;
      fmt::print("{}", xfm::gen::emit_file({&kernel, 1}, family.vocabulary, shared));
      return 0;
    }
  }
  std::cerr << "no such generated family or type: " << name << " " << suffix << "\n";
  return 1;
}

void costs() {
  fmt::print("{:<32} {:>6} {:>6} {:>6} {:>6}  {}\n", "kernel", "adds", "row", "mults", "row", "tree");
  for (const Family& family : families()) {
    if (family.by_hand()) continue;
    for (const auto& type : family.types) {
      for (const int length : family.lengths) {
        const Kernel kernel = family.make(length, type.precision, "");
        const xfm::gen::Counts counts = count(*kernel.network);
        fmt::print("{:<32} {:>6} {:>6} {:>6} {:>6}  {}\n", kernel.name, counts.adds, kernel.adds,
                   counts.mults, kernel.mults, kernel.tree);
      }
    }
  }
}

int run(int argc, char** argv) {
  CLI::App app{"Writes the kernels of xfm, or shows what a row of a table comes to."};
  std::string out, header, frame, tree;
  std::tuple<std::string, int, std::string> what;
  bool check = false, list_costs = false;
  app.add_option("--out", out, "write all generated sources to this folder");
  app.add_option("--show", what, "FAMILY N TYPE: tree, costs, lanes and text of one kernel");
  app.add_option("--tree", tree, "with --show: this tree instead of the row's");
  app.add_flag("--costs", list_costs, "every kernel's cost beside its row");
  app.add_option("--header", header, "write the public header");
  app.add_option("--frame", frame, "with --header: its hand-written frame");
  app.add_flag("--check", check, "with --header: only compare");
  CLI11_PARSE(app, argc, argv);

  if (!out.empty()) write_all(out);
  if (list_costs) costs();
  if (!header.empty()) return write_header(frame, header, check);
  const auto& [name, length, suffix] = what;
  return name.empty() ? 0 : show(name, length, suffix, tree);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "xfmgen: " << error.what() << "\n";
    return 1;
  }
}
