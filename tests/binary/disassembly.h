// The library's code, and the part of it that runs for one function.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/binary/instruction.h"

namespace xfm::test {

class Disassembly {
 public:
  explicit Disassembly(const std::string& library);

  /// Null where no instruction starts.
  const Instruction* at(std::uint64_t address) const;
  /// Null after the last.
  const Instruction* after(const Instruction& instruction) const;
  /// The function that the address lies in; empty before the first.
  std::string function_at(std::uint64_t address) const;
  bool has(const std::string& function) const { return starts_.contains(function); }
  std::uint64_t start_of(const std::string& function) const { return starts_.at(function); }

 private:
  std::vector<Instruction> instructions_;  ///< by address
  std::map<std::string, std::uint64_t> starts_;
  std::map<std::uint64_t, std::string> names_;
};

/// A call or jump out of the function, or one that cannot be followed.
struct Departure {
  std::string to;  ///< the function, if it is known
  std::string text;
};

/// All that can run between the entry of a function and its return, wherever the compiler put it: it may move
/// parts that seldom run out of line, under a name such as NAME.cold.
struct Body {
  std::vector<const Instruction*> instructions;
  std::vector<Departure> departures;
  std::vector<std::string> late_branches;  ///< conditional jumps that come after arithmetic
  std::vector<std::string> dirty_exits;    ///< returns and calls with the upper halves of registers in use
  bool has_loop = false;
};

/// A jump or call to the unaligned variant ends the body; `variant` is empty if the function has none.
Body trace(const Disassembly& code, const std::string& function, const std::string& variant);

}  // namespace xfm::test
