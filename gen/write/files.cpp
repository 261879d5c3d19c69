#include "gen/write/files.h"

#include <fstream>
#include <sstream>
#include <stdexcept>

namespace xfm::gen {

std::string read_file(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

bool write_if_changed(const std::filesystem::path& path, const std::string& text) {
  if (std::filesystem::exists(path) && read_file(path) == text) return false;
  if (path.has_parent_path()) std::filesystem::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary);
  out << text;
  if (!out.flush()) throw std::runtime_error("cannot write " + path.string());
  return true;
}

}  // namespace xfm::gen
