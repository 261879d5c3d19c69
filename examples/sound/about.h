// Error messages that name the file.
#pragma once

#include <stdexcept>
#include <string>

/// Prefixes the message of any error with the file's name.
template <typename Work>
auto about(const std::string& file, Work work) {
  try {
    return work();
  } catch (const std::exception& error) {
    throw std::runtime_error(file + ": " + error.what());
  }
}
