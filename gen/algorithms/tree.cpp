#include "gen/algorithms/tree.h"

#include <cctype>
#include <stdexcept>

#include "gen/algorithms/rules.h"

namespace xfm::gen {
namespace {

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  Tree whole() {
    Tree tree = stages();
    if (peek() != '\0') fail("unexpected text");
    return tree;
  }

 private:
  // "2,2" at the outermost level is a rule of its own.
  Tree stages() {
    Tree first = product();
    if (peek() != ',') return first;
    return {",", 0, list(std::move(first))};
  }

  Tree product() {
    return run('x', [this] { return power(); });
  }
  Tree power() {
    return run('*', [this] { return stage(); });
  }

  // One operand, or several with this sign between them.
  template <class Operand>
  Tree run(char sign, Operand operand) {
    Sequence<Tree> args{operand()};
    while (peek() == sign) {
      ++at_;
      args.push_back(operand());
    }
    return args.size() == 1 ? args.front() : Tree{std::string(1, sign), 0, std::move(args)};
  }

  Sequence<Tree> list(Tree first) {
    Sequence<Tree> items{std::move(first)};
    while (peek() == ',') {
      ++at_;
      items.push_back(product());
    }
    return items;
  }

  Tree stage() {
    if (std::isdigit(static_cast<unsigned char>(peek()))) return {"", number(), {}};
    if (peek() == '(') {
      ++at_;
      Tree inner = product();
      close();
      return inner;
    }
    std::string rule;
    while (std::isalpha(static_cast<unsigned char>(peek())) || peek() == '*') rule += text_[at_++];
    if (rule.empty()) fail("expected a number or a rule");
    if (peek() != '(') fail("expected '('");
    ++at_;
    Sequence<Tree> args = list(product());
    close();
    return {std::move(rule), 0, std::move(args)};
  }

  void close() {
    if (peek() != ')') fail("expected ')'");
    ++at_;
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

}  // namespace

namespace {

void check_rules(const Tree& tree) {
  rule_of(tree);
  for (const Tree& arg : tree.args) {
    if (!arg.is_number()) check_rules(arg);  // a number may be a root or a bin
  }
}

bool is_run(const Tree& tree) { return tree.rule == "x" || tree.rule == "*"; }

// A run in parentheses where the grammar would bind it differently without them.
std::string operand(const Tree& tree, const std::string& sign) {
  const bool binds = !is_run(tree) || (sign == "x" && tree.rule == "*");
  return binds ? to_string(tree) : "(" + to_string(tree) + ")";
}

}  // namespace

Tree parse_tree(std::string_view text) {
  Tree tree = Parser(text).whole();
  check_rules(tree);
  return tree;
}

std::string to_string(const Tree& tree) {
  if (tree.is_number()) return std::to_string(tree.number);
  if (is_run(tree)) {
    std::string text;
    for (const Tree& arg : tree.args)
      text += (text.empty() ? "" : " " + tree.rule + " ") + operand(arg, tree.rule);
    return text;
  }
  std::string inner;
  for (const Tree& arg : tree.args) inner += (inner.empty() ? "" : ",") + to_string(arg);
  return tree.rule == "," ? inner : tree.rule + "(" + inner + ")";
}

}  // namespace xfm::gen
