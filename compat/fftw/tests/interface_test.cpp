// The interfaces and their edges: which plans there are, what they compute, and that they keep to their
// promises.
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <numbers>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "compat/fftw/tests/rival.h"

namespace {

constexpr double kTolerance = sizeof(Real) == 4 ? 2e-6 : 4e-15;

std::vector<Real> numbers(std::size_t count, unsigned seed = 1) {
  std::mt19937 random(seed);
  std::uniform_real_distribution<Real> noise(-1, 1);
  std::vector<Real> result(count);
  for (Real& x : result) x = noise(random);
  return result;
}

X(complex) * complex(std::vector<Real>& array) { return reinterpret_cast<X(complex)*>(array.data()); }

void expect_near(const std::vector<Real>& a, const std::vector<Real>& b) {
  ASSERT_EQ(a.size(), b.size());
  double size = 0;
  for (const Real x : a) size = std::max(size, std::abs(double{x}));
  for (std::size_t i = 0; i < a.size(); ++i) ASSERT_NEAR(a[i], b[i], kTolerance * size) << "element " << i;
}

bool on_xfm(X(plan) plan) {
  char* const text = X(sprint_plan)(plan);
  const std::string copy(text);
  std::free(text);
  return copy.starts_with("(xfm");
}

/// Makes a plan in both libraries, runs it on the same numbers, and compares.
template <class Plan>
void expect_same(std::size_t reals, bool xfm, Plan plan) {
  auto in = numbers(reals), ours = numbers(reals, 2), theirs = ours;
  const auto our_plan = plan(true, in, ours);
  ASSERT_NE(our_plan, nullptr);
  EXPECT_EQ(on_xfm(our_plan), xfm);
  X(execute)(our_plan);
  X(destroy_plan)(our_plan);
  in = numbers(reals);
  const auto their_plan = plan(false, in, theirs);
  ASSERT_NE(their_plan, nullptr);
  RIVAL(execute)(their_plan);
  RIVAL(destroy_plan)(their_plan);
  expect_near(theirs, ours);
}

#define EITHER(name) (ours ? X(name) : RIVAL(name))
using Array = std::vector<Real>;
constexpr unsigned kFlags = FFTW_ESTIMATE | FFTW_UNALIGNED;

TEST(Basic, ComplexOfOneToThreeDimensions) {
  for (const int sign : {FFTW_FORWARD, FFTW_BACKWARD}) {
    expect_same(128, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft_1d)(64, complex(in), complex(out), sign, kFlags);
    });
    expect_same(200, false, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft_1d)(100, complex(in), complex(out), sign, kFlags);
    });
    expect_same(2 * 5 * 8, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft_2d)(5, 8, complex(in), complex(out), sign, kFlags);
    });
    expect_same(2 * 3 * 4 * 6, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft_3d)(3, 4, 6, complex(in), complex(out), sign, kFlags);
    });
    const int n[] = {2, 3, 4, 5};  // of rank four, which is FFTW's
    expect_same(240, false, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft)(4, n, complex(in), complex(out), sign, kFlags);
    });
  }
}

TEST(Basic, RealOfOneToThreeDimensions) {
  for (const bool in_place : {false, true}) {
    const auto target = [&](Array& in, Array& out) -> Array& { return in_place ? out : in; };
    expect_same(64, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft_r2c_1d)(15, target(in, out).data(), complex(out), kFlags);
    });
    expect_same(64, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft_c2r_1d)(16, complex(target(in, out)), out.data(), kFlags);
    });
    expect_same(6 * 12, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft_r2c_2d)(6, 10, target(in, out).data(), complex(out), kFlags);
    });
    expect_same(6 * 12, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft_c2r_2d)(6, 10, complex(target(in, out)), out.data(), kFlags);
    });
    expect_same(3 * 4 * 6, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft_r2c_3d)(3, 4, 5, target(in, out).data(), complex(out), kFlags);
    });
    expect_same(3 * 4 * 6, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_dft_c2r_3d)(3, 4, 5, complex(target(in, out)), out.data(), kFlags);
    });
  }
}

