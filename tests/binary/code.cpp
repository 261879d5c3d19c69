// The code of every kernel and of its unaligned variant: straight, self-contained, within the instruction
// set, and with no more operations than its row allows.
#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "tests/binary/disassembly.h"
#include "tests/binary/tools.h"
#include "tests/support/kernel_test.h"
#include "tests/support/layout.h"
#include "tests/support/library.h"
#include "tests/support/reference.h"

namespace xfm::test {
namespace {

const Disassembly& code() {
  static const Disassembly disassembly(library_file());
  return disassembly;
}

/// Each body is traced once, for all the tests that look at it.
const Body& traced(const std::string& function, const std::string& variant) {
  static std::map<std::string, Body> known;
  const auto found = known.find(function);
  return found != known.end() ? found->second
                              : known.emplace(function, trace(code(), function, variant)).first->second;
}

class Code : public KernelTest {
 protected:
  void SetUp() override {
    const std::string name = kernel().name, variant = name + "_unaligned";
    ASSERT_TRUE(code().has(name));
    ASSERT_EQ(code().has(variant), kernel().packed)
        << "packed kernels have an unaligned variant, and no others";
    bodies_.emplace(name, traced(name, kernel().packed ? variant : ""));
    if (kernel().packed) bodies_.emplace(variant, traced(variant, ""));
  }

  /// By name.
  const std::map<std::string, const Body&>& bodies() const { return bodies_; }

  static Tally tally(const Body& body) {
    Tally result;
    for (const Instruction* instruction : body.instructions) result.add(*instruction);
    return result;
  }

  static bool clears(const Instruction& instruction) {
    const std::string& both = instruction.operands;
    const auto comma = both.find(',');
    return instruction.mnemonic.find("xor") != std::string::npos &&
           both.substr(0, comma) == both.substr(comma + 1);
  }

  /// The displacement before a base register: 8 of "0x8(%rdi),%xmm0", 0 of "(%rdi),%xmm0".
  static std::optional<int> displacement_in(const std::string& operands, const std::string& base) {
    const auto at = operands.find(base);
    if (at == std::string::npos) return std::nullopt;
    const auto start = operands.substr(0, at).find_last_of(',') + 1;
    return at == start ? 0 : std::stoi(operands.substr(start, at - start), nullptr, 16);
  }

  /// The register of the first argument, and those that it is copied to.
  static std::set<std::string> homes_of_src(const Body& body) {
    std::set<std::string> homes = {"%rdi"};
    for (const Instruction* instruction : body.instructions)
      if (instruction->mnemonic == "mov" && instruction->operands.starts_with("%rdi,%r"))
        homes.insert(instruction->operands.substr(5));
    return homes;
  }

  /// Inputs that stand for two bins: kernels double them first, and compilers write 2 x as x + x.
  static int doublings() {
    const auto reference = definition(kernel());
    int count = 0;
    for (int in = 0; in < kernel().read; ++in) count += reference->greatest(in) == 2 ? 1 : 0;
    return count;
  }

  /// A vector kernel without an unaligned variant holds both bodies itself.
  static int bodies_a_function() { return kernel().packed_math && !kernel().packed ? 2 : 1; }
  /// Binary64 and packed.
  static bool in_pairs() { return kernel().packed_math && kernel().precision == Precision::binary64; }

