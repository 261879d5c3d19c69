#include "tests/binary/disassembly.h"

#include <set>
#include <stdexcept>

#include "paths.h"
#include "tests/binary/tools.h"

namespace xfm::test {

// objdump heads each function with "0000000000002660 <name>:".
Disassembly::Disassembly(const std::string& library) {
  for (const std::string& line :
       lines_of(std::string(paths::objdump) + " -d --no-show-raw-insn '" + library + "'")) {
    if (const auto instruction = parse_instruction(line)) {
      instructions_.emplace(instruction->address, *instruction);
    } else if (const auto open = line.find(" <"); open != std::string::npos && line.ends_with(">:")) {
      const std::uint64_t address = std::stoull(line, nullptr, 16);
      const std::string name = line.substr(open + 2, line.size() - open - 4);
      starts_.emplace(name, address);
      names_.emplace(address, name);
    }
  }
  if (instructions_.empty()) throw std::runtime_error("no code in " + library);
}

const Instruction* Disassembly::at(std::uint64_t address) const {
  const auto found = instructions_.find(address);
  return found == instructions_.end() ? nullptr : &found->second;
}

const Instruction* Disassembly::after(const Instruction& instruction) const {
  const auto next = instructions_.upper_bound(instruction.address);
  return next == instructions_.end() ? nullptr : &next->second;
}

std::string Disassembly::function_at(std::uint64_t address) const {
  const auto next = names_.upper_bound(address);
  return next == names_.begin() ? "" : std::prev(next)->second;
}

namespace {

using Addresses = std::set<std::uint64_t>;

class Tracer {
 public:
  Tracer(const Disassembly& code, const std::string& function, const std::string& twin)
      : code_(code), function_(function), twin_(twin) {}

  Body trace() {
    std::vector<std::uint64_t> open = {code_.start_of(function_)};
    while (!open.empty()) {
      const std::uint64_t address = open.back();
      open.pop_back();
      if (successors_.contains(address)) continue;
      const Addresses& next = successors_[address] = follow(address);
      open.insert(open.end(), next.begin(), next.end());
    }
    body_.has_loop = has_loop();
    return std::move(body_);
  }

 private:
  bool own(std::uint64_t address) const {
    const std::string name = code_.function_at(address);
    return name == function_ || name.starts_with(function_ + ".");
  }

  void depart(const Instruction& from, const std::string& how) {
    body_.departures.push_back(how + ": " + from.mnemonic + " " + from.operands + " in " +
                               code_.function_at(from.address));
  }

  /// Where control may be after the instruction, inside the body.
  Addresses follow(std::uint64_t address) {
    const Instruction* instruction = code_.at(address);
    if (instruction == nullptr) {
      body_.departures.push_back("a jump into the middle of an instruction");
      return {};
    }
    body_.instructions.push_back(instruction);
    Addresses next;
    if (instruction->is_jump() || instruction->is_call()) next = leave(*instruction);
    if (instruction->is_return() || instruction->is_unconditional_jump()) return next;
    const Instruction* following = code_.after(*instruction);
    if (following != nullptr && own(following->address)) {
      next.insert(following->address);
    } else {
      depart(*instruction, "runs past its end");
    }
    return next;
  }

  Addresses leave(const Instruction& instruction) {
    if (!instruction.target) {
      depart(instruction, "indirect");
    } else if (!twin_.empty() && *instruction.target == code_.start_of(twin_)) {
      return {};
    } else if (!own(*instruction.target)) {
      depart(instruction, "leaves the function");
    } else if (instruction.is_call()) {
      depart(instruction, "calls itself");
    } else {
      return {*instruction.target};
    }
    return {};
  }

  /// Takes away, again and again, what nothing leads to any more; a loop stays.
  bool has_loop() const {
    std::map<std::uint64_t, int> ways_in;
    for (const auto& [address, next] : successors_)
      for (const std::uint64_t successor : next) ++ways_in[successor];
    std::vector<std::uint64_t> free;
    for (const auto& [address, next] : successors_)
      if (!ways_in.contains(address)) free.push_back(address);
    std::size_t taken = 0;
    while (!free.empty()) {
      const std::uint64_t address = free.back();
      free.pop_back();
      ++taken;
      for (const std::uint64_t successor : successors_.at(address))
        if (--ways_in[successor] == 0) free.push_back(successor);
    }
    return taken != successors_.size();
  }

  const Disassembly& code_;
  const std::string& function_;
  const std::string& twin_;
  std::map<std::uint64_t, Addresses> successors_;
  Body body_;
};

}  // namespace

Body trace(const Disassembly& code, const std::string& function, const std::string& twin) {
  return Tracer(code, function, twin).trace();
}

}  // namespace xfm::test