TEST(Basic, EveryKindOfRealToReal) {
  for (int k = FFTW_R2HC; k <= FFTW_RODFT11; ++k) {
    const auto kind = static_cast<X(r2r_kind)>(k);
    const bool xfm = k <= FFTW_DHT || kind == FFTW_REDFT11 || kind == FFTW_RODFT11;
    expect_same(32, xfm, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_r2r_1d)(32, in.data(), out.data(), kind, kFlags);
    });
    expect_same(2048, kind == FFTW_REDFT11 || kind == FFTW_RODFT11, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_r2r_1d)(2048, in.data(), out.data(), kind, kFlags);
    });
    expect_same(7 * 9, k <= FFTW_DHT, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_r2r_2d)(7, 9, in.data(), out.data(), kind, FFTW_DHT, kFlags);
    });
    expect_same(3 * 4 * 5, k <= FFTW_DHT, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_r2r_3d)(3, 4, 5, in.data(), out.data(), FFTW_R2HC, kind, FFTW_HC2R, kFlags);
    });
  }
}

TEST(Advanced, ManyWithAndWithoutEmbedding) {
  const int n[] = {6, 10}, wider[] = {7, 12};
  for (const int* embed : {static_cast<const int*>(nullptr), static_cast<const int*>(wider)}) {
    expect_same(4000, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_many_dft)(2, n, 9, complex(in), embed, 1, 100, complex(out), embed, 2, 200,
                                   FFTW_FORWARD, kFlags);
    });
    expect_same(2000, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_many_dft_r2c)(2, n, 9, in.data(), embed, 1, 100, complex(out), embed, 1, 100,
                                       kFlags);
    });
    expect_same(2000, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_many_dft_c2r)(2, n, 9, complex(in), embed, 1, 100, out.data(), embed, 1, 100,
                                       kFlags);
    });
    const X(r2r_kind) kinds[] = {FFTW_R2HC, FFTW_DHT};
    expect_same(2000, true, [&](bool ours, Array& in, Array& out) {
      return EITHER(plan_many_r2r)(2, n, 9, in.data(), embed, 9, 1, out.data(), embed, 1, 100, kinds, kFlags);
    });
  }
}

TEST(Guru, BothWidthsOfNumbers) {
  const X(iodim) narrow = {12, 1, 3}, narrow_loop = {5, 12, 36};
  const X(iodim64) wide = {12, 1, 3}, wide_loop = {5, 12, 36};
  expect_same(400, true, [&](bool ours, Array& in, Array& out) {
    return EITHER(plan_guru_dft)(1, &narrow, 1, &narrow_loop, complex(in), complex(out), FFTW_FORWARD,
                                 kFlags);
  });
  expect_same(400, true, [&](bool ours, Array& in, Array& out) {
    return EITHER(plan_guru64_dft)(1, &wide, 1, &wide_loop, complex(in), complex(out), FFTW_FORWARD, kFlags);
  });
  expect_same(400, true, [&](bool ours, Array& in, Array& out) {
    return EITHER(plan_guru_dft_r2c)(1, &narrow, 1, &narrow_loop, in.data(), complex(out), kFlags);
  });
  expect_same(400, true, [&](bool ours, Array& in, Array& out) {
    return EITHER(plan_guru_dft_c2r)(1, &narrow, 1, &narrow_loop, complex(in), out.data(), kFlags);
  });
  const X(r2r_kind) kind = FFTW_HC2R;
  expect_same(400, true, [&](bool ours, Array& in, Array& out) {
    return EITHER(plan_guru_r2r)(1, &narrow, 1, &narrow_loop, in.data(), out.data(), &kind, kFlags);
  });
}

