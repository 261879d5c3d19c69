#include "tests/binary/instruction.h"

#include <set>
#include <sstream>

#include "tests/binary/tools.h"

namespace xfm::test {
namespace {

using Mnemonics = std::set<std::string>;

const Mnemonics packed_add = {"addps", "subps", "addpd", "subpd"};
const Mnemonics packed_mult = {"mulps", "mulpd"};
const Mnemonics scalar_add = {"addss", "subss", "addsd", "subsd"};
const Mnemonics scalar_mult = {"mulss", "mulsd"};

// Loading or storing a half of a register moves nothing from lane to lane, unless it goes through the stack.
const Mnemonics between_lanes = {"shufpd",     "shufps",     "pshufd",    "unpcklpd",  "unpckhpd",
                                 "punpcklqdq", "punpckhqdq", "punpckldq", "punpckhdq", "unpcklps",
                                 "unpckhps",   "movhlps",    "movlhps",   "psrldq",    "pslldq"};

const Mnemonics moves = {"movaps", "movapd", "movups", "movupd", "movdqa", "movdqu", "movss",   "movsd",
                         "movq",   "movd",   "movlps", "movhps", "movlpd", "movhpd", "movhlps", "movlhps"};
const Mnemonics bits = {"xorps",  "xorpd",  "pxor",  "andps", "andpd", "pand",
                        "andnps", "andnpd", "pandn", "orps",  "orpd",  "por"};
const Mnemonics conversions = {"cvtss2sd", "cvtsd2ss", "cvtps2pd", "cvtpd2ps"};
const Mnemonics integers = {"mov", "movabs", "movslq", "movzbl", "movl", "lea",   "xor",
                            "and", "or",     "add",    "sub",    "test", "cmp",   "sar",
                            "shr", "shl",    "bt",     "push",   "pop",  "call",  "ret",
                            "jmp", "nop",    "nopw",   "nopl",   "xchg", "leave", "endbr64"};

bool in(const Mnemonics& set, const std::string& mnemonic) { return set.contains(mnemonic); }

bool is_conditional(const std::string& mnemonic) {
  static const std::set<std::string> conditions = {"a", "ae", "b", "be", "e", "ne", "g", "ge",
                                                   "l", "le", "s", "ns", "c", "nc", "z", "nz"};
  for (const std::string prefix : {"j", "cmov", "set"})
    if (mnemonic.starts_with(prefix) && conditions.contains(mnemonic.substr(prefix.size()))) return true;
  return false;
}

// Printed in front of an instruction that they do not change.
bool is_prefix(const std::string& word) {
  static const Mnemonics prefixes = {"cs",     "ds",  "es",   "fs",  "gs",     "ss",
                                     "data16", "rep", "repz", "bnd", "notrack"};
  return prefixes.contains(word);
}

/// "0x4bde(%rip),%xmm5        # 72f0 <factors+0x50>" names an address behind the mark.
std::optional<std::uint64_t> address_of_constant(const std::string& comment) {
  if (comment.empty()) return std::nullopt;
  return std::stoull(comment, nullptr, 16);
}

/// "movhpd %xmm0,0x8(%rsp)": halves that meet again in memory.
bool is_half_in_stack(const Instruction& instruction) {
  static const Mnemonics halves = {"movsd", "movq", "movlpd", "movhpd", "movlps", "movhps"};
  return in(halves, instruction.mnemonic) && instruction.operands.find("(%rsp") != std::string::npos;
}

}  // namespace

std::optional<Instruction> parse_instruction(const std::string& line) {
  const auto colon = line.find(":\t");
  if (line.empty() || line[0] != ' ' || colon == std::string::npos) return std::nullopt;
  Instruction result;
  result.address = std::stoull(line.substr(0, colon), nullptr, 16);
  std::string text = line.substr(colon + 2), comment;
  if (const auto mark = text.find('#'); mark != std::string::npos) {
    comment = text.substr(mark + 1);
    text.resize(mark);
  }
  std::istringstream words(text);
  words >> result.mnemonic;
  while (is_prefix(result.mnemonic) && words >> result.mnemonic) {
  }
  words >> result.operands;
  if (result.operands.find("(%rip)") != std::string::npos) result.constant = address_of_constant(comment);
  const bool direct = !result.operands.empty() && result.operands[0] != '*';
  if ((result.is_jump() || result.is_call()) && direct)
    result.target = std::stoull(result.operands, nullptr, 16);
  return result;
}

std::vector<std::string> Instruction::operand_list() const {
  std::vector<std::string> list(1);
  int depth = 0;
  for (const char c : operands) {
    depth += c == '(' ? 1 : c == ')' ? -1 : 0;
    if (c == ',' && depth == 0) {
      list.emplace_back();
    } else {
      list.back() += c;
    }
  }
  return list;
}

bool Instruction::is_expected() const {
  for (const Mnemonics* set : {&packed_add, &packed_mult, &scalar_add, &scalar_mult, &between_lanes, &moves,
                               &bits, &conversions, &integers})
    if (in(*set, mnemonic)) return true;
  return is_conditional(mnemonic);
}

void Tally::add(const Instruction& instruction) {
  const std::string& mnemonic = instruction.mnemonic;
  const auto operands = instruction.operand_list();
  // Compilers write 2 x as x + x, which has the same bits: it stays a multiplication.
  const bool doubling = operands.size() == 2 && operands[0] == operands[1] && operands[0][0] == '%';
  const bool adds_to_itself = doubling && mnemonic.starts_with("add");
  if (in(packed_mult, mnemonic) || (in(packed_add, mnemonic) && adds_to_itself)) {
    ++packed_mults;
  } else if (in(packed_add, mnemonic)) {
    ++packed_adds;
  } else if (in(scalar_mult, mnemonic) || (in(scalar_add, mnemonic) && adds_to_itself)) {
    ++scalar_mults;
  } else if (in(scalar_add, mnemonic)) {
    ++scalar_adds;
  } else if (in(between_lanes, mnemonic) || is_half_in_stack(instruction)) {
    ++exchanges;
  }
}

}  // namespace xfm::test
