// Random problems of FFTW's guru interface.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "compat/fftw/problem.h"
#include "compat/fftw/tests/rival.h"

inline const char* name_of(Kind kind) {
  constexpr const char* names[] = {"c2c", "r2c", "c2r", "r2r"};
  return names[static_cast<int>(kind)];
}

enum class Whose { fftw, ours };

struct RandomProblem {
  Kind kind;
  int sign;
  std::vector<X(iodim64)> dims, loops;
  std::vector<X(r2r_kind)> kinds;
  unsigned flags;
  bool in_place;
  std::size_t in_reals, out_reals;  ///< of the arrays, with a margin
  std::ptrdiff_t offset;            ///< where they start: any real may be the first

  X(plan) plan(Whose whose, Real* in, Real* out) const;
  void execute_new(Whose whose, X(plan) plan, Real* in, Real* out) const;
  bool may_destroy() const;
  std::string text() const;
};

/// Mostly lengths that xfm serves; of rank 1 to 3, with up to two loops, in rows or in any other order of
/// strides, with gaps, in place or not.
RandomProblem random_problem(Kind kind, std::mt19937& random);
