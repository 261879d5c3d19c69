#include "gen/algorithms/rules.h"

#include <algorithm>
#include <bit>
#include <functional>
#include <numeric>
#include <stdexcept>

#include "gen/math/number.h"

namespace xfm::gen {
namespace {

bool is_positive(const Tree& tree) { return tree.args.empty() && tree.number > 0; }
int number(const Tree& tree) { return tree.number; }
bool all_numbers(const Tree& tree) {
  return std::all_of(tree.args.begin(), tree.args.end(), [](const Tree& arg) { return arg.is_number(); });
}
bool one_number(const Tree& tree) { return tree.args.size() == 1 && all_numbers(tree); }
int first_number(const Tree& tree) { return tree.args[0].number; }

int product(const Tree& tree) {
  constexpr long long too_long = 1 << 20;
  long long product = 1;
  for (const Tree& arg : tree.args) product = std::min(product * length_of(arg), too_long);
  return static_cast<int>(product);
}

bool stages(const Tree& tree) { return tree.args.size() >= 2; }
bool coprime_stages(const Tree& tree) {
  for (int a = 0; a < tree.args.size(); ++a) {
    for (int b = 0; b < a; ++b) {
      if (std::gcd(length_of(tree.args[a]), length_of(tree.args[b])) != 1) return false;
    }
  }
  return stages(tree);
}
bool two_twos(const Tree& tree) {
  return tree.args.size() == 2 && tree.args[0].number == 2 && tree.args[1].number == 2;
}
bool power_of_two(const Tree& tree) {
  return one_number(tree) && first_number(tree) >= 4 &&
         std::has_single_bit(static_cast<unsigned>(first_number(tree)));
}
bool odd_block(const Tree& tree) {
  if (tree.args.empty() || !all_numbers(tree) || first_number(tree) % 2 == 0) return false;
  const auto bins = tabulated(tree.args.size() - 1, [&](int k) { return tree.args[k + 1].number; });
  const auto all = tabulated(first_number(tree) / 2 + 1, std::identity());
  return bins.empty() || std::is_permutation(bins.begin(), bins.end(), all.begin(), all.end());
}
bool halves(const Tree& tree) {
  return tree.args.size() == 2 && length_of(tree.args[0]) == length_of(tree.args[1]);
}
int twice_half(const Tree& tree) { return 2 * length_of(tree.args[0]); }
bool one_tree(const Tree& tree) { return tree.args.size() == 1; }
int one_more(const Tree& tree) { return length_of(tree.args.back()) + 1; }
int rader_length(const Tree& tree) { return length_of(*rader_arguments(tree).there) + 1; }
bool rader_shape(const Tree& tree) {
  if (tree.args.empty() || tree.args.size() > 4) return false;
  const RaderArguments args = rader_arguments(tree);
  if (!is_prime(rader_length(tree)) || (args.root && !tree.args[0].is_number())) return false;
  const int half = length_of(*args.there) / 2;
  return args.back == nullptr || (length_of(*args.back) == half && length_of(*args.skew) == half);
}
// The longest odd N with 2N-1 <= L, the length of the convolution.
int chirp_length(const Tree& tree) { return (length_of(tree.args[0]) - 1) / 2 | 1; }

// The first argument that is a tree, and not a number with another meaning.
int all_trees(const Tree&) { return 0; }
int no_trees(const Tree& tree) { return tree.args.size(); }
int behind_root(const Tree& tree) { return rader_arguments(tree).root ? 1 : 0; }

using T = Transform;
using L = LineTransform;

// clang-format off
const Rule table[] = {
  {"",     "a number above 0", is_positive, number, no_trees, false, &T::block, false, {}, {},
   "the block of that length", "Winograd 1978"},
  {"D",    "(n[, order of the bins]), n odd", odd_block, first_number, no_trees, false, &T::block, false, {}, {},
   "X[k], X[n-k] = sum of cos (x[j] + x[n-j]) -+ i sum of sin (x[j] - x[n-j])", "Singleton 1969"},
  {",",    "2,2", two_twos, product, no_trees, false, &T::block, false, {}, {},
   "two stages of two", "Cooley and Tukey 1965"},
  {"PFA",  "(a,b,..) coprime", coprime_stages, product, all_trees, false, &T::two_stages, false, {}, &L::two_stages,
   "columns of length a, rows of length b, no twiddles", "Good 1958, Thomas 1963"},
  {"PFA*", "(a,b) coprime", coprime_stages, product, all_trees, false, &T::two_stages, false, {}, {},
   "the same, with the last butterfly of a split-radix a after the rows", "Good 1958, Thomas 1963"},
  {"x",    "a x b coprime", coprime_stages, product, all_trees, false, &T::two_stages, true, &T::skew_good_thomas, {},
   "columns of length a, rows of length b, no twiddles", "Good 1958, Thomas 1963"},
  {"CT",   "(a,b,..)", stages, product, all_trees, false, &T::two_stages, true, {}, &L::two_stages,
   "columns of length a, twiddles, rows of length b", "Cooley and Tukey 1965"},
  {"*",    "a * b", stages, product, all_trees, false, &T::two_stages, true, &T::skew_cooley_tukey, {},
   "columns of length a, twiddles, rows of length b", "Cooley and Tukey 1965"},
  {"SR",   "(2^k)", power_of_two, first_number, no_trees, false, &T::block, false, {}, {},
   "even outputs by half the length, odd ones by two quarters", "Yavne 1968; Duhamel and Hollmann 1984"},
  {"F",    "(even bins, odd bins)", halves, twice_half, all_trees, false, &T::fork, true, {}, {},
   "sums to the even bins, differences to the odd ones", "Gentleman and Sande 1966"},
  {"R",    "([root,] forward[, inverse[, skew]])", rader_shape, rader_length, behind_root, false, &T::rader_by_halves, true, {}, &L::rader,
   "a prime length as a cyclic convolution of one less", "Rader 1968"},
  {"RS",   "(tree)", one_tree, one_more, all_trees, false, &T::rader_transposed, true, {}, {},
   "the same on real sequences, the inverse transform being the forward one transposed", "Rader 1968"},
  {"B",    "(forward, inverse)", halves, chirp_length, all_trees, true, {}, false, {}, &L::bluestein,
   "an odd length as a convolution with a chirp, by two transforms of a longer one", "Bluestein 1970"},
};
// clang-format on

}  // namespace

std::span<const Rule> rules() { return table; }

const Rule& rule_of(const Tree& tree) {
  const auto found = std::find_if(std::begin(table), std::end(table),
                                  [&](const Rule& rule) { return rule.name == tree.rule; });
  if (found == std::end(table)) throw std::invalid_argument("no rule " + tree.rule);
  if (!found->applicable(tree)) {
    const bool in_front = found->children.starts_with('(');  // not a sign between the arguments
    throw std::invalid_argument(to_string(tree) + " is not " + std::string(in_front ? found->name : "") +
                                std::string(found->children));
  }
  return *found;
}

int length_of(const Tree& tree) { return rule_of(tree).length(tree); }

void check_length(const Tree& tree, int length) {
  const int own = length_of(tree);
  if (own != length && !(rule_of(tree).shorter && length < own && length % 2 == 1))
    throw std::invalid_argument("tree " + to_string(tree) + " cannot transform length " +
                                std::to_string(length));
}

Tree rest_of(const Tree& tree) {
  if (tree.args.size() == 2) return tree.args.back();
  return {tree.rule, 0, {tree.args.begin() + 1, tree.args.end()}};
}

RaderArguments rader_arguments(const Tree& tree) {
  const auto& args = tree.args;
  if (args.size() == 1) return {{}, &args[0], nullptr, nullptr};
  const bool back = args.size() > 2;
  return {args[0].number, &args[1], back ? &args[2] : nullptr, back ? &args.back() : nullptr};
}

Tree spelled_out(const Tree& tree, const std::function<std::string(int)>& text_of) {
  if (tree.is_number()) {
    const std::string text = text_of(tree.number);
    return text.empty() ? tree : spelled_out(parse_tree(text), text_of);
  }
  Tree plan = tree;
  for (int a = rule_of(tree).first_tree(tree); a < plan.args.size(); ++a)
    plan.args[a] = spelled_out(plan.args[a], text_of);
  return plan;
}

bool uses_rule(const Tree& tree, std::string_view rule) {
  return tree.rule == rule || std::any_of(tree.args.begin(), tree.args.end(),
                                          [&](const Tree& arg) { return uses_rule(arg, rule); });
}

}  // namespace xfm::gen
