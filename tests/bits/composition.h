// Plain binary32 transforms of composite lengths: stage after stage, every twiddle multiplied, every
// operation rounded.
#pragma once

#include <string>

#include "tests/bits/number.h"

namespace xfm::test {

/// A breakdown: a block of a length, or columns and rows with or without twiddles between them.
struct Plan {
  enum class Rule { block, cooley_tukey, good_thomas };

  Plan(int n) : rule(Rule::block), length(n) {}  // NOLINT(google-explicit-constructor): a number is a block
  Plan(Rule joined, Plan a, Plan b)
      : rule(joined), length(a.length * b.length), stages{std::move(a), std::move(b)} {}

  Rule rule;
  int length;
  std::vector<Plan> stages{};
};

inline Plan ct(Plan a, Plan b) { return {Plan::Rule::cooley_tukey, std::move(a), std::move(b)}; }
inline Plan pfa(Plan a, Plan b) { return {Plan::Rule::good_thomas, std::move(a), std::move(b)}; }

Points<float> compose(const Plan& plan, const Points<float>& x);

}  // namespace xfm::test
