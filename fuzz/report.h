// How a fuzz target reports a failure to libFuzzer.
#pragma once

#include <cstdint>
#include <string>

namespace xfm::fuzz {

/// A finding: the text, and the end of the program. libFuzzer keeps the input.
[[noreturn]] void fail(const std::string& text);

inline void require(bool condition, const std::string& text) {
  if (!condition) fail(text);
}

/// The library has no instrumentation that would show new paths, so a target says itself what a call is;
/// libFuzzer keeps the first input of each kind.
void note_kind(std::uint32_t function, std::uint32_t variant);

}  // namespace xfm::fuzz
