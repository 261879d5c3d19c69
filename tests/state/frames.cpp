#include "tests/state/frames.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace xfm::test {
namespace {

constexpr std::int64_t word = 8, most = 1 << 24;

std::int64_t number(const std::string& operands, std::size_t from) {
  return static_cast<std::int64_t>(
      std::stoull(operands.substr(from), nullptr, 16));  // or -0x8, 0xffffffffffffff80
}

/// How far an instruction moves the stack pointer down. Frames are given back by adding, or from a copy of
/// the pointer that another register holds; that counts as nothing, so that what follows is taken to be no
/// higher than it is.
std::int64_t moved_down(const Instruction& instruction, std::int64_t depth) {
  const std::string& operands = instruction.operands;
  if (instruction.mnemonic == "push") return word;
  if (instruction.mnemonic == "pop") return -word;
  if (!operands.ends_with(",%rsp")) return 0;
  if (instruction.mnemonic == "sub" && operands.starts_with("$")) return number(operands, 1);
  if (instruction.mnemonic == "add" && operands.starts_with("$")) return -number(operands, 1);
  if (instruction.mnemonic == "lea" && operands.ends_with("(%rsp),%rsp")) return -number(operands, 0);
  // "and $0xffffffffffffffc0,%rsp": with the stack a multiple of 16 before the call, this much at most.
  if (instruction.mnemonic == "and") {
    const auto mask = std::stoull(operands.substr(1), nullptr, 16);
    const auto step = static_cast<std::int64_t>(~mask + 1);
    return depth % 16 == 0 ? step - 16 : step - word;
  }
  const bool restores = instruction.mnemonic == "lea" || instruction.mnemonic == "mov";
  if (!restores) throw std::runtime_error("moves the stack pointer: " + instruction.text());
  return 0;
}

/// How far below the stack pointer an instruction reaches: leaf functions may use 128 bytes there.
std::int64_t below(const Instruction& instruction) {
  const auto at = instruction.operands.find("(%rsp");
  if (at == std::string::npos) return 0;
  const auto start = instruction.operands.substr(0, at).find_last_of(',') + 1;
  if (instruction.operands[start] != '-') return 0;
  return (-number(instruction.operands, start) + word - 1) / word * word;
}

}  // namespace

std::optional<std::int64_t> Frames::of(const std::string& function) { return of(code_.start_of(function)); }

// Every instruction is reached with the greatest depth of all ways that lead to it.
std::optional<std::int64_t> Frames::of(std::uint64_t start) {
  if (const auto found = known_.find(start); found != known_.end()) return found->second;
  known_[start] = std::nullopt;  // while it is looked at: a call of itself
  std::map<std::uint64_t, std::int64_t> depth_at;
  std::vector<std::pair<std::uint64_t, std::int64_t>> open = {{start, word}};
  std::int64_t deepest = 0;
  while (!open.empty()) {
    const auto [address, depth] = open.back();
    open.pop_back();
    const auto [before, first] = depth_at.emplace(address, depth);
    if (!first && before->second >= depth) continue;
    before->second = depth;
    const Instruction* const instruction = code_.at(address);
    if (instruction == nullptr) throw std::runtime_error("no instruction there");
    const std::int64_t after = depth + moved_down(*instruction, depth);
    if (after > most) throw std::runtime_error("grows without end: " + instruction->text());
    deepest = std::max({deepest, after, depth + below(*instruction)});
    if (instruction->is_return()) continue;
    if (instruction->is_call() || instruction->is_jump()) {
      if (!instruction->target) return std::nullopt;
      const bool foreign = code_.function_at(*instruction->target).ends_with("@plt");
      if (instruction->is_call()) {
        const auto callee = foreign ? word : of(*instruction->target);
        if (!callee) return std::nullopt;
        deepest = std::max(deepest, after + *callee);
      } else if (!foreign) {
        open.emplace_back(*instruction->target, after);
      }
      if (instruction->is_unconditional_jump()) continue;
    }
    if (const Instruction* const next = code_.after(*instruction)) open.emplace_back(next->address, after);
  }
  return known_[start] = deepest;
}

}  // namespace xfm::test
