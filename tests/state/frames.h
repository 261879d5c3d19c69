// How much stack a function takes at most, by its code.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

#include "tests/binary/disassembly.h"

namespace xfm::test {

class Frames {
 public:
  explicit Frames(const Disassembly& code) : code_(code) {}

  /// In bytes, its return address and that of the functions it calls included; what functions of other
  /// libraries take is not. Nothing if it goes to a computed address or calls itself.
  std::optional<std::int64_t> of(const std::string& function);

 private:
  std::optional<std::int64_t> of(std::uint64_t start);

  const Disassembly& code_;
  std::map<std::uint64_t, std::optional<std::int64_t>> known_;  ///< by the address of the function
};

}  // namespace xfm::test
