// Random problems, from the guru interface: the results of FFTW, and every element that FFTW leaves alone.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "compat/fftw/tests/problems.h"

namespace {

constexpr int kProblems = 1200;

/// An array of FFTW's and one of ours with the same numbers, with a margin that nobody may write.
struct Twins {
  std::vector<Real> theirs, ours;

  explicit Twins(std::size_t size, std::mt19937& random) : theirs(size) {
    std::uniform_real_distribution<Real> noise(-1, 1);
    std::generate(theirs.begin(), theirs.end(), [&] { return noise(random); });
    ours = theirs;
  }
};

/// How far the results are apart, beside their size.
double difference(const std::vector<Real>& a, const std::vector<Real>& b) {
  double error = 0, size = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    error = std::max(error, std::abs(double{a[i]} - double{b[i]}));
    size = std::max(size, std::abs(double{a[i]}));
  }
  return size == 0 ? error : error / size;
}

constexpr double kTolerance = sizeof(Real) == 4 ? 2e-6 : 4e-15;

bool runs_on_xfm(X(plan) plan) {
  char* const text = X(sprint_plan)(plan);
  const bool xfm = std::string(text).starts_with("(xfm");
  std::free(text);
  return xfm;
}

/// 1 if the plan ran on xfm.
int compare(const RandomProblem& problem, std::mt19937& random) {
  SCOPED_TRACE(problem.text());
  Twins in(problem.in_reals, random), out(problem.in_place ? 0 : problem.out_reals, random);
  const std::vector<Real> input = in.ours;
  const auto start = [&](std::vector<Real>& array) { return array.data() + problem.offset; };
  const auto result = [&](Twins& twins) -> Twins& { return problem.in_place ? in : twins; };

  const auto theirs = problem.plan(Whose::fftw, start(in.theirs), start(result(out).theirs));
  const auto ours = problem.plan(Whose::ours, start(in.ours), start(result(out).ours));
  EXPECT_EQ(theirs == nullptr, ours == nullptr);
  if (theirs == nullptr || ours == nullptr) return 0;

  RIVAL(execute)(theirs);
  X(execute)(ours);
  EXPECT_LE(difference(result(out).theirs, result(out).ours), kTolerance);
  if (!problem.in_place && !problem.may_destroy()) {
    EXPECT_EQ(in.ours, input);
  }

  // The same plan for other arrays.
  Twins other_in(problem.in_reals, random), other_out(problem.in_place ? 0 : problem.out_reals, random);
  const auto other = [&](Twins& twins) -> Twins& { return problem.in_place ? other_in : twins; };
  problem.execute_new(Whose::fftw, theirs, start(other_in.theirs), start(other(other_out).theirs));
  problem.execute_new(Whose::ours, ours, start(other_in.ours), start(other(other_out).ours));
  EXPECT_LE(difference(other(other_out).theirs, other(other_out).ours), kTolerance);

  const int xfm = runs_on_xfm(ours) ? 1 : 0;
  RIVAL(destroy_plan)(theirs);
  X(destroy_plan)(ours);
  return xfm;
}

class RandomProblems : public testing::TestWithParam<Kind> {};

TEST_P(RandomProblems, HaveTheResultsOfFftw) {
  std::mt19937 random(2024u + static_cast<unsigned>(GetParam()));
  int on_xfm = 0;
  for (int i = 0; i < kProblems && !HasFailure(); ++i)
    on_xfm += compare(random_problem(GetParam(), random), random);
  RecordProperty("on_xfm", on_xfm);
  EXPECT_GT(on_xfm, kProblems / 2) << "too few ran on xfm to say anything";
  EXPECT_LT(on_xfm, kProblems) << "none was handed on";
}

INSTANTIATE_TEST_SUITE_P(Kinds, RandomProblems, testing::Values(Kind::c2c, Kind::r2c, Kind::c2r, Kind::r2r),
                         [](const auto& of) { return std::string(name_of(of.param)); });

}  // namespace
