#include "tools/listing.h"

#include <fmt/format.h>

#include <algorithm>
#include <sstream>

#include "src/wht/recipe/rows.h"

namespace xfm {
namespace {

using gen::ElementType;

std::string kernel_name(const Family& family, int length, const ElementType& type) {
  return fmt::format("xfm{}_{}_{}", family.name, length, type.suffix());
}

// Calls visit(family, type) in the order of the list.
template <class Visit>
void for_each_type(Visit visit) {
  for (const Family& family : families()) {
    for (const ElementType& type : family.types()) visit(family, type);
  }
}

std::string comment(const std::string& documentation) {
  std::istringstream lines(documentation);
  std::string text = "/**\n";
  for (std::string line; std::getline(lines, line);) text += line.empty() ? " *\n" : " * " + line + "\n";
  return text + " */\n";
}

// "(const xfm32f* src, xfm32f* dst, int32_t flag)", with the length in front of the flag for the generic
// function.
std::string parameters(const Family& family, const ElementType& type, bool generic) {
  return fmt::format("(const {0}* src, {0}* dst, {1}int32_t flag{2})", type.name(),
                     generic ? "int32_t " + family.argument() + ", " : "",
                     family.takes_buffer() ? ", void* buffer" : "");
}

std::string declarations(const Family& family) {
  std::string text = fmt::format("/** @name {0}\n * xfm{0}_N_TYPE\n * @{{ */\n", family.name) +
                     comment(family.documentation);
  for (const ElementType& type : family.types()) {
    text += fmt::format("xfmStatus {}{};\n", family.generic(type), parameters(family, type, true));
    for (const int length : family.lengths()) {
      text += fmt::format("xfmStatus {}{};\n", kernel_name(family, length, type),
                          parameters(family, type, false));
    }
  }
  return text + "/** @} */\n";
}

std::string scaling_name(gen::Scaling scaling) {
  switch (scaling) {
    case gen::Scaling::forward:
      return "Scaling::forward";
    case gen::Scaling::inverse:
      return "Scaling::inverse";
    default:
      return "Scaling::symmetric";
  }
}

// The last two columns of a kernel or a generic function.
std::string calls(const std::string& function, bool takes_buffer) {
  return takes_buffer ? fmt::format("&call_with_null<{0}>, &call<{0}>", function)
                      : fmt::format("&call<{}>, nullptr", function);
}

// A kernel and its form as the catalogue has them.
struct Row {
  std::string name, family;
  ElementType type;
  gen::Scaling scaling;
  int length, points, read, written;
  std::string tree;
  int adds, mults, buffer_bytes;
};
struct Form {
  int lanes;
  bool straight, two_variants;
  int bodies, exchanges, add_instructions, mult_instructions;
};

std::string text(const Row& row, bool takes_buffer) {
  std::string text = fmt::format(R"(    {{"{}", "{}", "{}", )", row.name, row.family, row.type.suffix());
  text += row.type.precision == gen::Precision::binary32 ? "Precision::binary32, " : "Precision::binary64, ";
  text += fmt::format("{}, {}, {}, {}, {}, ", scaling_name(row.scaling), row.length, row.points, row.read,
                      row.written);
  text += fmt::format("\"{}\", {}, {}, {}, ", row.tree, row.adds, row.mults, row.buffer_bytes);
  return text + calls(row.name, takes_buffer) + "},\n";
}

std::string text(const Form& form, const std::string& name) {
  return fmt::format("    {{{}, {}, {}, {}, {}, {}, {}}},  // {}\n", form.lanes, form.straight,
                     form.two_variants, form.bodies, form.exchanges, form.add_instructions,
                     form.mult_instructions, name);
}

}  // namespace

std::string public_header(const std::string& frame) {
  std::string lengths, declared;
  for (const Family& family : families()) {
    declared += declarations(family) + "\n";
    // Families that the generator designs have the same lengths.
    const std::string name = family.by_hand() ? family.name : "DFT",
                      what = family.by_hand() ? "ORDER" : "LENGTH",
                      of = family.by_hand() ? "Walsh-Hadamard" : "complex, real and Hartley";
    const std::string defined = fmt::format(
        "#define XFM_{0}_MIN_{1} {2} /**< of {4} transforms */\n#define XFM_{0}_MAX_{1} {3} /**< of {4} "
        "transforms */\n",
        name, what, family.lowest, family.highest, of);
    if (lengths.find(defined) == std::string::npos) lengths += defined;
  }
  std::string header = frame;
  for (const auto& [mark, text] : {std::pair{"@LENGTHS@\n", lengths}, std::pair{"@FAMILIES@\n", declared}})
    header.replace(header.find(mark), std::string_view(mark).size(), text);
  return header;
}

std::string export_map() {
  std::string text = "{\n  global:\n";
  for (const std::string& name : plain_functions()) text += fmt::format("    {};\n", name);
  for_each_type([&](const Family& family, const ElementType& type) {
    text += fmt::format("    {};\n", family.generic(type));
    for (const int length : family.lengths())
      text += fmt::format("    {};\n", kernel_name(family, length, type));
  });
  return text + "  local: *;\n};\n";
}

std::string generic_functions() {
  std::string text =
      "// Written by xfmgen from the list of families: the length chooses the kernel, and nothing else is "
      "tested here.\n";
  text += "#include \"xfm.h\"\n\n";
  for_each_type([&](const Family& family, const ElementType& type) {
    text += fmt::format("xfmStatus {}{} {{\n  switch ({}) {{\n", family.generic(type),
                        parameters(family, type, true), family.argument());
    for (const int length : family.lengths()) {
      text += fmt::format("    case {}: return {}(src, dst, flag{});\n", length,
                          kernel_name(family, length, type), family.takes_buffer() ? ", buffer" : "");
    }
    text += "    default: return xfmStsBadSize;\n  }\n}\n\n";
  });
  return text;
}

Listed& Listed::operator+=(const Listed& more) {
  kernel += more.kernel;
  form += more.form;
  return *this;
}

// With one complex number per register, each join exchanges the parts once, so the number of permutations is
// exact.
Listed listed(const Family& family, const gen::Kernel& kernel, const gen::Target& target) {
  const gen::Counts counts = count(*kernel.network);
  const bool two_variants = kernel.packed() && !target.unaligned_is_free;
  const bool joined =
      two_variants && kernel.type.complex && kernel.type.precision == gen::Precision::binary64;
  const Row row = {.name = kernel.name(),
                   .family = kernel.family,
                   .type = kernel.type,
                   .scaling = kernel.scaling,
                   .length = kernel.length,
                   .points = kernel.length,
                   .read = kernel.read,
                   .written = kernel.written,
                   .tree = kernel.tree,
                   .adds = kernel.adds,
                   .mults = kernel.mults,
                   .buffer_bytes = 0};
  const Form form = {.lanes = kernel.network->width(),
                     .straight = true,
                     .two_variants = two_variants,
                     .bodies = 1,
                     .exchanges = joined ? counts.permutations : -1,
                     .add_instructions = counts.add_nodes,
                     .mult_instructions = counts.mult_nodes};
  return {text(row, family.takes_buffer()), text(form, row.name)};
}

Listed listed(const Family& family, int length, const ElementType& type, const gen::Target& target) {
  const wht::Facts facts = wht::facts(length, type.precision, target);
  const Row row = {.name = kernel_name(family, length, type),
                   .family = family.name,
                   .type = type,
                   .scaling = gen::Scaling::symmetric,
                   .length = length,
                   .points = facts.points,
                   .read = facts.points,
                   .written = facts.points,
                   .tree = facts.tree,
                   .adds = facts.adds,
                   .mults = 0,
                   .buffer_bytes = facts.buffer_bytes};
  const Form form = {.lanes = facts.lanes,
                     .straight = facts.straight,
                     .two_variants = facts.two_variants,
                     .bodies = facts.bodies,
                     .exchanges = -1,
                     .add_instructions = facts.add_instructions,
                     .mult_instructions = facts.mult_instructions};
  return {text(row, family.takes_buffer()), text(form, row.name)};
}

std::string catalogue_of_forms(const gen::Target& target, const std::string& forms) {
  std::string identifier(target.name);
  std::ranges::replace(identifier, '-', '_');
  return fmt::format(R"(// Written by xfmgen from the list of families.
#include "tools/catalogue.h"

namespace xfm::catalogue {{
namespace {{

constexpr Form all_forms[] = {{
{1}}};

}}  // namespace

extern const std::span<const Form> forms_{0};
constinit const std::span<const Form> forms_{0} = all_forms;

}}  // namespace xfm::catalogue
)",
                     identifier, forms);
}

