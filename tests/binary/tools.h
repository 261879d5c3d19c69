// What binutils report about a shared library.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace xfm::test {

/// The output of a command, line by line; throws if it fails.
std::vector<std::string> lines_of(const std::string& command);

/// The words of a line.
std::vector<std::string> words_of(const std::string& line);

struct Symbol {
  std::string name;
  char kind;  ///< as nm prints it: T code, D data, R read-only data, U imported, w weak, lower case local
  std::uint64_t address;
};
/// The exported and imported symbols.
std::vector<Symbol> dynamic_symbols(const std::string& library);
/// All symbols, local ones included.
std::vector<Symbol> symbols(const std::string& library);

struct Section {
  std::string name;
  std::uint64_t address, size;
  bool writable, executable;

  bool holds(std::uint64_t place) const { return place >= address && place - address < size; }
};
/// The sections that the loader maps.
std::vector<Section> sections(const std::string& library);

}  // namespace xfm::test
