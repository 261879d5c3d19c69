// Writing files only if their bytes change, so that a build recompiles only what changed.
#pragma once

#include <filesystem>
#include <string>

namespace xfm::gen {

/// True if the file was written, false if it held these bytes already.
bool write_if_changed(const std::filesystem::path& path, const std::string& text);

std::string read_file(const std::filesystem::path& path);

}  // namespace xfm::gen
