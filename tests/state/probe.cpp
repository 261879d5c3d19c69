#include "tests/state/probe.h"

#include <cpuid.h>

#include <algorithm>
#include <cstddef>

#include "tests/support/guarded.h"

namespace xfm::test {
namespace {

/// What the code below reads and fills in; the numbers are its offsets.
struct Block {
  const void* function;          // 0
  std::uint64_t argument[6];     // 8
  std::uint64_t* stack;          // 56: arguments beyond the sixth
  std::uint64_t junk;            // 64
  std::uint32_t mxcsr;           // 72
  std::uint16_t control;         // 76
  std::uint16_t processor;       // 78: bits of Has
  std::uint64_t saved[6];        // 80: rbx, rbp, r12 to r15
  std::uint64_t result;          // 128
  std::uint64_t saved_after[6];  // 136
  std::uint64_t* stack_after;    // 184
  std::uint64_t flags;           // 192
  std::uint32_t mxcsr_after;     // 200
  std::uint32_t in_use;          // 204: components of the extended state, by XGETBV
  std::uint16_t x87[16];         // 208: the environment, control, status and tags first
  std::uint8_t pad[16];
  std::uint8_t registers[16][64];  // 256
};
static_assert(offsetof(Block, stack) == 56 && offsetof(Block, processor) == 78);
static_assert(offsetof(Block, saved) == 80 && offsetof(Block, saved_after) == 136);
static_assert(offsetof(Block, x87) == 208 && offsetof(Block, registers) == 256);

enum Has : std::uint16_t { avx = 1, avx512 = 2, reports_use = 4 };

}  // namespace
}  // namespace xfm::test

extern "C" {
void xfm_test_probe(xfm::test::Block* block);
std::uint64_t xfm_test_own_stack, xfm_test_block;
}

// After the call nothing but the return address is known to be right, so two variables lead back.
__asm__(R"(
  .text
  .globl xfm_test_probe
  .type xfm_test_probe, @function
xfm_test_probe:
  push %rbx
  push %rbp
  push %r12
  push %r13
  push %r14
  push %r15
  sub $16, %rsp
  stmxcsr (%rsp)
  fnstcw 8(%rsp)
  mov %rsp, xfm_test_own_stack(%rip)
  mov %rdi, xfm_test_block(%rip)
  testb $1, 78(%rdi)
  je 1f
  vzeroupper
1:mov %rdi, %rax
  movq 64(%rax), %xmm0
  punpcklqdq %xmm0, %xmm0
  .irp n, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
  movaps %xmm0, %xmm\n
  .endr
  ldmxcsr 72(%rax)
  fldcw 76(%rax)
  mov 80(%rax), %rbx
  mov 88(%rax), %rbp
  mov 96(%rax), %r12
  mov 104(%rax), %r13
  mov 112(%rax), %r14
  mov 120(%rax), %r15
  mov 8(%rax), %rdi
  mov 16(%rax), %rsi
  mov 24(%rax), %rdx
  mov 32(%rax), %rcx
  mov 40(%rax), %r8
  mov 48(%rax), %r9
  mov 56(%rax), %rsp
  call *(%rax)
  mov xfm_test_block(%rip), %rcx
  mov %rsp, 184(%rcx)
  mov xfm_test_own_stack(%rip), %rsp
  mov %rax, 128(%rcx)
  mov %rbx, 136(%rcx)
  mov %rbp, 144(%rcx)
  mov %r12, 152(%rcx)
  mov %r13, 160(%rcx)
  mov %r14, 168(%rcx)
  mov %r15, 176(%rcx)
  pushf
  pop 192(%rcx)
  cld
  stmxcsr 200(%rcx)
  fnstenv 208(%rcx)
  mov %rcx, %rsi
  testb $4, 78(%rsi)
  je 2f
  mov $1, %ecx
  xgetbv
  mov %eax, 204(%rsi)
2:testb $2, 78(%rsi)
  je 3f
  .irp n, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
  vmovups %zmm\n, 256+64*\n(%rsi)
  .endr
  vzeroupper
  jmp 4f
3:testb $1, 78(%rsi)
  je 4f
  .irp n, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15
  vmovups %ymm\n, 256+64*\n(%rsi)
  .endr
  vzeroupper
4:fninit
  fldcw 8(%rsp)
  ldmxcsr (%rsp)
  add $16, %rsp
  pop %r15
  pop %r14
  pop %r13
  pop %r12
  pop %rbp
  pop %rbx
  ret
  .size xfm_test_probe, .-xfm_test_probe
)");