TEST(Guru, SplitArraysAreHandedOn) {
  const X(iodim) dim = {8, 1, 1};
  expect_same(16, false, [&](bool ours, Array& in, Array& out) {
    return EITHER(plan_guru_split_dft)(1, &dim, 0, nullptr, in.data(), in.data() + 8, out.data(),
                                       out.data() + 8, kFlags);
  });
  expect_same(16, false, [&](bool ours, Array& in, Array& out) {
    return EITHER(plan_guru_split_dft_r2c)(1, &dim, 0, nullptr, in.data(), out.data(), out.data() + 8,
                                           kFlags);
  });
  expect_same(16, false, [&](bool ours, Array& in, Array& out) {
    return EITHER(plan_guru_split_dft_c2r)(1, &dim, 0, nullptr, in.data(), in.data() + 8, out.data(), kFlags);
  });
  auto in = numbers(16), out = numbers(16), other = numbers(16);
  const auto plan = X(plan_guru_split_dft)(1, &dim, 0, nullptr, in.data(), in.data() + 8, out.data(),
                                           out.data() + 8, kFlags);
  X(execute)(plan);
  X(execute_split_dft)(plan, in.data(), in.data() + 8, other.data(), other.data() + 8);
  X(destroy_plan)(plan);
  EXPECT_EQ(out, other);
}

/// 0 or 1: whether there is a plan.
template <class Plan>
void expect_same_answer(const char* what, Plan plan) {
  const auto theirs = plan(false), ours = plan(true);
  EXPECT_EQ(theirs != nullptr, ours != nullptr) << what;
  if (theirs != nullptr) RIVAL(destroy_plan)(theirs);
  if (ours != nullptr) X(destroy_plan)(ours);
}

TEST(Edges, LengthsAndRanksWithoutAPlan) {
  auto in = numbers(1000), out = numbers(1000);
  for (const int n : {-8, -1, 0, 1, 2, 64, 65}) {
    const std::string what = "n = " + std::to_string(n);
    expect_same_answer(what.c_str(), [&](bool ours) {
      return EITHER(plan_dft_1d)(n, complex(in), complex(out), FFTW_FORWARD, FFTW_ESTIMATE);
    });
    expect_same_answer(what.c_str(), [&](bool ours) {
      return EITHER(plan_dft_r2c_1d)(n, in.data(), complex(out), FFTW_ESTIMATE);
    });
    expect_same_answer(what.c_str(), [&](bool ours) {
      return EITHER(plan_dft_c2r_1d)(n, complex(in), out.data(), FFTW_ESTIMATE);
    });
    for (int kind = FFTW_R2HC; kind <= FFTW_RODFT11; ++kind)
      expect_same_answer(what.c_str(), [&](bool ours) {
        return EITHER(plan_r2r_1d)(n, in.data(), out.data(), static_cast<X(r2r_kind)>(kind), FFTW_ESTIMATE);
      });
    for (const int count : {-1, 0, 1, 2})
      expect_same_answer((what + ", count " + std::to_string(count)).c_str(), [&](bool ours) {
        return EITHER(plan_many_dft)(1, &n, count, complex(in), nullptr, 1, n, complex(out), nullptr, 1, n,
                                     FFTW_FORWARD, FFTW_ESTIMATE);
      });
  }
  const int n[] = {4, 4};
  for (const int rank : {-1, 0, 1, 2})
    expect_same_answer(("rank " + std::to_string(rank)).c_str(), [&](bool ours) {
      return EITHER(plan_dft)(rank, n, complex(in), complex(out), FFTW_FORWARD, FFTW_ESTIMATE);
    });
  const X(iodim) dim = {8, 1, 1};
  for (const int count : {-1, 0, 1, 3}) {
    const X(iodim) loop = {count, 8, 8};
    expect_same_answer(("loop of " + std::to_string(count)).c_str(), [&](bool ours) {
      return EITHER(plan_guru_dft)(1, &dim, 1, &loop, complex(in), complex(out), FFTW_FORWARD, FFTW_ESTIMATE);
    });
    expect_same_answer("rank 0", [&](bool ours) {
      return EITHER(plan_guru_dft)(0, &dim, 1, &loop, complex(in), complex(out), FFTW_FORWARD, FFTW_ESTIMATE);
    });
  }
  expect_same_answer("c2r that preserves", [&](bool ours) {
    return EITHER(plan_dft_c2r_2d)(4, 4, complex(in), out.data(), FFTW_ESTIMATE | FFTW_PRESERVE_INPUT);
  });
}

