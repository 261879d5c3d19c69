// The networks of all lengths have the structure that is claimed: input stage, closed groups of inputs,
// output stage.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>

#include "gen/math/number.h"
#include "gen/math/rows.h"
#include "src/hartley/recipe/hartley.h"
#include "tests/hartley/claims.h"

namespace xfm::hartley {
namespace {

using gen::Node;
using gen::NodeId;
using gen::Op;
using Set = std::uint64_t;  // of inputs

Set one(int j) { return Set{1} << static_cast<unsigned>(j); }

class Structure {
 public:
  Structure(const gen::Network& draft, const Claim& claim)
      : draft_(draft), claim_(claim), uses_(uses(draft)), supports_(uses_.size()) {
    for (NodeId id = 0; id < uses_.size(); ++id) {
      if (uses_[id] == 0) continue;
      const Node& of = node(id);
      if (of.op == Op::load) supports_[id] = one(of.lanes[0]);
      for (const NodeId operand : operands(of)) supports_[id] |= supports_[operand];
      values_.insert(supports_[id]);
    }
  }

  // Nothing but x[j] + x[N-j] and x[j] - x[N-j] uses x[j].
  bool folds() const {
    for (NodeId id = 0; id < uses_.size(); ++id) {
      if (uses_[id] == 0) continue;
      for (const NodeId operand : operands(node(id))) {
        if (node(operand).op != Op::load) continue;
        const int j = node(operand).lanes[0];
        if (j == 0 || 2 * j == claim_.length) continue;
        if (supports_[id] != (one(j) | one(claim_.length - j))) return false;
      }
    }
    return true;
  }

  // Some values depend on m inputs each, and their sets partition the inputs: all of them, for m = N-1 all
  // but x[0], for a prime N and m dividing N-1 the same.
  bool closes(int m) const {
    const int n = claim_.length;
    const Set all = n == 64 ? ~Set{0} : one(n) - 1;
    const bool without_first = n % m != 0;
    if (m == 2 && claim_.input == Input::fold && n % 2 == 1) return covers(all & ~Set{1}, m);
    return covers(without_first ? all & ~Set{1} : all, m);
  }

  bool ends_with(Output output) const {
    const int n = claim_.length;
    switch (output) {
      case Output::conjugate:
        return every(n / 2 + n % 2, [&](int k) { return k == 0 || paired(k, n - k); });
      case Output::half:
        return every(n / 2, [&](int k) { return paired(k, k + n / 2); });
      default:
        return ends_with_radix();
    }
  }

 private:
  const Node& node(NodeId id) const { return draft_.node(id); }

  template <class Holds>
  static bool every(int count, Holds holds) {
    for (int k = 0; k < count; ++k) {
      if (!holds(k)) return false;
    }
    return true;
  }

  // An exact cover by supports of size m: the lowest input left has to be in one of them.
  bool covers(Set left, int m) const {
    if (left == 0) return true;
    const Set lowest = left & (~left + 1);
    return std::any_of(values_.begin(), values_.end(), [&](Set support) {
      const bool fits =
          (support & lowest) != 0 && (support & ~left) == 0 && __builtin_popcountll(support) == m;
      return fits && covers(left & ~support, m);
    });
  }

  // The sum and the difference of the same two values.
  bool paired(int k, int l) const {
    const Node &a = node(draft_.outputs()[k].node), &b = node(draft_.outputs()[l].node);
    const auto two = [](const Node& of) { return of.op == Op::add || of.op == Op::sub; };
    return two(a) && two(b) && a.op != b.op && std::set{a.in[0], a.in[1]} == std::set{b.in[0], b.in[1]};
  }

  // Groups of r outputs, all but one of each in pairs.
  bool ends_with_radix() const {
    const int n = claim_.length, r = claim_.radix;
    gen::Sequence<gen::Sequence<int>> groups;
    if (n % r == 0) {
      for (int k = 0; k < n / r; ++k) {
        gen::Sequence<int>& group = groups.emplace_back();
        for (int t = 0; t < r; ++t) group.push_back(k + t * (n / r));
      }
    } else {
      const int g = gen::smallest_primitive_root(n);
      for (int k = 0; k < (n - 1) / r; ++k) {
        gen::Sequence<int>& group = groups.emplace_back();
        for (int t = 0; t < r; ++t) group.push_back(gen::power_modulo(g, k + t * (n - 1) / r, n));
      }
    }
    return std::all_of(groups.begin(), groups.end(), [&](const gen::Sequence<int>& group) {
      const auto in_pair = [&](int k) {
        return std::any_of(group.begin(), group.end(), [&](int l) { return l != k && paired(k, l); });
      };
      return std::count_if(group.begin(), group.end(), in_pair) >= r - 1;
    });
  }

  const gen::Network& draft_;
  const Claim& claim_;
  gen::Sequence<int> uses_;
  gen::Sequence<Set> supports_;
  std::set<Set> values_;
};

class HartleyStructure : public testing::TestWithParam<int> {};

TEST_P(HartleyStructure, IsAsClaimed) {
  const Claim& of = gen::row_of(claims, GetParam());
  const auto network = draft(of.length);
  const Structure structure(*network, of);
  EXPECT_TRUE(of.input != Input::fold || structure.folds()) << "inputs are used outside the fold";
  for (const int m : of.groups) EXPECT_TRUE(m == 0 || structure.closes(m)) << "no closed groups of " << m;
  EXPECT_TRUE(structure.ends_with(of.output)) << "another output stage";
}

INSTANTIATE_TEST_SUITE_P(All, HartleyStructure, testing::Range(2, 65));

// The checks see a network that is not the claimed one: that of another plan.
TEST(HartleyStructure, OtherNetworksAreSeen) {
  const auto forward = draft(8);
  const Claim& claim = gen::row_of(claims, 8);
  EXPECT_FALSE(Structure(*forward, claim).folds());
  EXPECT_FALSE(Structure(*forward, claim).closes(3));
  EXPECT_FALSE(Structure(*forward, claim).ends_with(Output::half));
}

}  // namespace
}  // namespace xfm::hartley
