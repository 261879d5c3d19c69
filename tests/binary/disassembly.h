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
  /// Null behind the last.
  const Instruction* after(const Instruction& instruction) const;
  /// The function that the address lies in; empty in front of the first.
  std::string function_at(std::uint64_t address) const;
  bool has(const std::string& function) const { return starts_.contains(function); }
  std::uint64_t start_of(const std::string& function) const { return starts_.at(function); }

 private:
  std::vector<Instruction> instructions_;  ///< by address
  std::map<std::string, std::uint64_t> starts_;
  std::map<std::uint64_t, std::string> names_;
};

/// A call or a jump to elsewhere, or what cannot be followed.
struct Departure {
  std::string to;  ///< the function, if it is known
  std::string text;
};

/// All that can run between the entry of a function and its return, wherever the compiler has put it:
/// seldom-run parts may stand away from the rest, under the name NAME.cold or the like.
struct Body {
  std::vector<const Instruction*> instructions;
  std::vector<Departure> departures;
  std::vector<std::string> late_branches;  ///< conditional jumps that come after arithmetic
  bool has_loop = false;
};

/// A jump or call to the function `twin` ends the body; empty where there is none to be called.
Body trace(const Disassembly& code, const std::string& function, const std::string& twin);

}  // namespace xfm::test
