#include "tests/binary/tools.h"

#include <cstdio>
#include <sstream>
#include <stdexcept>

#include "paths.h"

namespace xfm::test {
namespace {

std::string quoted(const std::string& path) { return "'" + path + "'"; }

}  // namespace

std::vector<std::string> lines_of(const std::string& command) {
  // Commands and paths come from this build.  NOLINTNEXTLINE(cert-env33-c)
  FILE* pipe = popen(("LC_ALL=C " + command).c_str(), "r");
  if (pipe == nullptr) throw std::runtime_error("cannot run " + command);
  std::string text;
  char buffer[1 << 16];
  for (std::size_t got; (got = fread(buffer, 1, sizeof buffer, pipe)) > 0;) text.append(buffer, got);
  if (pclose(pipe) != 0) throw std::runtime_error("failed: " + command);
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> words_of(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

// nm -P prints "name kind [value size]"; a version follows after @.
namespace {
std::vector<Symbol> symbols_by(const std::string& command) {
  std::vector<Symbol> symbols;
  for (const std::string& line : lines_of(command)) {
    const auto words = words_of(line);
    if (words.size() < 2) throw std::runtime_error("nm: " + line);
    const std::uint64_t address = words.size() > 2 ? std::stoull(words[2], nullptr, 16) : 0;
    symbols.push_back({words[0].substr(0, words[0].find('@')), words[1][0], address});
  }
  return symbols;
}
}  // namespace

std::vector<Symbol> dynamic_symbols(const std::string& library) {
  return symbols_by(std::string(paths::nm) + " -D -P " + quoted(library));
}

std::vector<Symbol> symbols(const std::string& library) {
  return symbols_by(std::string(paths::nm) + " -P " + quoted(library));
}

// readelf -SW prints "[ 9] .text PROGBITS address offset size entry flags ...": the number's bracket may hold
// a blank, and the flags may be missing.
std::vector<Section> sections(const std::string& library) {
  std::vector<Section> result;
  for (const std::string& line : lines_of(std::string(paths::readelf) + " -SW " + quoted(library))) {
    const auto bracket = line.find(']');
    if (line.find('[') == std::string::npos || bracket == std::string::npos) continue;
    const auto words = words_of(line.substr(bracket + 1));
    if (words.size() < 7 || words[0][0] != '.') continue;
    const std::string& flags = words[6];
    if (flags.find('A') == std::string::npos) continue;
    result.push_back({words[0], std::stoull(words[2], nullptr, 16), std::stoull(words[4], nullptr, 16),
                      flags.find('W') != std::string::npos, flags.find('X') != std::string::npos});
  }
  return result;
}

}  // namespace xfm::test
