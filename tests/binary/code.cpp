// The code of every kernel and of its unaligned variant: straight, self-contained, within the instructions of
// the target, and with no more operations than its row allows.
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

int level() { return level_of_target(target_under_test().name); }

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
    ASSERT_EQ(code().has(variant), form().two_variants);
    bodies_.emplace(name, traced(name, form().two_variants ? variant : ""));
    if (form().two_variants) bodies_.emplace(variant, traced(variant, ""));
  }

  /// By name.
  const std::map<std::string, const Body&>& bodies() const { return bodies_; }

  static const catalogue::Form& form() { return catalogue::form(target_under_test(), kernel()); }

  static Tally tally(const Body& body) {
    Tally result;
    for (const Instruction* instruction : body.instructions) result.add(*instruction);
    return result;
  }

  static bool clears(const Instruction& instruction) {
    return instruction.mnemonic.find("xor") != std::string::npos && has_equal_sources(instruction.operands);
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

  /// On the baseline arithmetic is all packed or all scalar, and signs change by subtraction from zero.
  static bool is_baseline() { return level() == 1; }

  /// Registers of binary32 may have idle lanes, those of pairs and some of complex numbers.
  static bool fills_its_lanes() {
    const bool single = kernel().precision == catalogue::Precision::binary32;
    const bool complex = std::string_view(kernel().type) == "32fc";
    return !single || form().lanes == 1 || (is_baseline() && !complex);
  }

 private:
  std::map<std::string, const Body&> bodies_;
};

// Except in the passes over a work buffer.
TEST_P(Code, NoLoop) {
  for (const auto& [name, body] : bodies()) EXPECT_EQ(body.has_loop, !form().straight) << name;
}

// The entry tests and the choice of the factor come first; after them every operation runs, for any flag.
TEST_P(Code, NoBranchAfterTheEntryTests) {
  if (!form().straight) return;
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
      if (form().straight || !core.contains(departure.to))
        ADD_FAILURE() << name << " " << departure.text << ", to " << departure.to;
    }
    EXPECT_TRUE(form().straight || called == core) << name;
  }
}

TEST_P(Code, InstructionsOfTheTarget) {
  for (const auto& [name, body] : bodies()) {
    std::set<std::string> unexpected, beyond;
    for (const Instruction* instruction : body.instructions) {
      if (instruction->sort == Sort::unexpected) unexpected.insert(instruction->mnemonic);
      if (instruction->level > level()) beyond.insert(instruction->text());
    }
    for (const std::string& mnemonic : unexpected) ADD_FAILURE() << name << " has " << mnemonic;
    for (const std::string& text : beyond) ADD_FAILURE() << name << " has " << text << ", beyond the target";
  }
}