TEST(Edges, ZeroTransformsWriteNothing) {
  const int n = 8;
  auto in = numbers(16), out = numbers(16);
  const auto before = out;
  const auto plan = X(plan_many_dft)(1, &n, 0, complex(in), nullptr, 1, 8, complex(out), nullptr, 1, 8,
                                     FFTW_FORWARD, FFTW_ESTIMATE);
  ASSERT_NE(plan, nullptr);
  X(execute)(plan);
  X(destroy_plan)(plan);
  EXPECT_EQ(out, before);
}

TEST(Edges, NullArraysWhileEstimating) {
  auto in = numbers(32), out = numbers(32), theirs = out;
  const auto plan = X(plan_dft_1d)(16, nullptr, nullptr, FFTW_FORWARD, kFlags);
  const auto their_plan = RIVAL(plan_dft_1d)(16, nullptr, nullptr, FFTW_FORWARD, kFlags);
  ASSERT_NE(plan, nullptr);
  ASSERT_NE(their_plan, nullptr);
  theirs = out = in;
  X(execute_dft)(plan, complex(out), complex(out));
  RIVAL(execute_dft)(their_plan, complex(theirs), complex(theirs));
  expect_near(theirs, out);
  X(destroy_plan)(plan);
  RIVAL(destroy_plan)(their_plan);
  X(destroy_plan)(nullptr);
}

TEST(Edges, AnyAlignmentByNewArrays) {
  auto in = numbers(200), out = numbers(200), expected = out;
  const auto plan = X(plan_dft_1d)(48, complex(in), complex(out), FFTW_FORWARD, FFTW_ESTIMATE);
  X(execute)(plan);
  for (std::size_t offset = 0; offset < 8; ++offset) {
    Array from(200), to(200);
    std::copy(in.begin(), in.begin() + 96, from.begin() + static_cast<std::ptrdiff_t>(offset));
    X(execute_dft)
    (plan, reinterpret_cast<X(complex)*>(from.data() + offset),
     reinterpret_cast<X(complex)*>(to.data() + offset));
    EXPECT_EQ(std::memcmp(to.data() + offset, out.data(), 96 * sizeof(Real)), 0);
  }
  X(destroy_plan)(plan);
}

/// FFTW's promise: one plan, any number of threads, each with its own arrays.
template <class Plan, class Execute>
void expect_threads_agree(std::size_t reals, Plan make, Execute execute) {
  const auto in = numbers(reals);
  auto scratch = in, expected = Array(reals);
  const auto plan = make(scratch, expected);
  ASSERT_TRUE(on_xfm(plan));
  scratch = in;
  execute(plan, scratch, expected);
  std::vector<std::thread> threads;
  std::atomic<int> wrong = 0;
  for (int t = 0; t < 4; ++t)
    threads.emplace_back([&] {
      Array from(reals), to(reals);
      for (int i = 0; i < 300; ++i) {
        from = in;
        execute(plan, from, to);
        wrong += to != expected;
      }
    });
  for (auto& thread : threads) thread.join();
  X(destroy_plan)(plan);
  EXPECT_EQ(wrong, 0);
}

TEST(Threads, ExecuteAtOnce) {
  const auto r2r = [](X(plan) plan, Array& in, Array& out) { X(execute_r2r)(plan, in.data(), out.data()); };
  for (const auto kind : {FFTW_R2HC, FFTW_HC2R, FFTW_DHT})
    expect_threads_agree(
        60,
        [&](Array& in, Array& out) { return X(plan_r2r_1d)(60, in.data(), out.data(), kind, FFTW_ESTIMATE); },
        r2r);
  for (const auto kind : {FFTW_REDFT11, FFTW_RODFT11})
    expect_threads_agree(
        1024,
        [&](Array& in, Array& out) {
          return X(plan_r2r_1d)(1024, in.data(), out.data(), kind, FFTW_ESTIMATE);
        },
        r2r);
  expect_threads_agree(
      32 * 34,
      [&](Array& in, Array& out) {
        return X(plan_dft_c2r_2d)(32, 32, complex(in), out.data(), FFTW_ESTIMATE);
      },
      [](X(plan) plan, Array& in, Array& out) {
        X(execute_dft_c2r)
        (plan, complex(in), out.data());
      });
}

