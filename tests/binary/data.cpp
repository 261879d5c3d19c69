// The library has no writable data and no start-up code of its own: its constants are read-only, and what is
// writable is what the toolchain puts into any shared library.
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "paths.h"
#include "tests/binary/tools.h"
#include "tests/support/library.h"

namespace xfm::test {
namespace {

std::map<std::string, Section> writable_sections(const std::string& path) {
  std::map<std::string, Section> result;
  for (const Section& section : sections(path))
    if (section.writable) result.emplace(section.name, section);
  return result;
}

// Addresses inside constants are filled in by the loader, which then protects these sections.
const std::set<std::string> protected_after_loading = {".data.rel.ro", ".dynamic", ".got"};

TEST(Data, NothingWritableOfItsOwn) {
  const auto of_toolchain = writable_sections(paths::empty_library);
  for (const auto& [name, section] : writable_sections(library_file())) {
    if (protected_after_loading.contains(name)) continue;
    const auto usual = of_toolchain.find(name);
    if (usual == of_toolchain.end()) {
      EXPECT_EQ(section.size, 0U) << name << " is writable";
    } else {
      EXPECT_LE(section.size, usual->second.size) << name << " holds more than the toolchain's start-up code";
    }
  }
}

// A small object can hide in the padding of a section, but its name cannot.
TEST(Data, NoWritableObjectOfItsOwn) {
  std::set<std::string> of_toolchain;
  for (const Symbol& symbol : symbols(paths::empty_library)) of_toolchain.insert(symbol.name);
  const auto writable = writable_sections(library_file());
  for (const Symbol& symbol : symbols(library_file())) {
    for (const auto& [name, section] : writable) {
      if (protected_after_loading.contains(name) || !section.holds(symbol.address)) continue;
      EXPECT_TRUE(of_toolchain.contains(symbol.name)) << symbol.name << " is writable, in " << name;
    }
  }
}

TEST(Data, ConstantsWithAddressesAreProtected) {
  bool protects = false, at_once = false;
  std::uint64_t start = 0, end = 0;
  for (const std::string& line : lines_of(std::string(paths::readelf) + " -ldW '" + library_file() + "'")) {
    const auto words = words_of(line);
    if (!words.empty() && words[0] == "GNU_RELRO") {
      protects = true;
      start = std::stoull(words[2], nullptr, 16);
      end = start + std::stoull(words[5], nullptr, 16);
    }
    if (line.find("BIND_NOW") != std::string::npos || line.find("Flags: NOW") != std::string::npos)
      at_once = true;
    EXPECT_EQ(line.find("(TEXTREL)"), std::string::npos) << "the loader patches code";
  }
  EXPECT_TRUE(protects);
  EXPECT_TRUE(at_once);
  for (const auto& [name, section] : writable_sections(library_file())) {
    if (!protected_after_loading.contains(name)) continue;
    EXPECT_GE(section.address, start) << name;
    EXPECT_LE(section.address + section.size, end) << name;
  }
}

// Kernels need nothing from outside but the core. Sines and cosines are for the tables of the DCT-IV.
TEST(Data, ImportsCoreServicesAndSinesOnly) {
  const std::set<std::string> allowed = {"xfmMalloc", "xfmFree", "ownGetFeature", "cos",    "cosf",
                                         "sin",       "sinf",    "sincos",        "sincosf"};
  for (const Symbol& symbol : dynamic_symbols(library_file())) {
    if (symbol.kind != 'U') continue;
    EXPECT_TRUE(allowed.contains(symbol.name.substr(0, symbol.name.find('@'))))
        << symbol.name << " is imported";
  }
}

}  // namespace
}  // namespace xfm::test
