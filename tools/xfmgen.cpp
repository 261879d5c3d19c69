// xfmgen: writes the library's kernels and everything that follows from the list of families, and shows what
// becomes of a table's row.
#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <iostream>
#include <map>
#include <set>
#include <tuple>

#include "gen/algorithms/rules.h"
#include "gen/bounds/bounds.h"
#include "gen/write/emit.h"
#include "gen/write/files.h"
#include "tools/listing.h"
#include "tools/lookup.h"
#include "tools/many.h"
#include "tools/measured.h"
#include "tools/promises.h"

namespace {

using xfm::families;
using xfm::Family;
using xfm::gen::Kernel;
using xfm::gen::Target;

// A target, how many lanes its kernels have, and in which order they compute: as the tables say, or as many
// lanes as possible up to a limit, and one order for all.
struct Form {
  const Target& target;
  int lanes = 0;
  std::string order{};
  xfm::gen::Pairing& pairing;
};

struct Named {
  const Family* family;
  xfm::gen::ElementType type;
  int length;
};

// A kernel in the form that it has on a target.
Kernel made(const Named& what, const std::string& tree, const Form& form) {
  Kernel kernel = what.family->make(what.length, what.type.precision, tree, form.target);
  const int lanes = form.lanes == 0 ? xfm::chosen_lanes(kernel, form.target)
                                    : xfm::lanes_up_to(form.lanes, kernel, form.target);
  kernel.order = form.order.empty() ? xfm::chosen_order(kernel, form.target) : xfm::order_of(form.order[0]);
  return paired(std::move(kernel), lanes, form.pairing);
}

// Both precisions, on every target with the baseline's bits.
std::vector<Kernel> kernels_of(const Family& family, int length, const Form& form) {
  std::vector<Kernel> kernels;
  for (const auto& type : family.types()) {
    kernels.push_back(made({&family, type, length}, "", form));
    if (form.target.name != xfm::gen::baseline().name)
      xfm::check_against_baseline(kernels.back(), family.make(length, type.precision));
  }
  return kernels;
}

// One file for each length: a changed row recompiles that file and no other. What is the same for all targets
// is written with the baseline's.
void write_all(const std::filesystem::path& out, const Form& form) {
  const Target& target = form.target;
  const auto write = [&](const std::string& name, const std::string& text) {
    xfm::gen::write_if_changed(out / name, text);
  };
  xfm::gen::SharedConstants shared("xfm"), shared_by_loops("xfm_many");
  std::vector<Kernel> in_loops;
  std::map<std::string, xfm::Listed> rows;  // of each family
  std::map<int, std::vector<const Family*>> by_length;
  for (const Family& family : families()) {
    for (const int length : family.lengths()) by_length[length].push_back(&family);
  }
  for (const auto& [length, all] : by_length) {
    std::vector<Kernel> kernels;
    for (const Family* const family : all) {
      xfm::Listed& family_rows = rows[family->name];
      if (family->by_hand()) {
        for (const auto& type : family->types()) family_rows += xfm::listed(*family, length, type, target);
        continue;
      }
      std::vector<Kernel> of_family = kernels_of(*family, length, form);
      for (const Kernel& kernel : of_family) family_rows += xfm::listed(*family, kernel, target);
      std::ranges::move(of_family, std::back_inserter(kernels));
    }
    xfm::check_promises(kernels);
    if (!kernels.empty()) write(fmt::format("kernels_{}.cpp", length), emit_file(kernels, target, shared));
    if (length <= xfm::longest_in_loop) std::ranges::move(kernels, std::back_inserter(in_loops));
  }
  xfm::Listed all_rows;
  for (const Family& family : families()) all_rows += rows[family.name];
  write("constants.cpp", shared.definitions(target));
  write("loops.cpp", emit_loops(in_loops, target, shared_by_loops));
  write("constants_of_loops.cpp", shared_by_loops.definitions(target));
  write("forms.cpp", xfm::catalogue_of_forms(target, all_rows.form));
  if (target.name != xfm::gen::baseline().name) return;
  write("catalogue.cpp", xfm::catalogue(all_rows.kernel));
  write("generic.cpp", xfm::generic_functions());
  write("xfm.map", xfm::export_map());
}

// A public header is part of the source tree: rewritten on demand, and compared by the tests.
int write_header(const std::filesystem::path& header, const std::string& text, bool check) {
  if (!check) {
    xfm::gen::write_if_changed(header, text);
    return 0;
  }
  if (xfm::gen::read_file(header) == text) return 0;
  std::cerr << header.string() << " does not match the list of families; build the target \"header\"\n";
  return 1;
}

Named named(const std::tuple<std::string, int, std::string>& what) {
  const auto& [name, length, suffix] = what;
  for (const Family& family : families()) {
    for (const auto& type : family.types()) {
      if (!family.by_hand() && family.name == name && type.suffix() == suffix) return {&family, type, length};
    }
  }
  throw std::invalid_argument("no such generated family or type: " + name + " " + suffix);
}

// Every rule of a tree with its meaning, the outermost first.
void show_rules(const xfm::gen::Tree& tree, std::set<std::string_view>& shown) {
  const xfm::gen::Rule& rule = rule_of(tree);
  if (shown.insert(rule.name).second && !rule.name.empty())
    fmt::print("  {:<10} {} ({})\n", rule.name, rule.formula, rule.source);
  for (const xfm::gen::Tree& arg : tree.args) show_rules(arg, shown);
}

// Certified for every output, in units of the roundoff u.
void show_bounds(const Named& what, const std::string& tree, const Kernel& kernel) {
  const xfm::gen::Precision precision = what.type.precision;
  const xfm::gen::Design design = what.family->design(what.length, precision, tree, xfm::gen::baseline());
  const xfm::gen::Matrix exact = matrix_of(design.definition, kernel.read, kernel.written);
  const auto bound = [&](xfm::gen::Factor factor) {
    return greatest(xfm::gen::bounds(*kernel.network, precision, exact, factor));
  };
  const xfm::gen::Bound plain = bound(xfm::gen::Factor::one), scaled = bound(xfm::gen::Factor::any);
  const bool single = precision == xfm::gen::Precision::binary32;
  fmt::print(
      "  bounds     {:.4g} u |x|, {:.4g} u if all |x(i)| <= 1; by a factor {:.4g}, {:.4g}; u is 2^{}\n",
      plain.norm, plain.unit, scaled.norm, scaled.unit, single ? -24 : -53);
  fmt::print("  underflow  {:.4g} t; by a factor {:.4g} t; t is 2^{}\n", plain.underflow, scaled.underflow,
             single ? -150 : -1075);
}

void show(const Named& what, const std::string& tree, const Form& form) {
  const Kernel kernel = made(what, tree, form);
  const xfm::gen::Counts counts = count(*kernel.network);
  const xfm::gen::Tree parsed = xfm::gen::parse_tree(kernel.tree);
  fmt::print("{}\n  tree       {}\n  adds       {} (row {})\n  mults      {} (row {})\n", kernel.name(),
             to_string(parsed), counts.adds, kernel.adds, counts.mults, kernel.mults);
  fmt::print(
      "  lanes      {}\n  packed     {} additions, {} multiplications with the factor, {} permutations, "
      "{} loads, {} stores\n",
      kernel.network->width(), counts.add_nodes, counts.mult_nodes, counts.permutations, counts.loads,
      counts.stores);
  show_bounds(what, tree, kernel);
  std::set<std::string_view> shown;
  show_rules(parsed, shown);
  xfm::gen::SharedConstants shared("xfm");
  fmt::print("\n{}", emit_file({&kernel, 1}, form.target, shared));
}

void show_program(const Named& what, const std::string& tree, const Target& target) {
  const Kernel kernel = what.family->make(what.length, what.type.precision, tree, target);
  xfm::gen::Programs programs(xfm::gen::Equality::bits);
  const xfm::gen::Program program = xfm::program_of(kernel, programs);
  fmt::print("# {}: {}, digest {:016x}\n{}", kernel.name(), kernel.tree, programs.digest(program),
             programs.text(program));
}

void costs(const Form& form) {
  fmt::print("{:<32} {:>6} {:>6} {:>6} {:>6}  {}\n", "kernel", "adds", "row", "mults", "row", "tree");
  for (const Family& family : families()) {
    for (const auto& type : family.types()) {
      for (const int length : family.by_hand() ? std::vector<int>{} : family.lengths()) {
        const Kernel kernel = made({&family, type, length}, "", form);
        const xfm::gen::Counts counts = count(*kernel.network);
        fmt::print("{:<32} {:>6} {:>6} {:>6} {:>6}  {}\n", kernel.name(), counts.adds, kernel.adds,
                   counts.mults, kernel.mults, kernel.tree);
      }
    }
  }
}

// The batch kernels of a target, one file for each length, and what is the same for all targets.
void write_batches(const std::filesystem::path& out, const Target& target, xfm::Singles singles) {
  const auto write = [&](const std::string& name, const std::string& text) {
    xfm::gen::write_if_changed(out / name, text);
  };
  std::set<int> lengths;
  for (const Family& family : families()) {
    if (!family.by_hand()) std::ranges::copy(family.lengths(), std::inserter(lengths, lengths.end()));
  }
  for (const int length : lengths)
    write(fmt::format("batch_{}.cpp", length), xfm::batches_of_length(length, target, singles));
  write("many.cpp", xfm::functions_of_batches(target, singles));
  if (target.name != xfm::gen::baseline().name) return;
  write("xfmmany.map", xfm::export_map_of_batches());
  write("many_catalogue.cpp", xfm::catalogue_of_batches());
}

int run(int argc, char** argv) {
  CLI::App app{"Writes the kernels of xfm, or shows what becomes of a table's row."};
  std::string out, batches, header, frame, tree, order;
  std::vector<std::string> target_names{std::string(xfm::gen::baseline().name)};
  std::tuple<std::string, int, std::string> shown, program;
  int lanes = 0;
  xfm::Singles singles;
  bool check = false, list_costs = false, many = false, lookup = false;
  app.add_option("--out", out, "Write all generated sources below this folder, in those of the targets");
  app.add_option("--batches", batches, "Write the generated sources of batches, likewise");
  app.add_option("--target", target_names, "For these targets; kernels that they share are searched once")
      ->capture_default_str();
  app.add_option("--lanes", lanes,
                 "Up to so many lanes instead of those of the table, but for complex kernels in binary32");
  app.add_option("--order", order, "One order for all, by its letter, instead of those of the table");
  app.add_option("--singles", singles,
                 "With --batches: up to so many contiguous transforms one by one, instead of the table's");
  app.add_option("--show", shown, "FAMILY N TYPE: tree, costs, error bounds, rules and text of one kernel");
  app.add_option("--program", program, "FAMILY N TYPE: the scalar program of one kernel");
  app.add_option("--tree", tree, "With --show and --program: this tree instead of the row's");
  app.add_flag("--costs", list_costs, "Every kernel's cost beside its row");
  app.add_option("--header", header, "Write the public header");
  app.add_option("--frame", frame, "With --header: its hand-written frame");
  CLI::Option* const of_batches = app.add_flag("--many", many, "With --header: that of batches");
  app.add_flag("--lookup", lookup, "With --header: that of the lookup")->excludes(of_batches);
  app.add_flag("--check", check, "With --header: only compare");
  CLI11_PARSE(app, argc, argv);

  xfm::gen::Pairing pairing;
  for (const std::string& name : target_names) {
    const Target& target = xfm::gen::target(name);
    if (!out.empty()) write_all(out / std::filesystem::path(target.folder), {target, lanes, order, pairing});
    if (!batches.empty()) write_batches(batches / std::filesystem::path(target.folder), target, singles);
  }
  const Form form{xfm::gen::target(target_names.front()), lanes, order, pairing};
  if (list_costs) costs(form);
  if (!std::get<0>(shown).empty()) show(named(shown), tree, form);
  if (!std::get<0>(program).empty()) show_program(named(program), tree, form.target);
  if (header.empty()) return 0;
  const std::string text = xfm::gen::read_file(frame);
  const auto written = many ? xfm::header_of_batches : lookup ? xfm::header_of_lookup : xfm::public_header;
  return write_header(header, written(text), check);
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
