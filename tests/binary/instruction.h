// One instruction of the disassembly, classified as the tests need it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace xfm::test {

/// What an instruction does, as far as it matters to a kernel. Everything else is unexpected: beyond the
/// baseline of x86-64, or of no use to a kernel, such as a division.
enum class Sort {
  unexpected,
  control,        ///< jumps, calls, returns
  integer,        ///< addresses, pointers, the flag, padding
  move,           ///< of a whole register, or of a part that stays in place
  bits,           ///< logic on vector registers: signs
  conversion,     ///< between the precisions
  between_lanes,  ///< shuffles
  // arithmetic, from here to the end
  scalar_add,
  scalar_mult,
  packed_add,
  packed_mult,
};

/// Operands are in AT&T order: the destination comes last.
struct Instruction {
  std::uint64_t address;
  std::string mnemonic;
  std::string operands;
  Sort sort;
  std::optional<std::uint64_t> target;    ///< of a direct jump or call
  std::optional<std::uint64_t> constant;  ///< the address given relative to the program counter

  bool is_return() const { return mnemonic == "ret"; }
  bool is_call() const { return mnemonic == "call"; }
  bool is_jump() const { return mnemonic[0] == 'j'; }
  bool is_unconditional_jump() const { return mnemonic == "jmp"; }
  std::string text() const { return mnemonic + " " + operands; }
};

/// From a line of objdump, "  2660:\tmov    %rdi,%rax"; nothing for other lines.
std::optional<Instruction> parse_instruction(const std::string& line);

/// Counts of the sorts of instructions that the tests compare.
struct Tally {
  int scalar_adds = 0, scalar_mults = 0, packed_adds = 0, packed_mults = 0, between_lanes = 0;

  void add(const Instruction& instruction);
};

}  // namespace xfm::test