namespace xfm::test {
namespace {

/// What this processor and the system let us see.
std::uint16_t processor() {
  int has = 0;
  if (__builtin_cpu_supports("avx")) has |= Has::avx;
  if (__builtin_cpu_supports("avx512f")) has |= Has::avx512;
  unsigned a = 0, b = 0, c = 0, d = 0;
  if (has != 0 && __get_cpuid_count(0xD, 1, &a, &b, &c, &d) != 0 && (a & 4U) != 0) has |= Has::reports_use;
  return static_cast<std::uint16_t>(has);
}

/// A stack that remembers how far it was used.
class Stack {
 public:
  Stack() : memory_(probed_stack) { std::fill(begin(), end(), paint); }
  /// A place for arguments, aligned as before a call.
  std::uint64_t* place(std::size_t arguments) const { return end() - (arguments + 1) / 2 * 2; }
  /// The bytes used since the last time.
  std::size_t used() {
    std::uint64_t* const lowest =
        std::find_if(begin(), end(), [](std::uint64_t word) { return word != paint; });
    std::fill(lowest, end(), paint);
    return static_cast<std::size_t>(end() - lowest) * sizeof paint;
  }

 private:
  static constexpr std::uint64_t paint = 0xA5A5A5A5A5A5A5A5;
  std::uint64_t* begin() const { return reinterpret_cast<std::uint64_t*>(memory_.begin()); }
  std::uint64_t* end() const { return reinterpret_cast<std::uint64_t*>(memory_.end()); }

  Guarded memory_;
};

void compare(std::vector<std::string>& damage, bool same, const std::string& what) {
  if (!same) damage.push_back(what);
}

std::vector<std::string> damage_in(const Block& block) {
  std::vector<std::string> damage;
  const char* const names[] = {"rbx", "rbp", "r12", "r13", "r14", "r15"};
  for (int k = 0; k < 6; ++k)
    compare(damage, block.saved[k] == block.saved_after[k], std::string(names[k]) + " is changed");
  compare(damage, block.stack == block.stack_after, "the stack pointer is changed");
  compare(damage, (block.flags & 1U << 10) == 0, "the direction flag is set");
  constexpr std::uint32_t status = 0x3F;
  compare(damage, (block.mxcsr & ~status) == (block.mxcsr_after & ~status), "MXCSR's control is changed");
  compare(damage, (block.mxcsr & status & ~block.mxcsr_after) == 0, "MXCSR's status is cleared");
  compare(damage, block.x87[0] == block.control, "the x87 control word is changed");
  compare(damage, block.x87[4] == 0xFFFF, "x87 registers are in use");
  bool clean = true;
  for (const auto& bytes : block.registers)
    clean &= std::all_of(bytes + 16, bytes + 64, [](std::uint8_t byte) { return byte == 0; });
  compare(damage, clean, "upper halves of vector registers hold values");
  constexpr std::uint32_t upper_halves = 1U << 2 | 1U << 6;
  compare(damage, (block.in_use & upper_halves) == 0, "the processor takes upper halves to be in use");
  return damage;
}

}  // namespace

Finish probe(const void* function, const std::vector<std::uint64_t>& arguments, const Start& start) {
  static Stack stack;
  static const std::uint16_t has = processor();
  alignas(64) Block block = {};
  block.function = function;
  const std::size_t on_stack = arguments.size() > 6 ? arguments.size() - 6 : 0;
  block.stack = stack.place(on_stack);
  for (std::size_t k = 0; k < arguments.size(); ++k)
    (k < 6 ? block.argument[k] : block.stack[k - 6]) = arguments[k];
  block.junk = start.junk;
  block.mxcsr = start.mxcsr;
  block.control = start.control;
  block.processor = has;
  for (std::uint64_t k = 0; k < 6; ++k) block.saved[k] = 0x5AFE000000000000 + k;
  xfm_test_probe(&block);
  return {block.result, stack.used(), block.mxcsr_after & ~block.mxcsr, damage_in(block)};
}

}  // namespace xfm::test
