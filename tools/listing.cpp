#include "tools/listing.h"

#include <fmt/format.h>

#include <sstream>

#include "gen/check.h"
#include "tools/families.h"

namespace xfm {
namespace {

using gen::ElementType;
using gen::Kernel;

std::string kernel_name(const Family& family, int length, const ElementType& type) {
  return fmt::format("xfm{}_{}_{}", family.name, length, type.suffix());
}

// Calls visit(family, type) in the order of the list.
template <class Visit>
void for_each_type(Visit visit) {
  for (const Family& family : families()) {
    for (const ElementType& type : family.types) visit(family, type);
  }
}

std::string comment(const std::string& documentation) {
  std::istringstream lines(documentation);
  std::string text = "/**\n";
  for (std::string line; std::getline(lines, line);) text += line.empty() ? " *\n" : " * " + line + "\n";
  return text + " */\n";
}

std::string arguments(const ElementType& type, const char* rest) {
  return fmt::format("(const {0}* src, {0}* dst, {1})", type.name(), rest);
}

std::string declarations(const Family& family) {
  std::string text = fmt::format("/** @name {0}\n * xfm{0}_N_TYPE\n * @{{ */\n", family.name) +
                     comment(family.documentation);
  for (const ElementType& type : family.types) {
    text += fmt::format("xfmStatus {}{};\n", family.generic(type),
                        arguments(type, "int32_t length, int32_t flag"));
    for (const int length : family.lengths) {
      text += fmt::format("xfmStatus {}{};\n", kernel_name(family, length, type),
                          arguments(type, "int32_t flag"));
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

std::string catalogue_row(const Kernel& kernel) {
  const gen::Counts counts = count(*kernel.network);
  const int exchanges = kernel.network->width() == 2 ? counts.exchanges : -1;
  std::string row =
      fmt::format(R"(    {{"{}", "{}", "{}", )", kernel.name, kernel.family, kernel.type.suffix());
  row += kernel.type.precision == gen::Precision::single ? "Precision::single, " : "Precision::twofold, ";
  row += fmt::format("{}, {}, {}, {}, {}, ", scaling_name(kernel.scaling), kernel.length, kernel.read,
                     kernel.written, exchanges);
  row +=
      fmt::format("{0}, {0}, \"{1}\", {2}, {3}, ", kernel.packed(), kernel.tree, kernel.adds, kernel.mults);
  return row + fmt::format("{}, {}, &call<{}>}},\n", counts.add_nodes, counts.mult_nodes, kernel.name);
}

}  // namespace

std::string public_header(const std::string& frame) {
  std::string text;
  for (const Family& family : families()) text += declarations(family) + "\n";
  std::string header = frame;
  const std::string mark = "@FAMILIES@\n";
  return header.replace(header.find(mark), mark.size(), text);
}

std::string export_map() {
  std::string text = "{\n  global:\n";
  for (const std::string& name : plain_functions()) text += fmt::format("    {};\n", name);
  for_each_type([&](const Family& family, const ElementType& type) {
    text += fmt::format("    {};\n", family.generic(type));
    for (const int length : family.lengths)
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
    text += fmt::format("xfmStatus {}{} {{\n  switch (length) {{\n", family.generic(type),
                        arguments(type, "int32_t length, int32_t flag"));
    for (const int length : family.lengths) {
      text +=
          fmt::format("    case {}: return {}(src, dst, flag);\n", length, kernel_name(family, length, type));
    }
    text += "    default: return xfmStsBadSize;\n  }\n}\n\n";
  });
  return text;
}

std::string catalogue(std::span<const Kernel> all) {
  std::string kernels, generics;
  for (const Kernel& kernel : all) kernels += catalogue_row(kernel);
  for_each_type([&](const Family& family, const ElementType& type) {
    generics += fmt::format("    {{\"{0}\", \"{1}\", \"{2}\", {3}, {4}, &call_generic<{0}>}},\n",
                            family.generic(type), family.name, type.suffix(), family.lowest, family.highest);
  });
  return R"(// Written by xfmgen from the list of families.
#include "tools/catalogue.h"

namespace xfm::catalogue {
namespace {

template <class T>
using Fixed = xfmStatus (*)(const T*, T*, std::int32_t);
template <class T>
using Sized = xfmStatus (*)(const T*, T*, std::int32_t, std::int32_t);

template <class T>
xfmStatus run(Fixed<T> kernel, const void* src, void* dst, std::int32_t flag) {
  return kernel(static_cast<const T*>(src), static_cast<T*>(dst), flag);
}
template <class T>
xfmStatus run(Sized<T> generic, const void* src, void* dst, std::int32_t length, std::int32_t flag) {
  return generic(static_cast<const T*>(src), static_cast<T*>(dst), length, flag);
}
template <auto kernel>
xfmStatus call(const void* src, void* dst, std::int32_t flag) {
  return run(kernel, src, dst, flag);
}
template <auto generic>
xfmStatus call_generic(const void* src, void* dst, std::int32_t length, std::int32_t flag) {
  return run(generic, src, dst, length, flag);
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