TEST(Threads, EntryPoints) {
  EXPECT_NE(X(init_threads)(), 0);
  X(make_planner_thread_safe)();
  X(plan_with_nthreads)(2);
  EXPECT_EQ(X(planner_nthreads)(), 2);
  std::vector<std::thread> planners;
  std::atomic<int> plans = 0;
  for (int t = 0; t < 4; ++t)
    planners.emplace_back([&] {
      Array in(600), out(600);
      for (const int n : {8, 100, 16, 200, 300}) {
        const auto plan = X(plan_dft_1d)(n, complex(in), complex(out), FFTW_FORWARD, FFTW_ESTIMATE);
        plans += plan != nullptr;
        X(execute)(plan);
        X(destroy_plan)(plan);
      }
    });
  for (auto& planner : planners) planner.join();
  EXPECT_EQ(plans, 20);
  X(plan_with_nthreads)(1);
  X(cleanup_threads)();
}

TEST(Wisdom, IsThatOfFftw) {
  Array in(400), out(400);
  X(destroy_plan)(X(plan_dft_1d)(200, complex(in), complex(out), FFTW_FORWARD, FFTW_MEASURE));
  char* const wisdom = X(export_wisdom_to_string)();
  ASSERT_NE(wisdom, nullptr);
  EXPECT_NE(std::strstr(wisdom, "wisdom"), nullptr);
  X(forget_wisdom)();
  const auto wise = [&] {
    const auto plan =
        X(plan_dft_1d)(200, complex(in), complex(out), FFTW_FORWARD, FFTW_MEASURE | FFTW_WISDOM_ONLY);
    const bool is = plan != nullptr;
    X(destroy_plan)(plan);
    return is;
  };
  EXPECT_FALSE(wise());
  EXPECT_EQ(X(import_wisdom_from_string)(wisdom), 1);
  EXPECT_TRUE(wise());
  std::free(wisdom);
  EXPECT_EQ(X(import_wisdom_from_string)("nonsense"), 0);
  X(cleanup)();
}

TEST(Other, MemoryPrintingAndCost) {
  Real* const memory = X(alloc_real)(100);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(memory) % 64, 0u);
  EXPECT_EQ(X(alignment_of)(memory), RIVAL(alignment_of)(memory));
  EXPECT_EQ(X(alignment_of)(memory + 1), RIVAL(alignment_of)(memory + 1));
  X(free)(memory);
  X(free)(X(alloc_complex)(100));
  EXPECT_EQ(X(malloc)(SIZE_MAX), nullptr);
  EXPECT_EQ(std::string(X(version)).rfind("fftw-3.", 0), 0u);
  EXPECT_LE(std::strlen(X(version)),
            std::strlen(static_cast<const char*>(rival::symbol(RIVAL_STRING(X(version))))));
  for (const int n : {16, 100}) {
    Array in(200), out(200);
    const auto plan = X(plan_dft_1d)(n, complex(in), complex(out), FFTW_FORWARD, FFTW_ESTIMATE);
    double add = 0, mul = 0, fma = 0;
    X(flops)(plan, &add, &mul, &fma);
    EXPECT_GT(add + mul + 2 * fma, n);  // FFTW counts operations on registers
    EXPECT_LT(add + mul + 2 * fma, 10 * n * std::log2(n));
    EXPECT_GT(X(estimate_cost)(plan), 0);
    EXPECT_GE(X(cost)(plan), 0);
    char* const text = X(sprint_plan)(plan);
    EXPECT_EQ(text[0], '(');
    std::free(text);
    X(destroy_plan)(plan);
  }
}

}  // namespace
