#include "tests/binary/disassembly.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_map>
#include <unordered_set>

#include "paths.h"
#include "tests/binary/tools.h"

namespace xfm::test {

// objdump heads each function with "0000000000002660 <name>:".
Disassembly::Disassembly(const std::string& library) {
  for (const std::string& line :
       lines_of(std::string(paths::objdump) + " -d --no-show-raw-insn '" + library + "'")) {
    if (auto instruction = parse_instruction(line)) {
      instructions_.push_back(std::move(*instruction));
    } else if (const auto open = line.find(" <"); open != std::string::npos && line.ends_with(">:")) {
      const std::uint64_t address = std::stoull(line, nullptr, 16);
      const std::string name = line.substr(open + 2, line.size() - open - 4);
      starts_.emplace(name, address);
      names_.emplace(address, name);
    }
  }
  if (instructions_.empty()) throw std::runtime_error("no code in " + library);
  std::ranges::sort(instructions_, {}, &Instruction::address);
}

const Instruction* Disassembly::at(std::uint64_t address) const {
  const auto found = std::ranges::lower_bound(instructions_, address, {}, &Instruction::address);
  return found == instructions_.end() || found->address != address ? nullptr : &*found;
}

const Instruction* Disassembly::after(const Instruction& instruction) const {
  const Instruction* next = &instruction + 1;
  return next == instructions_.data() + instructions_.size() ? nullptr : next;
}

std::string Disassembly::function_at(std::uint64_t address) const {
  const auto next = names_.upper_bound(address);
  return next == names_.begin() ? "" : std::prev(next)->second;
}

namespace {

using Instructions = std::vector<const Instruction*>;

class Tracer {
 public:
  Tracer(const Disassembly& code, const std::string& function, const std::string& variant)
      : code_(code), function_(function), variant_(variant) {}

  Body trace() {
    Instructions open = {code_.at(code_.start_of(function_))};
    while (!open.empty()) {
      const Instruction* instruction = open.back();
      open.pop_back();
      if (successors_.contains(instruction)) continue;
      body_.instructions.push_back(instruction);
      const Instructions& next = successors_[instruction] = follow(*instruction);
      open.insert(open.end(), next.begin(), next.end());
    }
    body_.has_loop = has_loop();
    body_.late_branches = late_branches();
    body_.dirty_exits = dirty_exits();
    return std::move(body_);
  }

 private:
  bool own(std::uint64_t address) const {
    const std::string name = code_.function_at(address);
    return name == function_ || name.starts_with(function_ + ".");
  }

  void depart(const Instruction& from, const std::string& how) {
    const std::string to = from.target ? code_.function_at(*from.target) : "";
    body_.departures.push_back({to, how + ": " + from.text() + " in " + code_.function_at(from.address)});
  }

  /// What may run next, inside the body.
  Instructions follow(const Instruction& instruction) {
    Instructions next;
    if (instruction.sort == Sort::control && !instruction.is_return()) next = leave(instruction);
    if (instruction.is_return() || instruction.is_unconditional_jump()) return next;
    const Instruction* following = code_.after(instruction);
    if (following != nullptr && own(following->address)) {
      next.push_back(following);
    } else {
      depart(instruction, "runs past its end");
    }
    return next;
  }

  /// The target of a jump or a call; none if it is the unaligned variant.
  Instructions leave(const Instruction& instruction) {
    if (!instruction.target) {
      depart(instruction, "goes to a computed address");
    } else if (!variant_.empty() && *instruction.target == code_.start_of(variant_)) {
      return {};
    } else if (instruction.is_call() || !own(*instruction.target)) {
      depart(instruction, "leaves the function");
    } else if (const Instruction* target = code_.at(*instruction.target)) {
      return {target};
    } else {
      depart(instruction, "goes into the middle of an instruction");
    }
    return {};
  }

  static bool is_arithmetic(const Instruction& instruction) { return instruction.sort >= Sort::scalar_add; }

  /// Everything that can run after an instruction that starts, without passing one that ends.
  template <class Starts, class Ends>
  std::unordered_set<const Instruction*> reached(Starts starts, Ends ends) const {
    Instructions open;
    for (const auto& [instruction, next] : successors_)
      if (starts(*instruction)) open.insert(open.end(), next.begin(), next.end());
    std::unordered_set<const Instruction*> seen;
    while (!open.empty()) {
      const Instruction* instruction = open.back();
      open.pop_back();
      if (ends(*instruction) || !seen.insert(instruction).second) continue;
      const Instructions& next = successors_.at(instruction);
      open.insert(open.end(), next.begin(), next.end());
    }
    return seen;
  }

  std::vector<std::string> late_branches() const {
    std::vector<std::string> branches;
    for (const Instruction* const instruction :
         reached(is_arithmetic, [](const Instruction&) { return false; }))
      if (instruction->is_jump() && !instruction->is_unconditional_jump())
        branches.push_back(instruction->text());
    return branches;
  }

  std::vector<std::string> dirty_exits() const {
    const auto dirties = [](const Instruction& i) { return i.writes_upper_half(); };
    const auto cleans = [](const Instruction& i) { return i.sort == Sort::upper_halves; };
    std::vector<std::string> exits;
    for (const Instruction* const instruction : reached(dirties, cleans))
      if (instruction->is_return() || instruction->is_call()) exits.push_back(instruction->text());
    return exits;
  }

  /// Removes instructions that nothing leads to until none is left; a loop remains.
  bool has_loop() const {
    std::unordered_map<const Instruction*, int> ways_in;
    for (const auto& [instruction, next] : successors_)
      for (const Instruction* successor : next) ++ways_in[successor];
    Instructions free;
    for (const auto& [instruction, next] : successors_)
      if (!ways_in.contains(instruction)) free.push_back(instruction);
    std::size_t taken = 0;
    while (!free.empty()) {
      const Instruction* instruction = free.back();
      free.pop_back();
      ++taken;
      for (const Instruction* successor : successors_.at(instruction))
        if (--ways_in[successor] == 0) free.push_back(successor);
    }
    return taken != successors_.size();
  }

  const Disassembly& code_;
  const std::string& function_;
  const std::string& variant_;
  std::unordered_map<const Instruction*, Instructions> successors_;
  Body body_;
};

}  // namespace

Body trace(const Disassembly& code, const std::string& function, const std::string& variant) {
  return Tracer(code, function, variant).trace();
}

}  // namespace xfm::test
