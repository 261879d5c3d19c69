#include "tests/binary/instruction.h"

#include <string_view>
#include <unordered_map>

namespace xfm::test {
namespace {

using Names = std::unordered_map<std::string_view, Sort>;

void enter(Names& names, Sort sort, std::initializer_list<std::string_view> mnemonics) {
  for (const std::string_view mnemonic : mnemonics) names.emplace(mnemonic, sort);
}

Names make_names() {
  Names names;
  enter(names, Sort::control,
        {"call", "ret", "jmp", "ja", "jae", "jb", "jbe", "je", "jne", "jg", "jge", "jl", "jle", "js", "jns"});
  enter(names, Sort::integer,
        {"mov",  "movl",  "movabs", "movslq", "movzbl", "lea",    "xor",    "and",    "or",    "add",
         "sub",  "test",  "cmp",    "bt",     "sar",    "shr",    "shl",    "push",   "pop",   "leave",
         "nop",  "nopw",  "nopl",   "xchg",   "cmova",  "cmovae", "cmovb",  "cmovbe", "cmove", "cmovne",
         "seta", "setae", "setb",   "setbe",  "sete",   "setne",  "endbr64"});
  enter(names, Sort::move,
        {"movaps", "movapd", "movups", "movupd", "movdqa", "movdqu", "movss", "movsd", "movq", "movd",
         "movlps", "movhps", "movlpd", "movhpd"});
  enter(names, Sort::bits,
        {"xorps", "xorpd", "pxor", "andps", "andpd", "pand", "andnps", "andnpd", "pandn", "orps", "orpd",
         "por"});
  enter(names, Sort::conversion, {"cvtss2sd", "cvtsd2ss", "cvtps2pd", "cvtpd2ps"});
  enter(names, Sort::between_lanes,
        {"shufpd", "shufps", "pshufd", "unpcklpd", "unpckhpd", "unpcklps", "unpckhps", "punpckldq",
         "punpckhdq", "punpcklqdq", "punpckhqdq", "movhlps", "movlhps", "psrldq", "pslldq"});
  enter(names, Sort::scalar_add, {"addss", "subss", "addsd", "subsd"});
  enter(names, Sort::scalar_mult, {"mulss", "mulsd"});
  enter(names, Sort::packed_add, {"addps", "subps", "addpd", "subpd"});
  enter(names, Sort::packed_mult, {"mulps", "mulpd"});
  return names;
}

/// "%xmm1,%xmm1" of an addition. Compilers write 2 x as x + x, which has the same bits: it counts as a
/// multiplication.
bool doubles(const std::string& mnemonic, const std::string& operands) {
  const auto comma = operands.find(',');
  return mnemonic.starts_with("add") && operands.starts_with('%') &&
         operands.substr(0, comma) == operands.substr(comma + 1);
}

/// Two halves of a register that are stored apart may have changed places.
bool is_half_in_stack(const std::string& mnemonic, const std::string& operands) {
  static constexpr std::string_view halves[] = {"movsd", "movq", "movlpd", "movhpd", "movlps", "movhps"};
  for (const std::string_view half : halves)
    if (mnemonic == half) return operands.find("(%rsp") != std::string::npos;
  return false;
}

Sort sort_of(const std::string& mnemonic, const std::string& operands) {
  static const Names names = make_names();
  const auto found = names.find(mnemonic);
  if (found == names.end()) return Sort::unexpected;
  if (is_half_in_stack(mnemonic, operands)) return Sort::between_lanes;
  if (found->second == Sort::scalar_add && doubles(mnemonic, operands)) return Sort::scalar_mult;
  if (found->second == Sort::packed_add && doubles(mnemonic, operands)) return Sort::packed_mult;
  return found->second;
}

// Printed before an instruction, without an effect on it.
bool is_prefix(std::string_view word) {
  for (const std::string_view prefix :
       {"cs", "ds", "es", "fs", "gs", "ss", "data16", "rep", "repz", "bnd", "notrack"})
    if (word == prefix) return true;
  return false;
}

/// Removes the text up to the next blank, and the blanks after it, and returns it.
std::string_view next_word(std::string_view& text) {
  const std::string_view word = text.substr(0, text.find(' '));
  text.remove_prefix(word.size());
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return word;
}

}  // namespace

// "  270a:\tmovss  0x4bde(%rip),%xmm5        # 72f0 <factors+0x50>": the constant's address follows #.
std::optional<Instruction> parse_instruction(const std::string& line) {
  const auto colon = line.find(":\t");
  if (line.empty() || line[0] != ' ' || colon == std::string::npos) return std::nullopt;
  Instruction result;
  result.address = std::stoull(line, nullptr, 16);
  std::string_view text = std::string_view(line).substr(colon + 2);
  std::string_view word = next_word(text);
  while (is_prefix(word) && !text.empty()) word = next_word(text);
  result.mnemonic = word;
  result.operands = next_word(text);
  result.sort = sort_of(result.mnemonic, result.operands);
  if (result.operands.find("(%rip)") != std::string::npos && text.starts_with('#'))
    result.constant = std::stoull(std::string(text.substr(1)), nullptr, 16);
  const bool direct = !result.operands.empty() && result.operands[0] != '*';
  if ((result.is_jump() || result.is_call()) && direct)
    result.target = std::stoull(result.operands, nullptr, 16);
  return result;
}

void Tally::add(const Instruction& instruction) {
  scalar_adds += instruction.sort == Sort::scalar_add;
  scalar_mults += instruction.sort == Sort::scalar_mult;
  packed_adds += instruction.sort == Sort::packed_add;
  packed_mults += instruction.sort == Sort::packed_mult;
  between_lanes += instruction.sort == Sort::between_lanes;
}

}  // namespace xfm::test
