// What the libraries export: exactly the functions of the headers, and no data.
#include <gtest/gtest.h>

#include <cctype>
#include <fstream>
#include <set>
#include <sstream>

#include "paths.h"
#include "tests/binary/tools.h"
#include "tests/support/library.h"
#include "tools/catalogue.h"

namespace xfm::test {
namespace {

using Names = std::set<std::string>;

std::string without_comments(const std::string& text) {
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    if (text.compare(at, 2, "/*") == 0) {
      const auto end = text.find("*/", at + 2);
      at = end == std::string::npos ? text.size() : end + 2;
    } else if (text.compare(at, 2, "//") == 0) {
      at = std::min(text.find('\n', at), text.size());
    } else {
      result += text[at++];
    }
  }
  return result;
}

/// The names with the prefix that precede an opening parenthesis.
Names declared(const std::string& path, const std::string& prefix) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::ostringstream whole;
  whole << file.rdbuf();
  const std::string text = without_comments(whole.str());
  const auto in_name = [](char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_'; };
  Names names;
  for (auto bracket = text.find('('); bracket != std::string::npos; bracket = text.find('(', bracket + 1)) {
    auto start = bracket;
    while (start > 0 && in_name(text[start - 1])) --start;
    const std::string name = text.substr(start, bracket - start);
    if (name.starts_with(prefix)) names.insert(name);
  }
  return names;
}

Names exported(const std::string& library) {
  Names names;
  for (const Symbol& symbol : dynamic_symbols(library)) {
    if (symbol.kind == 'U' || symbol.kind == 'w' || symbol.kind == 'v') continue;  // imported
    EXPECT_EQ(symbol.kind, 'T') << symbol.name << " is not a function";
    names.insert(symbol.name);
  }
  return names;
}

/// Reports the names that are in one set only.
void expect_same(const Names& got, const Names& expected) {
  for (const std::string& name : got)
    EXPECT_TRUE(expected.contains(name)) << name << " is exported, but not declared";
  for (const std::string& name : expected)
    EXPECT_TRUE(got.contains(name)) << name << " is declared, but not exported";
}

TEST(Exports, AreTheHeadersFunctions) {
  const Names names = declared(paths::header, "xfm");
  EXPECT_TRUE(names.contains("xfmGetLibVersion"));
  expect_same(exported(library_file()), names);
}

TEST(Exports, HoldTheCatalogue) {
  const Names names = exported(library_file());
  for (const auto& kernel : catalogue::kernels()) EXPECT_TRUE(names.contains(kernel.name)) << kernel.name;
  for (const auto& generic : catalogue::generics()) EXPECT_TRUE(names.contains(generic.name)) << generic.name;
}

/// The names that follow from the list of families: the catalogue, and the functions that are not kernels.
Names of_families() {
  Names names = {"xfmGetLibVersion", "xfmWHTGetBufferSize_32f", "xfmWHTGetBufferSize_64f"};
  for (const auto& kernel : catalogue::kernels()) names.insert(kernel.name);
  for (const auto& generic : catalogue::generics()) names.insert(generic.name);
  for (const std::string name : {"GetSize", "Init", "InitAlloc", "", "Free"})
    for (const std::string type : {"_32f", "_64f"}) names.insert("xfmDCT4" + name + type);
  return names;
}

TEST(Exports, AreThoseOfTheFamilies) { expect_same(exported(library_file()), of_families()); }

TEST(Exports, AreAll) { EXPECT_EQ(exported(library_file()).size(), 1193U); }

TEST(Exports, OfTheCoreLibrary) {
  expect_same(exported(paths::core_library), {"xfmMalloc", "xfmFree", "ownGetFeature"});
}

}  // namespace
}  // namespace xfm::test