// Wide registers in use would slow down the 128-bit instructions of the caller.
TEST_P(Code, CleansUpperHalves) {
  for (const auto& [name, body] : bodies())
    for (const std::string& exit : body.dirty_exits) ADD_FAILURE() << name << ": " << exit;
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

// A packed kernel has the operations that were written for it, however wide; on the baseline exactly these.
// Elsewhere compilers may unroll short loops, and g++ doubles a register by a product.
TEST_P(Code, Instructions) {
  if (form().lanes == 1 || !(form().straight || is_baseline())) return;
  for (const auto& [name, body] : bodies()) {
    const Tally count = tally(body);
    const int adds = form().bodies * form().add_instructions,
              mults = form().bodies * form().mult_instructions;
    EXPECT_LE(count.adds(), adds) << name;
    EXPECT_LE(count.mults(), mults + (is_baseline() ? 0 : doublings())) << name;
    EXPECT_LE(count.adds() + count.mults(), adds + mults) << name;
    if (!is_baseline()) continue;
    EXPECT_EQ(count.packed_adds, form().bodies * form().add_instructions) << name;
    EXPECT_EQ(count.packed_mults, form().bodies * form().mult_instructions) << name;
    EXPECT_EQ(count.scalar_adds + count.scalar_mults, 0) << name;
  }
}

// The row bounds real operations, which are the lanes of packed ones.
TEST_P(Code, OperationCounts) {
  const int adds = kernel().adds, mults = kernel().mults + scaled_outputs(kernel());
  for (const auto& [name, body] : bodies()) {
    const Tally count = tally(body);
    if (form().lanes == 1) {
      EXPECT_EQ(count.packed_adds + count.packed_mults, 0) << name;
    }
    if (fills_its_lanes()) {
      EXPECT_LE(count.added_lanes, form().bodies * (adds + doublings())) << name;
      EXPECT_LE(count.multiplied_lanes, form().bodies * mults) << name;
      EXPECT_LE(count.added_lanes + count.multiplied_lanes, form().bodies * (adds + mults)) << name;
    }
    if (form().straight) {
      EXPECT_GE(count.multiplied_lanes, scaled_outputs(kernel()))
          << name << " does not multiply every output by the factor";
    }
  }
}

// Negation is a subtraction from zero, never an operation on the sign bit; xor may clear a register.
TEST_P(Code, RealTransformsNegateNothing) {
  if (real_family(kernel()) == nullptr || !is_baseline()) return;
  for (const auto& [name, body] : bodies())
    for (const Instruction* instruction : body.instructions)
      EXPECT_TRUE(instruction->sort != Sort::bits || clears(*instruction))
          << name << ": " << instruction->text();
}

// Constants are binary64 in either precision; binary32 values meet only the factor and the 2 of a doubling,
// in pairs or one by one.
TEST_P(Code, RealTransformsMultiplyConstantsInBinary64) {
  if (real_family(kernel()) == nullptr) return;
  for (const auto& [name, body] : bodies()) {
    int narrow = 0;
    for (const Instruction* instruction : body.instructions)
      if (instruction->mnemonic.ends_with("mulss") || instruction->mnemonic.ends_with("mulps")) ++narrow;
    const bool single = kernel().precision == Precision::binary32;
    EXPECT_LE(narrow, single ? scaled_outputs(kernel()) + doublings() : 0) << name;
  }
}

// The stored zeros of a spectrum are not input: not even a dead load touches them. A wide load may.
TEST_P(Code, RealTransformsLoadTheirInputAlone) {
  const RealFamily* const family = real_family(kernel());
  if (family == nullptr || form().lanes > 1) return;
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
  if (kernel().precision == Precision::binary32 || !form().two_variants) return;
  for (const Instruction* instruction : bodies().at(kernel().name).instructions)
    EXPECT_EQ(instruction->mnemonic.find("movu"), std::string::npos) << instruction->text();
}

TEST_P(Code, LaneExchanges) {
  if (form().exchanges < 0) return;  // not prescribed
  for (const auto& [name, body] : bodies()) EXPECT_EQ(tally(body).between_lanes, form().exchanges) << name;
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
  for (const std::string line : {"  10:\tvfmadd231ps %xmm0,%xmm1,%xmm2", "  10:\tdpps   $0xf1,%xmm0,%xmm1",
                                 "  10:\tfmull (%rdi)", "  10:\tdivsd %xmm0,%xmm1"})
    EXPECT_EQ(parse_instruction(line)->sort, Sort::unexpected) << line;
  const auto nop = parse_instruction("  10:\tcs nopw 0x0(%rax,%rax,1)");
  EXPECT_EQ(nop->mnemonic, "nopw");
}

TEST(Disassembler, Levels) {
  const auto level = [](const std::string& text) { return parse_instruction("  10:\t" + text)->level; };
  EXPECT_EQ(level("addps %xmm0,%xmm1"), 1);
  EXPECT_EQ(level("movddup %xmm0,%xmm1"), 2);
  EXPECT_EQ(level("haddps %xmm0,%xmm1"), 2);
  EXPECT_EQ(level("vhaddpd %xmm0,%xmm1,%xmm2"), 3);
  EXPECT_EQ(level("vaddps %xmm0,%xmm1,%xmm15"), 3);
  EXPECT_EQ(level("vmovups %ymm0,0x10(%rsi)"), 3);
  EXPECT_EQ(level("vaddps %xmm0,%xmm1,%xmm16"), 4);
  EXPECT_EQ(level("vaddps 0x4(%rax){1to8},%ymm1,%ymm2"), 4);
  EXPECT_EQ(level("vsubpd %ymm0,%ymm1,%ymm2{%k1}"), 4);
  EXPECT_EQ(level("vmovups (%rdi),%zmm0"), 4);
}

TEST(Disassembler, UpperHalves) {
  const auto dirties = [](const std::string& text) {
    return parse_instruction("  10:\t" + text)->writes_upper_half();
  };
  EXPECT_TRUE(dirties("vmovups (%rdi,%rax,4),%ymm0"));
  EXPECT_TRUE(dirties("vsubpd %ymm0,%ymm1,%ymm15{%k1}"));
  EXPECT_FALSE(dirties("vaddps %ymm0,%ymm1,%ymm16"));
  EXPECT_FALSE(dirties("vmovups %ymm0,(%rdi,%rax,4)"));
  EXPECT_FALSE(dirties("vextractf128 $0x1,%ymm0,%xmm1"));
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
  EXPECT_EQ(tally("vaddsd %xmm1,%xmm1,%xmm2").scalar_mults, 1);
  EXPECT_EQ(tally("vaddps %ymm1,%ymm2,%ymm1").added_lanes, 8);
  EXPECT_EQ(tally("vmulpd %ymm1,%ymm2,%ymm1").multiplied_lanes, 4);
  EXPECT_EQ(tally("vmulsd %xmm1,%xmm2,%xmm1").multiplied_lanes, 1);
}

}  // namespace
}  // namespace xfm::test
