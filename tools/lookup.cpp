#include "tools/lookup.h"

#include <fmt/format.h>

#include "tools/families.h"

namespace xfm {
namespace {

using gen::ElementType;

/// The columns that a public header has.
constexpr std::size_t line_length = 120;

// "    xfmHartley_2_32f, xfmHartley_3_32f,\n ..", as many in a line as fit.
std::string entries(const Family& family, const ElementType& type) {
  std::string text, line;
  for (const int length : family.lengths()) {
    const std::string entry = fmt::format(" xfm{}_{}_{},", family.name, length, type.suffix());
    if (!line.empty() && line.size() + entry.size() > line_length) {
      text += line + "\n";
      line.clear();
    }
    line += (line.empty() ? "   " : "") + entry;
  }
  return text + line + "\n";
}

std::string lookup(const Family& family, const ElementType& type) {
  return fmt::format(
      "XFM_LOOKUP_INLINE xfmKernel{0}_{1} xfmLookup{2}_{1}(int32_t {3}) {{\n"
      "  static const xfmKernel{0}_{1} kernels[] = {{\n{4}  }};\n"
      "  return {5} <= {3} && {3} <= {6} ? kernels[{3} - {5}] : XFM_LOOKUP_NONE;\n"
      "}}\n",
      family.takes_buffer() ? family.name : "", type.suffix(), family.name, family.argument(),
      entries(family, type), family.lowest, family.highest);
}

}  // namespace

std::string header_of_lookup(const std::string& frame) {
  std::string text;
  for (const Family& family : families()) {
    const auto types = family.types();
    text += fmt::format("/** @name Lookup {0}\n * @{{ */\n", family.name);
    text +=
        fmt::format("/** The kernel xfm{0}_N_{1}, or xfm{0}_N_{2}, of this {3} N, {4} to {5}; ", family.name,
                    types[0].suffix(), types[1].suffix(), family.argument(), family.lowest, family.highest);
    text += "null for any other. */\n";
    for (const ElementType& type : types) text += lookup(family, type);
    text += "/** @} */\n\n";
  }
  std::string header = frame;
  const std::string mark = "@LOOKUPS@\n";
  return header.replace(header.find(mark), mark.size(), text);
}

}  // namespace xfm
