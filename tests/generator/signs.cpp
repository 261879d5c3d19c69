// Signs of the values of a draft, as bound networks have them.
#include <gtest/gtest.h>

#include "gen/passes/passes.h"
#include "tests/generator/drafts.h"
#include "tests/generator/small_networks.h"

namespace xfm::gen {
namespace {

// Whichever signs are negated, the outputs stay the same and no operation starts with a minus.
TEST(Signs, ChangeNoOutput) {
  for (unsigned seed = 1; seed <= 50; ++seed) {
    const auto draft = test::random_draft(seed);
    const Binding binding{{0, 1, 2, 3, 4, 5}, {0, 1, 2, 3}};
    const Sequence<bool> none(draft->nodes().size()), negated = negated_values(*draft);
    const auto plain = gen::bind(*draft, binding, none), better = gen::bind(*draft, binding, negated);
    const Sequence<double> src = {1.5, -2, 0.25, 3, -0.75, 7};
    EXPECT_EQ(test::evaluate(*plain, src, 4), test::evaluate(*better, src, 4)) << seed;
    EXPECT_LE(test::count(*better, Op::minus), test::count(*plain, Op::minus)) << seed;
    for (const Node& node : better->nodes())
      EXPECT_TRUE(node.terms.empty() || !node.terms.front().coefficient.is_negative()) << seed;
  }
}

}  // namespace
}  // namespace xfm::gen
