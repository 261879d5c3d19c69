// One instruction of the disassembly, classified as the tests need it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace xfm::test {

/// What an instruction does, as far as it matters to a kernel. Everything else is unexpected: beyond all
/// targets, like a fused multiply-add, or of no use to a kernel, such as a division.
enum class Sort {
  unexpected,
  control,        ///< jumps, calls, returns
  integer,        ///< addresses, pointers, the flag, masks, padding
  move,           ///< of a whole register, or of parts that stay in place
  upper_halves,   ///< vzeroupper
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
  int level;                              ///< of the least x86-64 that has it: 1 is the baseline, 3 x86-64-v3
  int lanes;                              ///< of its widest register; 1 in scalar instructions
  std::optional<std::uint64_t> target;    ///< of a direct jump or call
  std::optional<std::uint64_t> constant;  ///< the address given relative to the program counter

  bool is_return() const { return mnemonic == "ret"; }
  bool is_call() const { return mnemonic == "call"; }
  bool is_jump() const { return mnemonic[0] == 'j'; }
  bool is_unconditional_jump() const { return mnemonic == "jmp"; }
  /// Of a register that vzeroupper clears; the others, from 16 on, cost nothing to leave in use.
  bool writes_upper_half() const;
  std::string text() const { return mnemonic + " " + operands; }
};

/// 1 for x86-64, 3 for x86-64-v3.
int level_of_target(std::string_view name);

/// The first two operands of a sum or a product are the same register: "%xmm1,%xmm1".
bool has_equal_sources(const std::string& operands);

/// From a line of objdump, "  2660:\tmov    %rdi,%rax"; nothing for other lines.
std::optional<Instruction> parse_instruction(const std::string& line);

/// Counts of the sorts of instructions that the tests compare, and of the lanes that they work on.
struct Tally {
  int scalar_adds = 0, scalar_mults = 0, packed_adds = 0, packed_mults = 0, between_lanes = 0;
  int added_lanes = 0, multiplied_lanes = 0;

  int adds() const { return scalar_adds + packed_adds; }
  int mults() const { return scalar_mults + packed_mults; }
  void add(const Instruction& instruction);
};

}  // namespace xfm::test
