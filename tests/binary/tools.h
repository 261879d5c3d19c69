// What binutils say of a shared library.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace xfm::test {

/// The lines that a command prints; throws if it fails.
std::vector<std::string> lines_of(const std::string& command);

/// The parts of a line between blanks.
std::vector<std::string> words_of(const std::string& line);

struct Symbol {
  std::string name;
  char kind;  ///< as nm has it: T code, D data, R read-only data, U imported, w weak, lower case local
  std::uint64_t address;
};
/// What other programs see, and what the library wants of others.
std::vector<Symbol> dynamic_symbols(const std::string& library);
/// All that the library was linked from.
std::vector<Symbol> symbols(const std::string& library);

struct Section {
  std::string name;
  std::uint64_t address, size;
  bool writable, executable;

  bool holds(std::uint64_t place) const { return place >= address && place - address < size; }
};
/// Those that are in memory when the library is loaded.
std::vector<Section> sections(const std::string& library);

}  // namespace xfm::test
