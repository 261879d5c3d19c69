#include "gen/tree.h"

#include <cctype>
#include <stdexcept>

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
  // "2,2" at the outermost level is a rule without a name.
  Tree stages() {
    Tree first = stage();
    if (peek() != ',') return first;
    return {",", 0, list(std::move(first))};
  }

  std::vector<Tree> list(Tree first) {
    std::vector<Tree> items{std::move(first)};
    while (peek() == ',') {
      ++at_;
      items.push_back(stage());
    }
    return items;
  }

  Tree stage() {
    if (std::isdigit(static_cast<unsigned char>(peek()))) return {"", number(), {}};
    std::string rule;
    while (std::isalpha(static_cast<unsigned char>(peek())) || peek() == '*') rule += text_[at_++];
    if (rule.empty()) fail("a number or a rule is expected");
    if (peek() != '(') fail("'(' is expected");
    ++at_;
    std::vector<Tree> args = list(stage());
    if (peek() != ')') fail("')' is expected");
    ++at_;
    return {std::move(rule), 0, std::move(args)};
  }

  int number() {
    constexpr int longest = 1000000;
    int value = 0;
    peek();  // spaces separate numbers: they are passed over in front, never inside
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
    throw std::invalid_argument("tree \"" + std::string(text_) + "\", place " + std::to_string(at_) + ": " +
                                what);
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

}  // namespace

Tree parse_tree(std::string_view text) { return Parser(text).whole(); }

std::string to_string(const Tree& tree) {
  if (tree.is_number()) return std::to_string(tree.number);
  std::string inner;
  for (const Tree& arg : tree.args) inner += (inner.empty() ? "" : ",") + to_string(arg);
  return tree.rule == "," ? inner : tree.rule + "(" + inner + ")";
}

}  // namespace xfm::gen
