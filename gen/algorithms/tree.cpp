#include "gen/algorithms/tree.h"

#include <cctype>
#include <stdexcept>

#include "gen/algorithms/rules.h"

namespace xfm::gen {
namespace {

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  // "2,2" at the outermost level is a rule of its own.
  Tree whole() {
    Tree tree = joined(",", products());
    if (peek() != '\0') fail("unexpected text");
    return tree;
  }

 private:
  Sequence<Tree> products() {
    return separated(',', [this] { return product(); });
  }
  Tree product() {
    return joined("x", separated('x', [this] { return power(); }));
  }
  Tree power() {
    return joined("*", separated('*', [this] { return stage(); }));
  }

  template <class Operand>
  Sequence<Tree> separated(char sign, Operand operand) {
    Sequence<Tree> operands{operand()};
    while (skips(sign)) operands.push_back(operand());
    return operands;
  }

  // One operand stands for itself.
  static Tree joined(const char* sign, Sequence<Tree> operands) {
    return operands.size() == 1 ? operands.front() : Tree{sign, 0, std::move(operands)};
  }

  Tree stage() {
    if (std::isdigit(static_cast<unsigned char>(peek()))) return {"", number(), {}};
    if (skips('(')) {
      Tree inner = product();
      close();
      return inner;
    }
    std::string rule;
    while (std::isalpha(static_cast<unsigned char>(peek())) || peek() == '*') rule += text_[at_++];
    if (rule.empty()) fail("expected a number or a rule");
    if (!skips('(')) fail("expected '('");
    Sequence<Tree> args = products();
    close();
    return {std::move(rule), 0, std::move(args)};
  }

  void close() {
    if (!skips(')')) fail("expected ')'");
  }

  bool skips(char sign) {
    if (peek() != sign) return false;
    ++at_;
    return true;
  }

  int number() {
    constexpr int longest = 1000000;
    int value = 0;
    peek();  // spaces are skipped in front of a number, never inside it
    for (; at_ < text_.size() && std::isdigit(static_cast<unsigned char>(text_[at_])) != 0; ++at_) {
      value = 10 * value + (text_[at_] - '0');
      if (value > longest) fail("the number is too large");
    }
    return value;
  }

  char peek() {
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
    return at_ < text_.size() ? text_[at_] : '\0';
  }

  [[noreturn]] void fail(const std::string& what) const {
    throw std::invalid_argument("tree \"" + std::string(text_) + "\", position " + std::to_string(at_) +
                                ": " + what);
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

void check_rules(const Tree& tree) {
  rule_of(tree);
  for (const Tree& arg : tree.args) {
    if (!arg.is_number()) check_rules(arg);  // a number may be a root or a bin
  }
}

// A run in parentheses where the grammar would bind it differently without them.
std::string operand(const Tree& tree, const std::string& sign) {
  const bool parentheses = tree.rule == "x" || (sign == "*" && tree.rule == "*");
  return parentheses ? "(" + to_string(tree) + ")" : to_string(tree);
}

}  // namespace

Tree parse_tree(std::string_view text) {
  Tree tree = Parser(text).whole();
  check_rules(tree);
  return tree;
}

std::string to_string(const Tree& tree) {
  if (tree.is_number()) return std::to_string(tree.number);
  const bool run = tree.rule == "x" || tree.rule == "*";
  std::string inner;
  for (const Tree& arg : tree.args) {
    if (!inner.empty()) inner += run ? " " + tree.rule + " " : ",";
    inner += run ? operand(arg, tree.rule) : to_string(arg);
  }
  return run || tree.rule == "," ? inner : tree.rule + "(" + inner + ")";
}

}  // namespace xfm::gen
