// The probe notices each thing that a function may do wrong.
#include <gtest/gtest.h>

#include "tests/state/probe.h"

// What they do is not allowed in C++.
#define FUNCTION(name, code)                                                         \
  __asm__(".text\n .globl xfm_test_" #name "\n xfm_test_" #name ": " code "\n ret"); \
  extern "C" void xfm_test_##name()
FUNCTION(sum, "mov 8(%rsp), %rax; add %r9, %rax; add %rdi, %rax");
FUNCTION(changes_rbx, "not %rbx");
FUNCTION(changes_rbp, "not %rbp");
FUNCTION(changes_r12, "not %r12");
FUNCTION(changes_r13, "not %r13");
FUNCTION(changes_r14, "not %r14");
FUNCTION(changes_r15, "not %r15");
FUNCTION(pops_argument, "pop %rax; add $8, %rsp; push %rax");
FUNCTION(sets_direction, "std");
FUNCTION(uses_x87, "fldz");
FUNCTION(changes_x87, "fninit");
FUNCTION(changes_mxcsr, "push $0x9FC0; ldmxcsr (%rsp); pop %rax");
FUNCTION(clears_status, "push $0x1F80; ldmxcsr (%rsp); pop %rax");
FUNCTION(adds_junk, "addpd %xmm3, %xmm3; addps %xmm4, %xmm4");
FUNCTION(uses_page, "movb $1, -4096(%rsp)");
FUNCTION(leaves_ymm, "vcmpps $15, %ymm0, %ymm0, %ymm7");

namespace xfm::test {
namespace {

Finish finish(void (*function)(), const Start& start = {}) {
  return probe(reinterpret_cast<const void*>(function), {1, 2, 3, 4, 5, 6, 7}, start);
}
using Damage = std::vector<std::string>;

TEST(Probe, PassesArguments) {
  const Finish got = finish(xfm_test_sum);
  EXPECT_EQ(got.result, 1U + 6 + 7);
  EXPECT_EQ(got.damage, Damage());
  EXPECT_EQ(got.raised, 0U);
}

TEST(Probe, NoticesSavedRegisters) {
  EXPECT_EQ(finish(xfm_test_changes_rbx).damage, Damage{"rbx is changed"});
  EXPECT_EQ(finish(xfm_test_changes_rbp).damage, Damage{"rbp is changed"});
  EXPECT_EQ(finish(xfm_test_changes_r12).damage, Damage{"r12 is changed"});
  EXPECT_EQ(finish(xfm_test_changes_r13).damage, Damage{"r13 is changed"});
  EXPECT_EQ(finish(xfm_test_changes_r14).damage, Damage{"r14 is changed"});
  EXPECT_EQ(finish(xfm_test_changes_r15).damage, Damage{"r15 is changed"});
}

TEST(Probe, NoticesTheStackPointer) {
  EXPECT_EQ(finish(xfm_test_pops_argument).damage, Damage{"the stack pointer is changed"});
}

TEST(Probe, NoticesFlagsAndControlWords) {
  EXPECT_EQ(finish(xfm_test_sets_direction).damage, Damage{"the direction flag is set"});
  EXPECT_EQ(finish(xfm_test_uses_x87).damage, Damage{"x87 registers are in use"});
  EXPECT_EQ(finish(xfm_test_changes_x87, {.control = 0x27F}).damage,
            Damage{"the x87 control word is changed"});
  EXPECT_EQ(finish(xfm_test_changes_mxcsr).damage, Damage{"MXCSR's control is changed"});
  EXPECT_EQ(finish(xfm_test_clears_status, {.mxcsr = 0x1FBF}).damage, Damage{"MXCSR's status is cleared"});
}

TEST(Probe, NoticesLanesThatAreNotFilled) {
  constexpr std::uint32_t invalid = 1;
  EXPECT_EQ(finish(xfm_test_adds_junk).raised, 0U);
  EXPECT_EQ(finish(xfm_test_adds_junk, {.junk = nan_64}).raised & invalid, invalid);
  EXPECT_EQ(finish(xfm_test_adds_junk, {.junk = nan_32}).raised & invalid, invalid);
}

TEST(Probe, MeasuresTheStack) {
  EXPECT_EQ(finish(xfm_test_sum).stack, 8U + 16U);  // one argument, and what alignment adds
  EXPECT_EQ(finish(xfm_test_uses_page).stack, 4096U + 8 + 16);
}

TEST(Probe, NoticesUpperHalves) {
  if (!__builtin_cpu_supports("avx")) GTEST_SKIP() << "no AVX here";
  const Damage damage = finish(xfm_test_leaves_ymm).damage;
  ASSERT_FALSE(damage.empty());
  EXPECT_EQ(damage.front(), "upper halves of vector registers hold values");
}

}  // namespace
}  // namespace xfm::test