std::string catalogue(const std::string& kernels) {
  std::string generics;
  for_each_type([&](const Family& family, const ElementType& type) {
    generics += fmt::format("    {{\"{}\", \"{}\", \"{}\", {}, {}, {}}},\n", family.generic(type),
                            family.name, type.suffix(), family.lowest, family.highest,
                            calls(family.generic(type), family.takes_buffer()));
  });
  return R"(// Written by xfmgen from the list of families.
#include "tools/catalogue.h"

namespace xfm::catalogue {
namespace {

// Element types are erased, so that all kernels share one signature and all generic functions another.
template <class T, class... Rest>
xfmStatus run(xfmStatus (*function)(const T*, T*, Rest...), const void* src, void* dst, Rest... rest) {
  return function(static_cast<const T*>(src), static_cast<T*>(dst), rest...);
}
template <auto function, class... Rest>
xfmStatus call(const void* src, void* dst, Rest... rest) {
  return run(function, src, dst, rest...);
}
template <auto function, class... Rest>
xfmStatus call_with_null(const void* src, void* dst, Rest... rest) {
  return run(function, src, dst, rest..., static_cast<void*>(nullptr));
}

constexpr Kernel all_kernels[] = {
)" + kernels +
         "};\n\nconstexpr Generic all_generics[] = {\n" + generics + R"(};

}  // namespace

std::span<const Kernel> kernels() { return all_kernels; }
std::span<const Generic> generics() { return all_generics; }

}  // namespace xfm::catalogue
)";
}

}  // namespace xfm
