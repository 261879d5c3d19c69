#include "fuzz/report.h"

#include <cstdio>
#include <cstdlib>

namespace xfm::fuzz {
namespace {

constexpr std::size_t kinds = std::size_t{1} << 15;
__attribute__((section("__libfuzzer_extra_counters"))) std::uint8_t seen[kinds];

}  // namespace

void fail(const std::string& text) {
  std::fprintf(stderr, "FINDING: %s\n", text.c_str());
  std::abort();
}

void note_kind(std::uint32_t function, std::uint32_t variant) {
  constexpr std::uint32_t spread = 2654435761U;
  seen[((function * 64 + variant % 64) * spread >> 8) % kinds] = 1;
}

}  // namespace xfm::fuzz
