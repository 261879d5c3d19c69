#include <cstdlib>

#include "xfmcore.h"

namespace {

constexpr std::size_t alignment = 64;

/// The least positive multiple of the alignment that holds size bytes; 0 if there is none.
constexpr std::size_t whole_lines(std::size_t size) {
  const std::size_t bytes = size == 0 ? 1 : size;
  return (bytes + (alignment - 1)) & ~(alignment - 1);
}

}  // namespace

void* xfmMalloc(std::size_t size) {
  const std::size_t bytes = whole_lines(size);
  return bytes == 0 ? nullptr : std::aligned_alloc(alignment, bytes);
}

void xfmFree(void* block) { std::free(block); }
