// Messages that say which file they are about.
#pragma once

#include <stdexcept>
#include <string>

/// Puts the file's name before whatever went wrong with it.
template <typename Work>
auto about(const std::string& file, Work work) {
  try {
    return work();
  } catch (const std::exception& error) {
    throw std::runtime_error(file + ": " + error.what());
  }
}
