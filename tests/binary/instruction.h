// One instruction of the disassembly, and what the tests ask of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace xfm::test {

/// Register and memory operands in AT&T order: the destination is the last one.
struct Instruction {
  std::uint64_t address;
  std::string mnemonic;
  std::string operands;
  std::optional<std::uint64_t> target;    ///< of a direct jump or call
  std::optional<std::uint64_t> constant;  ///< address of a constant, from the program counter

  std::vector<std::string> operand_list() const;
  bool is_return() const { return mnemonic == "ret"; }
  bool is_call() const { return mnemonic == "call"; }
  bool is_jump() const { return mnemonic[0] == 'j'; }
  bool is_unconditional_jump() const { return mnemonic == "jmp"; }
  /// In the baseline of x86-64, and of a sort that a kernel has a use for. No division, no square root.
  bool is_expected() const;
};

/// From a line of objdump, "  2660:\tmov    %rdi,%rax"; nothing for lines that are no instruction.
std::optional<Instruction> parse_instruction(const std::string& line);

/// Arithmetic and movements within registers, over the instructions of a body.
struct Tally {
  int scalar_adds = 0, scalar_mults = 0;  ///< one value an instruction
  int packed_adds = 0, packed_mults = 0;
  int exchanges = 0;  ///< whatever brings a value of one binary64 lane to the other

  void add(const Instruction& instruction);
};

}  // namespace xfm::test