 private:
  std::map<std::string, const Body&> bodies_;
};

// Except in the passes over a work buffer.
TEST_P(Code, NoLoop) {
  for (const auto& [name, body] : bodies()) EXPECT_EQ(body.has_loop, !kernel().straight) << name;
}

// The entry tests and the choice of the factor come first; after them every operation runs, for any flag.
TEST_P(Code, NoBranchAfterTheEntryTests) {
  if (!kernel().straight) return;
  for (const auto& [name, body] : bodies())
    for (const std::string& branch : body.late_branches) ADD_FAILURE() << name << ": " << branch;
}

// A kernel that allocates its own work buffer also calls the core.
TEST_P(Code, StaysInTheFunctionOrItsUnalignedVariant) {
  const std::set<std::string> core = {"xfmMalloc@plt", "xfmFree@plt"};
  for (const auto& [name, body] : bodies()) {
    std::set<std::string> called;
    for (const Departure& departure : body.departures) {
      called.insert(departure.to);
      if (kernel().straight || !core.contains(departure.to))
        ADD_FAILURE() << name << " " << departure.text << ", to " << departure.to;
    }
    EXPECT_TRUE(kernel().straight || called == core) << name;
  }
}

TEST_P(Code, BaselineInstructions) {
  for (const auto& [name, body] : bodies()) {
    std::set<std::string> unexpected;
    for (const Instruction* instruction : body.instructions)
      if (instruction->sort == Sort::unexpected) unexpected.insert(instruction->mnemonic);
    for (const std::string& mnemonic : unexpected)
      ADD_FAILURE() << name << " has " << mnemonic << ", which is beyond SSE2 or of no use to a kernel";
  }
}

TEST_P(Code, ConstantsAreReadOnly) {
  static const std::vector<Section> all = sections(library_file());
  for (const auto& [name, body] : bodies()) {
    for (const Instruction* instruction : body.instructions) {
      if (!instruction->constant) continue;
      bool read_only = false;
      for (const Section& section : all)
        read_only |= section.holds(*instruction->constant) && !section.writable && !section.executable;
      EXPECT_TRUE(read_only) << name << ": " << instruction->text();
    }
  }
}

// The row bounds real operations; a packed instruction of four lanes may carry idle ones, so there the
// generator's own count of instructions is what the code must have.
TEST_P(Code, OperationCounts) {
  const int adds = kernel().adds, mults = kernel().mults + scaled_outputs(kernel());
  for (const auto& [name, body] : bodies()) {
    const Tally count = tally(body);
    if (kernel().packed_math) {
      EXPECT_EQ(count.scalar_adds, 0) << name;
      EXPECT_EQ(count.scalar_mults, 0) << name;
      EXPECT_EQ(count.packed_adds, bodies_a_function() * kernel().add_instructions) << name;
      EXPECT_EQ(count.packed_mults, bodies_a_function() * kernel().mult_instructions) << name;
    } else {
      EXPECT_EQ(count.packed_adds, 0) << name;
      EXPECT_EQ(count.packed_mults, 0) << name;
      EXPECT_LE(count.scalar_adds, adds + doublings()) << name;
      EXPECT_LE(count.scalar_mults, mults) << name;
      EXPECT_LE(count.scalar_adds + count.scalar_mults, adds + mults) << name;
    }
    if (in_pairs()) {
      EXPECT_LE(2 * count.packed_adds, bodies_a_function() * adds) << name;
      EXPECT_LE(2 * count.packed_mults, bodies_a_function() * mults) << name;
    }
    if (!kernel().straight) continue;
    EXPECT_GE(count.packed_mults + count.scalar_mults,
              kernel().packed_math ? kernel().written / 4 : scaled_outputs(kernel()))
        << name << " does not multiply every output by the factor";
  }
}

// Negation is a subtraction from zero, never an operation on the sign bit; xor may clear a register.
TEST_P(Code, RealTransformsNegateNothing) {
  if (real_family(kernel()) == nullptr) return;
  for (const auto& [name, body] : bodies())
    for (const Instruction* instruction : body.instructions)
      EXPECT_TRUE(instruction->sort != Sort::bits || clears(*instruction))
          << name << ": " << instruction->text();
}

// Constants are binary64 in either precision; binary32 values meet only the factor and the 2 of a doubling.
TEST_P(Code, RealTransformsMultiplyConstantsInBinary64) {
  if (real_family(kernel()) == nullptr) return;
  for (const auto& [name, body] : bodies()) {
    const auto narrow = std::ranges::count(body.instructions, "mulss", &Instruction::mnemonic);
    const bool single = kernel().precision == Precision::binary32;
    EXPECT_LE(narrow, single ? scaled_outputs(kernel()) + doublings() : 0) << name;
  }
}

// The stored zeros of a spectrum are not input: not even a dead load touches them.
TEST_P(Code, RealTransformsLoadTheirInputAlone) {
  const RealFamily* const family = real_family(kernel());
  if (family == nullptr) return;
  std::set<int> expected;
  for (int in = 0; in < kernel().read; ++in)
    if (family->forward ||
        cells(family->layout, kernel().length)[static_cast<std::size_t>(in)].part != Part::zero)
      expected.insert(in);
  for (const auto& [name, body] : bodies()) {
    std::set<int> loaded;
    for (const std::string& base : homes_of_src(body))
      for (const Instruction* instruction : body.instructions)
        if (const auto displacement = displacement_in(instruction->operands, "(" + base + ")"))
          loaded.insert(*displacement / step());
    EXPECT_EQ(loaded, expected) << name;
  }
}

// Aligned pairs lie at multiples of 16, and so does the stack frame of the body.
TEST_P(Code, BodyOfPairsMovesAligned) {
  if (!in_pairs() || bodies_a_function() > 1) return;
  for (const Instruction* instruction : bodies().at(kernel().name).instructions)
    EXPECT_NE(instruction->mnemonic.substr(0, 4), "movu") << instruction->text();
}

TEST_P(Code, LaneExchanges) {
  if (kernel().exchanges < 0) return;  // not prescribed
  for (const auto& [name, body] : bodies()) EXPECT_EQ(tally(body).between_lanes, kernel().exchanges) << name;
}

XFM_FOR_ALL_KERNELS(Code);

// The reader of the disassembly, on lines as objdump prints them.
TEST(Disassembler, Lines) {
  const auto jump = parse_instruction("    266a:\tjmp    23a0 <f_unaligned>");
  ASSERT_TRUE(jump.has_value());
  EXPECT_TRUE(jump->is_unconditional_jump());
  EXPECT_EQ(jump->target, 0x23a0U);
  const auto constant = parse_instruction("    270a:\tmovss  0x4bde(%rip),%xmm5        # 72f0 <f+0x50>");
  ASSERT_TRUE(constant.has_value());
  EXPECT_EQ(constant->constant, 0x72f0U);
  EXPECT_EQ(constant->operands, "0x4bde(%rip),%xmm5");
  EXPECT_FALSE(parse_instruction("0000000000002660 <f>:").has_value());
  for (const std::string line : {"  10:\tvfmadd231ps %xmm0,%xmm1,%xmm2", "  10:\thaddps %xmm0,%xmm1",
                                 "  10:\tmovddup %xmm0,%xmm1", "  10:\tdivsd %xmm0,%xmm1"})
    EXPECT_EQ(parse_instruction(line)->sort, Sort::unexpected) << line;
  const auto nop = parse_instruction("  10:\tcs nopw 0x0(%rax,%rax,1)");
  EXPECT_EQ(nop->mnemonic, "nopw");
}

TEST(Disassembler, Tally) {
  const auto tally = [](const std::string& text) {
    Tally result;
    result.add(*parse_instruction("  10:\t" + text));
    return result;
  };
  EXPECT_EQ(tally("addpd (%rdi),%xmm0").packed_adds, 1);
  EXPECT_EQ(tally("addsd %xmm1,%xmm1").scalar_mults, 1);
  EXPECT_EQ(tally("subsd %xmm1,%xmm1").scalar_adds, 1);
  EXPECT_EQ(tally("shufpd $0x1,%xmm0,%xmm0").between_lanes, 1);
  EXPECT_EQ(tally("pshufd $0x4e,%xmm0,%xmm1").between_lanes, 1);
  EXPECT_EQ(tally("movhpd %xmm0,0x8(%rsp)").between_lanes, 1);
  EXPECT_EQ(tally("movhpd 0x8(%rdi),%xmm0").between_lanes, 0);
}

}  // namespace
}  // namespace xfm::test
