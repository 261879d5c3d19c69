#include "tests/binary/instruction.h"

#include <algorithm>
#include <regex>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace xfm::test {
namespace {

/// What a mnemonic stands for: its sort, and the level of x86-64 that brought it.
struct Meaning {
  Sort sort;
  int level;
};
using Names = std::unordered_map<std::string, Meaning>;
using Mnemonics = std::initializer_list<const char*>;

void enter(Names& names, Meaning meaning, Mnemonics mnemonics) {
  for (const char* const mnemonic : mnemonics) names.emplace(mnemonic, meaning);
}

/// Instructions on 128-bit registers, which AVX has with a v in front and for wider registers too.
void enter_vectors(Names& names, Meaning meaning, Mnemonics mnemonics) {
  enter(names, meaning, mnemonics);
  for (const char* const mnemonic : mnemonics)
    names.emplace(std::string("v") + mnemonic, Meaning{meaning.sort, 3});
}

void enter_baseline(Names& names) {
  enter(names, {Sort::control, 1},
        {"call", "ret", "jmp", "ja", "jae", "jb", "jbe", "je", "jne", "jg", "jge", "jl", "jle", "js", "jns"});
  enter(names, {Sort::integer, 1},
        {"mov",  "movl",  "movabs", "movslq", "movzbl", "lea",    "xor",    "and",    "or",    "add",
         "sub",  "test",  "cmp",    "bt",     "sar",    "shr",    "shl",    "push",   "pop",   "leave",
         "nop",  "nopw",  "nopl",   "xchg",   "cmova",  "cmovae", "cmovb",  "cmovbe", "cmove", "cmovne",
         "seta", "setae", "setb",   "setbe",  "sete",   "setne",  "endbr64"});
  enter_vectors(names, {Sort::move, 1},
                {"movaps", "movapd", "movups", "movupd", "movdqa", "movdqu", "movss", "movsd", "movq", "movd",
                 "movlps", "movhps", "movlpd", "movhpd"});
  enter_vectors(names, {Sort::bits, 1},
                {"xorps", "xorpd", "pxor", "andps", "andpd", "pand", "andnps", "andnpd", "pandn", "orps",
                 "orpd", "por"});
  enter_vectors(names, {Sort::conversion, 1}, {"cvtss2sd", "cvtsd2ss", "cvtps2pd", "cvtpd2ps"});
  enter_vectors(names, {Sort::between_lanes, 1},
                {"shufpd", "shufps", "pshufd", "unpcklpd", "unpckhpd", "unpcklps", "unpckhps", "punpckldq",
                 "punpckhdq", "punpcklqdq", "punpckhqdq", "movhlps", "movlhps", "psrldq", "pslldq"});
  enter_vectors(names, {Sort::scalar_add, 1}, {"addss", "subss", "addsd", "subsd"});
  enter_vectors(names, {Sort::scalar_mult, 1}, {"mulss", "mulsd"});
  enter_vectors(names, {Sort::packed_add, 1}, {"addps", "subps", "addpd", "subpd"});
  enter_vectors(names, {Sort::packed_mult, 1}, {"mulps", "mulpd"});
}

// From SSE3 to SSE4.2.
void enter_v2(Names& names) {
  enter_vectors(names, {Sort::move, 2},
                {"blendps", "blendpd", "blendvps", "blendvpd", "pblendw", "pblendvb", "lddqu"});
  enter_vectors(names, {Sort::between_lanes, 2},
                {"movddup", "movshdup", "movsldup", "insertps", "extractps", "palignr", "pshufb", "pinsrd",
                 "pinsrq", "pextrd", "pextrq"});
  enter_vectors(names, {Sort::packed_add, 2},
                {"addsubps", "addsubpd", "haddps", "haddpd", "hsubps", "hsubpd"});
}

// AVX, AVX2, BMI.
void enter_v3(Names& names) {
  enter(names, {Sort::integer, 3},
        {"andn", "bextr", "bzhi", "rorx", "sarx", "shlx", "shrx", "tzcnt", "lzcnt"});
  enter(names, {Sort::upper_halves, 3}, {"vzeroupper"});
  enter(names, {Sort::move, 3}, {"vpblendd", "vmaskmovps", "vmaskmovpd", "vpmaskmovd", "vpmaskmovq"});
  enter(names, {Sort::conversion, 3}, {"vcvtpd2psx", "vcvtpd2psy"});
  enter(names, {Sort::between_lanes, 3},
        {"vpermilps", "vpermilpd", "vpermps", "vpermpd", "vpermd", "vpermq", "vperm2f128", "vperm2i128",
         "vinsertf128", "vinserti128", "vextractf128", "vextracti128", "vbroadcastss", "vbroadcastsd",
         "vbroadcastf128", "vbroadcasti128", "vpbroadcastd", "vpbroadcastq"});
}

// AVX-512 F, VL, BW, DQ, CD.
void enter_v4(Names& names) {
  enter(names, {Sort::integer, 4},
        {"kmovb", "kmovw", "kmovd", "kmovq", "kxnorb", "kxnorw", "kxnord", "kxorb", "kxorw"});
  enter(names, {Sort::move, 4},
        {"vmovdqa32", "vmovdqa64", "vmovdqu32", "vmovdqu64", "vblendmps", "vblendmpd"});
  enter(names, {Sort::bits, 4},
        {"vpxord", "vpxorq", "vpandd", "vpandq", "vpandnd", "vpandnq", "vpord", "vporq", "vpternlogd",
         "vpternlogq"});
  enter(names, {Sort::between_lanes, 4},
        {"vpermt2ps",       "vpermt2pd",       "vpermi2ps",       "vpermi2pd",       "vpermt2d",
         "vpermt2q",        "vpermi2d",        "vpermi2q",        "valignd",         "valignq",
         "vshuff32x4",      "vshuff64x2",      "vshufi32x4",      "vshufi64x2",      "vinsertf32x4",
         "vinsertf64x2",    "vinsertf64x4",    "vinserti32x4",    "vinserti64x2",    "vextractf32x4",
         "vextractf64x2",   "vextractf64x4",   "vextracti32x4",   "vextracti64x2",   "vbroadcastf32x2",
         "vbroadcastf32x4", "vbroadcastf64x2", "vbroadcasti32x2", "vbroadcasti32x4", "vbroadcasti64x2"});
}

Names make_names() {
  Names names;
  enter_baseline(names);
  enter_v2(names);
  enter_v3(names);
  enter_v4(names);
  return names;
}

/// The bytes of the widest vector register among the operands, or 0.
int register_bytes(const std::string& operands) {
  for (const auto& [name, bytes] : {std::pair("%zmm", 64), {"%ymm", 32}, {"%xmm", 16}})
    if (operands.find(name) != std::string::npos) return bytes;
  return 0;
}

/// What the operands alone ask for: wide registers, and the registers and masks of AVX-512.
int level_of(const std::string& operands) {
  static const std::regex of_v4("%zmm|%k[0-7]|mm(1[6-9]|[23][0-9])|[{]1to|[{]r[nudz]");
  const int bytes = register_bytes(operands);
  if (bytes == 0 && operands.find("%k") == std::string::npos) return 1;
  return std::regex_search(operands, of_v4) ? 4 : bytes > 16 ? 3 : 1;
}

/// Two halves of a register that are stored apart may have changed places.
bool is_half_in_stack(std::string_view mnemonic, const std::string& operands) {
  static constexpr std::string_view halves[] = {"movsd", "movq", "movlpd", "movhpd", "movlps", "movhps"};
  if (mnemonic.starts_with('v')) mnemonic.remove_prefix(1);
  return std::ranges::find(halves, mnemonic) != std::end(halves) &&
         operands.find("(%rsp") != std::string::npos;
}

/// Compilers write 2 x as x + x, which has the same bits: it counts as a multiplication.
bool doubles(const std::string& mnemonic, const std::string& operands) {
  return mnemonic.find("add") != std::string::npos && has_equal_sources(operands);
}

Meaning meaning_of(const std::string& mnemonic, const std::string& operands) {
  static const Names names = make_names();
  const auto found = names.find(mnemonic);
  if (found == names.end()) return {Sort::unexpected, 0};
  auto [sort, level] = found->second;
  level = std::max(level, level_of(operands));
  if (is_half_in_stack(mnemonic, operands)) sort = Sort::between_lanes;
  if (sort == Sort::scalar_add && doubles(mnemonic, operands)) sort = Sort::scalar_mult;
  if (sort == Sort::packed_add && doubles(mnemonic, operands)) sort = Sort::packed_mult;
  return {sort, level};
}

/// Of arithmetic, whose mnemonics end in ps, pd, ss or sd.
int lanes_of(const Instruction& instruction) {
  if (instruction.sort < Sort::packed_add) return 1;
  return register_bytes(instruction.operands) / (instruction.mnemonic.ends_with("ps") ? 4 : 8);
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

int level_of_target(std::string_view name) {
  const auto v = name.find("-v");
  return v == std::string_view::npos ? 1 : name[v + 2] - '0';
}

bool has_equal_sources(const std::string& operands) {
  const auto comma = operands.find(',');
  const auto end = operands.find(',', comma + 1);
  return operands.starts_with('%') && comma != std::string::npos &&
         operands.substr(0, comma) == operands.substr(comma + 1, end - comma - 1);
}

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
  const Meaning meaning = meaning_of(result.mnemonic, result.operands);
  result.sort = meaning.sort;
  result.level = meaning.level;
  result.lanes = lanes_of(result);
  if (result.operands.find("(%rip)") != std::string::npos && text.starts_with('#'))
    result.constant = std::stoull(std::string(text.substr(1)), nullptr, 16);
  const bool direct = !result.operands.empty() && result.operands[0] != '*';
  if ((result.is_jump() || result.is_call()) && direct)
    result.target = std::stoull(result.operands, nullptr, 16);
  return result;
}

// The destination comes last, and a mask may follow it.
bool Instruction::writes_upper_half() const {
  static const std::regex wide("(.*,)?%[yz]mm([0-9]|1[0-5])([{].*)?");
  return sort != Sort::upper_halves && std::regex_match(operands, wide);
}

void Tally::add(const Instruction& instruction) {
  scalar_adds += instruction.sort == Sort::scalar_add;
  scalar_mults += instruction.sort == Sort::scalar_mult;
  packed_adds += instruction.sort == Sort::packed_add;
  packed_mults += instruction.sort == Sort::packed_mult;
  between_lanes += instruction.sort == Sort::between_lanes;
  const bool adds = instruction.sort == Sort::scalar_add || instruction.sort == Sort::packed_add;
  const bool multiplies = instruction.sort == Sort::scalar_mult || instruction.sort == Sort::packed_mult;
  added_lanes += adds ? instruction.lanes : 0;
  multiplied_lanes += multiplies ? instruction.lanes : 0;
}

}  // namespace xfm::test
