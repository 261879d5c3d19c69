// What a run computes, and what it touches.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <set>

#include "tests/dct4/engine.h"
#include "tests/dct4/reference.h"
#include "tests/support/attempt.h"
#include "tests/support/guarded.h"

namespace xfm::test {
namespace {

template <class T>
std::vector<T> transformed(const Owned<T>& engine, const std::vector<T>& src) {
  std::vector<T> dst(src.size(), T(77));
  EXPECT_EQ(engine.run(src.data(), dst.data()), xfmStsOk);
  return dst;
}

template <class T, class Exact>
double worst_error(const std::vector<T>& got, const std::vector<Exact>& exact) {
  double worst = 0;
  for (std::size_t i = 0; i < got.size(); ++i)
    worst = std::max(worst, std::abs(static_cast<double>(static_cast<Exact>(got[i]) - exact[i])));
  return worst;
}

template <class T>
bool same_bits(const std::vector<T>& a, const std::vector<T>& b) {
  return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(T)) == 0;
}

constexpr int longest_everyday = 19;

XFM_FOR_BOTH_PRECISIONS(Transform);

TYPED_TEST(Transform, DirectSum) {
  for (int k = 1; k <= 12; ++k) {
    const Owned<TypeParam> engine(1 << k);
    const auto src = noise<TypeParam>(std::size_t{1} << k, static_cast<unsigned>(k));
    const auto exact = direct_dct4({src.begin(), src.end()});
    EXPECT_LE(worst_error(transformed(engine, src), exact),
              error_bound(Engine<TypeParam>::bound_4096, 1 << k))
        << k;
  }
}

/// Every column of the matrix, so that no entry can hide behind another.
TYPED_TEST(Transform, EveryImpulse) {
  for (int k = 1; k <= 11; ++k) {
    const std::int64_t n = 1 << k;
    const Owned<TypeParam> engine(1 << k);
    std::vector<double> cosines(static_cast<std::size_t>(8 * n));
    for (std::int64_t a = 0; a < 8 * n; ++a)
      cosines[static_cast<std::size_t>(a)] =
          std::cos(std::acos(-1.0) * static_cast<double>(a) / static_cast<double>(4 * n));
    const double bound = 40 * std::numeric_limits<TypeParam>::epsilon();
    std::vector<TypeParam> src(static_cast<std::size_t>(n));
    for (std::int64_t j = 0; j < n; ++j) {
      src[static_cast<std::size_t>(j)] = 1;
      const auto dst = transformed(engine, src);
      src[static_cast<std::size_t>(j)] = 0;
      for (std::int64_t i = 0; i < n; ++i)
        ASSERT_NEAR(dst[static_cast<std::size_t>(i)],
                    cosines[static_cast<std::size_t>((2 * j + 1) * (2 * i + 1) % (8 * n))], bound)
            << "N " << n << ", src " << j << ", dst " << i;
    }
  }
}

TYPED_TEST(Transform, FastReferenceAgreesWithDirectSum) {
  for (int k = 1; k <= 10; ++k) {
    const auto src = noise<TypeParam>(std::size_t{1} << k);
    const auto fast = fast_dct4({src.begin(), src.end()});
    const auto direct = direct_dct4({src.begin(), src.end()});
    EXPECT_LE(worst_error(fast, std::vector<long double>(direct.begin(), direct.end())),
              1e-16 * std::ldexp(1, k))
        << k;
    const auto one = one_output(src.data(), 1 << k, (1 << k) / 3);
    EXPECT_NEAR(static_cast<double>(one - fast[(1U << k) / 3]), 0, 1e-16 * std::ldexp(1, k)) << k;
  }
}

TYPED_TEST(Transform, FastReference) {
  for (int k = 6; k <= 20; ++k) {
    const Owned<TypeParam> engine(1 << k);
    const auto src = noise<TypeParam>(std::size_t{1} << k, static_cast<unsigned>(k));
    const auto exact = fast_dct4({src.begin(), src.end()});
    EXPECT_LE(worst_error(transformed(engine, src), exact),
              error_bound(Engine<TypeParam>::bound_4096, 1 << k))
        << k;
  }
}

template <class T>
void expect_some_outputs(int k) {
  const std::int64_t n = std::int64_t{1} << k;
  const Owned<T> engine(static_cast<std::int32_t>(n));
  const auto src = noise<T>(static_cast<std::size_t>(n));
  const auto dst = transformed(engine, src);
  for (const std::int64_t i :
       {std::int64_t{0}, std::int64_t{1}, n / 3, n / 2 - 1, n / 2, 5 * n / 7, n - 2, n - 1})
    EXPECT_NEAR(static_cast<double>(static_cast<long double>(dst[static_cast<std::size_t>(i)]) -
                                    one_output(src.data(), n, i)),
                0, error_bound(Engine<T>::bound_4096, n))
        << "N 2^" << k << ", output " << i;
}

TYPED_TEST(Transform, SomeOutputsOfLongLengths) {
  for (const int k : {21, 22, 23, 24}) expect_some_outputs<TypeParam>(k);
}

// A state of 1.3 GiB.
TYPED_TEST(Transform, DISABLED_SomeOutputsOfTheLongestLength) {
  expect_some_outputs<TypeParam>(Engine<TypeParam>::longest);
}

TYPED_TEST(Transform, AppliedTwiceIsHalfTheLength) {
  for (int k = 1; k <= 20; ++k) {
    const Owned<TypeParam> engine(1 << k);
    const auto src = noise<TypeParam>(std::size_t{1} << k);
    auto twice = transformed(engine, transformed(engine, src));
    for (TypeParam& value : twice) value *= static_cast<TypeParam>(std::ldexp(1, 1 - k));
    EXPECT_LE(worst_error(twice, src), (8.0 * k + 16) * std::numeric_limits<TypeParam>::epsilon()) << k;
  }
}

TYPED_TEST(Transform, InPlace) {
  for (int k = 1; k <= longest_everyday; ++k) {
    const Owned<TypeParam> engine(1 << k);
    const auto src = noise<TypeParam>(std::size_t{1} << k);
    auto both = src;
    ASSERT_EQ(engine.run(both.data(), both.data()), xfmStsOk);
    EXPECT_TRUE(same_bits(both, transformed(engine, src))) << k;
  }
}

/// All multiples of the alignment of the element type; other addresses are undefined behaviour of the caller.
TYPED_TEST(Transform, AnyAlignment) {
  constexpr std::size_t most = 64 / sizeof(TypeParam);
  constexpr int with_streams = 19;
  for (int k = 1; k <= with_streams; ++k) {
    if (k > 14 && k < with_streams) continue;
    const std::size_t n = std::size_t{1} << k;
    const Owned<TypeParam> engine(1 << k);
    const auto src = noise<TypeParam>(n);
    const auto expected = transformed(engine, src);
    for (std::size_t off = 0; off < most; off += k < with_streams ? 1 : 3) {
      std::vector<TypeParam> from(n + most), to(n + most + 1, TypeParam(77));
      std::copy(src.begin(), src.end(), from.begin() + static_cast<std::ptrdiff_t>(off));
      const std::size_t other = (off * 5 + 1) % most;
      ASSERT_EQ(engine.run(from.data() + off, to.data() + other), xfmStsOk);
      ASSERT_EQ(std::memcmp(to.data() + other, expected.data(), n * sizeof(TypeParam)), 0)
          << "N " << n << ", " << off;
      for (std::size_t i = 0; i < to.size(); ++i) {
        if (i < other || i >= other + n) {
          ASSERT_EQ(to[i], TypeParam(77)) << "N " << n << ": wrote beside dst";
        }
      }
    }
  }
}

TYPED_TEST(Transform, StaysBetweenTheGuards) {
  for (int k = 1; k <= longest_everyday; ++k) {
    const std::size_t n = std::size_t{1} << k, bytes = n * sizeof(TypeParam);
    const Owned<TypeParam> engine(1 << k);
    const auto values = noise<TypeParam>(n);
    Guarded from(bytes), to(bytes);
    for (const bool at_end : {false, true}) {
      auto* src = reinterpret_cast<TypeParam*>(at_end ? from.end() - bytes : from.begin());
      auto* dst = reinterpret_cast<TypeParam*>(at_end ? to.end() - bytes : to.begin());
      from.allow_writing();
      std::memcpy(src, values.data(), bytes);
      from.forbid_writing();
      ASSERT_EQ(attempt([&] { return engine.run(src, dst); }), xfmStsOk) << k;
      ASSERT_EQ(std::memcmp(dst, transformed(engine, values).data(), bytes), 0) << k;
    }
  }
}

// A run on other data in between changes nothing, even if they hold NaN.
TYPED_TEST(Transform, RunsAreIndependent) {
  for (int k = 1; k <= longest_everyday; ++k) {
    const std::size_t n = std::size_t{1} << k;
    const Owned<TypeParam> engine(1 << k);
    const auto src = noise<TypeParam>(n);
    const auto first = transformed(engine, src);
    EXPECT_TRUE(same_bits(transformed(engine, src), first)) << k;
    transformed(engine, std::vector<TypeParam>(n, std::numeric_limits<TypeParam>::quiet_NaN()));
    EXPECT_TRUE(same_bits(transformed(engine, src), first)) << k;
  }
}

// Two states of one length at differently aligned addresses give the same bits.
TYPED_TEST(Transform, BitsDoNotDependOnTheBlock) {
  for (int k = 1; k <= longest_everyday; ++k) {
    const std::size_t size = size_of<TypeParam>(1 << k);
    const Owned<TypeParam> engine(1 << k);
    const auto src = noise<TypeParam>(std::size_t{1} << k);
    const auto expected = transformed(engine, src);
    for (const std::ptrdiff_t offset : {0, 1, 17, 40}) {
      std::vector<std::byte> memory(size + 128);
      typename Engine<TypeParam>::State* state = nullptr;
      ASSERT_EQ(Engine<TypeParam>::init(&state, 1 << k, memory.data() + offset), xfmStsOk);
      std::vector<TypeParam> dst(src.size());
      ASSERT_EQ(Engine<TypeParam>::run(src.data(), dst.data(), state), xfmStsOk);
      EXPECT_TRUE(same_bits(dst, expected)) << k;
    }
  }
}

TYPED_TEST(Transform, BaseOf2) {
  const Owned<TypeParam> engine(2);
  using T = TypeParam;
  const auto c = static_cast<T>(cosine_of_turn(1, 16)), s = static_cast<T>(cosine_of_turn(3, 16));
  EXPECT_EQ(transformed(engine, {T(1), T(0)}), (std::vector<T>{c, s}));
  EXPECT_EQ(transformed(engine, {T(0), T(1)}), (std::vector<T>{s, -c}));
  for (unsigned seed = 0; seed < 1000; ++seed) {
    const auto x = noise<T>(2, seed);
    EXPECT_TRUE(same_bits(transformed(engine, x), {c * x[0] + s * x[1], s * x[0] - c * x[1]}));
  }
}

/// tan(2 pi k / n), as the quotient of sine and cosine.
template <class T>
T tangent_of_turn(long k, unsigned long n) {
  return static_cast<T>(cosine_of_turn(4 * k - static_cast<long>(n), 4 * n) / cosine_of_turn(k, n));
}
template <class T>
T sine_of_turn(long k, unsigned long n) {
  return static_cast<T>(cosine_of_turn(4 * k - static_cast<long>(n), 4 * n));
}

TYPED_TEST(Transform, BaseOf4) {
  const Owned<TypeParam> engine(4);
  using T = TypeParam;
  const auto p0 = tangent_of_turn<T>(7, 64), q0 = sine_of_turn<T>(7, 32), p1 = tangent_of_turn<T>(5, 64),
             q1 = sine_of_turn<T>(5, 32), s = sine_of_turn<T>(1, 8);
  EXPECT_NEAR(p0, 0.8206788, 1e-7);
  EXPECT_NEAR(p1, 0.53451115, 1e-7);
  for (unsigned seed = 0; seed < 1000; ++seed) {
    const auto x = noise<T>(4, seed);
    const T a = x[0] - p0 * x[3], b = x[3] + q0 * a, c = a - p0 * b;
    const T d = x[1] - p1 * x[2], e = x[2] + q1 * d, f = d - p1 * e;
    const std::vector<T> y = {b + e, (b - e) * s + (c + f) * s, (b - e) * s - (c + f) * s, c - f};
    EXPECT_TRUE(same_bits(transformed(engine, x), y)) << seed;
  }
}

TYPED_TEST(Transform, ImpulseAtTheFront) {
  for (int k = 1; k <= 20; ++k) {
    const Owned<TypeParam> engine(1 << k);
    std::vector<TypeParam> src(std::size_t{1} << k);
    src[0] = 1;
    const auto dst = transformed(engine, src);
    for (std::size_t i = 0; i < dst.size(); i += 1 + dst.size() / 1000)
      ASSERT_NEAR(dst[i], std::cos(std::acos(-1.0) / std::ldexp(2, k) * (static_cast<double>(i) + 0.5)),
                  40 * std::numeric_limits<TypeParam>::epsilon())
          << "N 2^" << k << ", output " << i;
  }
}

/// The elements of dst that a run writes, and those of src that it reads: a NaN there reaches dst.
template <class T>
std::pair<std::set<int>, std::set<int>> touched(std::int32_t length) {
  const Owned<T> engine(length);
  const auto count = static_cast<std::size_t>(length) + 40;
  std::vector<T> src(count, T(1)), dst(count, T(77));
  EXPECT_EQ(engine.run(src.data(), dst.data()), xfmStsOk);
  std::set<int> written, read;
  for (std::size_t i = 0; i < count; ++i)
    if (dst[i] != T(77)) written.insert(static_cast<int>(i));
  for (std::size_t i = 0; i < count; ++i) {
    src[i] = std::numeric_limits<T>::quiet_NaN();
    std::fill(dst.begin(), dst.end(), T(0));
    engine.run(src.data(), dst.data());
    if (std::any_of(dst.begin(), dst.end(), [](T y) { return std::isnan(y); }))
      read.insert(static_cast<int>(i));
    src[i] = 1;
  }
  return {read, written};
}

TYPED_TEST(Transform, PowersOfTwoTouchEveryElement) {
  for (int k = 1; k <= 9; ++k) {
    std::set<int> all;
    for (int i = 0; i < 1 << k; ++i) all.insert(i);
    EXPECT_EQ(touched<TypeParam>(1 << k), std::pair(all, all)) << k;
  }
}

// A power of two plus one is not a DCT-IV, yet it is known which elements it touches.
TEST(Hazard, Elements33) {
  std::set<int> expected;
  for (const auto& [first, last] : {std::pair{0, 3}, {6, 11}, {14, 19}, {22, 27}, {30, 33}})
    for (int i = first; i <= last; ++i) expected.insert(i);
  EXPECT_EQ(touched<float>(33), std::pair(expected, expected));
}

/// Indices outer * i + inner for i < half, and 2 N - 1 minus that for half <= i < 2 half.
std::set<int> mapped(int length, int outer, int inner, int half) {
  std::set<int> result;
  for (int i = 0; i < 2 * half; ++i)
    for (int j = 0; j < inner; ++j) result.insert(i < half ? outer * i + j : 2 * length - 1 - outer * i - j);
  return result;
}

TYPED_TEST(Transform, PowersOfTwoPlusOneFollowTheMap) {
  for (const auto& [k, r] : std::map<int, int>{{3, 2}, {4, 2}, {5, 4}, {6, 8}, {7, 8}, {8, 16}, {9, 16}}) {
    const int length = (1 << k) + 1, m = (1 << k) / r;
    if (size_of<TypeParam>(length) == 0) continue;
    const auto [read, written] = touched<TypeParam>(length);
    EXPECT_EQ(read, mapped(length, 2 * r, r, m / 2)) << length;
    EXPECT_EQ(written, mapped(length, m, m / 2, r)) << length;
  }
}

TYPED_TEST(Transform, NullPointers) {
  for (const std::int32_t length : {2, 32, 64, 4096}) {
    const Owned<TypeParam> engine(length);
    const auto n = static_cast<std::size_t>(length);
    std::vector<TypeParam> src(n, TypeParam(1)), dst(n, TypeParam(77));
    const auto untouched = dst;
    auto* const state = engine.state.get();
    const auto run = Engine<TypeParam>::run;
    EXPECT_EQ(run(nullptr, dst.data(), state), xfmStsNullPtr);
    EXPECT_EQ(run(src.data(), nullptr, state), xfmStsNullPtr);
    EXPECT_EQ(run(src.data(), dst.data(), nullptr), xfmStsNullPtr);
    EXPECT_EQ(run(nullptr, nullptr, nullptr), xfmStsNullPtr);
    EXPECT_EQ(dst, untouched);
  }
}

/// Where the root keeps its kind.
constexpr std::size_t place_of_kind = 64;

TYPED_TEST(Transform, UnknownKinds) {
  for (const std::int32_t length : {2, 32, 64, 4096}) {
    const Owned<TypeParam> engine(length);
    const auto n = static_cast<std::size_t>(length);
    const std::vector<TypeParam> src(n, TypeParam(1));
    char* const at = reinterpret_cast<char*>(engine.state.get()) + place_of_kind;
    std::int32_t kind = 0;
    std::memcpy(&kind, at, sizeof kind);
    for (const std::int32_t bad : {0, 7, -1, 100, INT32_MIN, INT32_MAX}) {
      std::memcpy(at, &bad, sizeof bad);
      std::vector<TypeParam> dst(n, TypeParam(77));
      EXPECT_EQ(engine.run(src.data(), dst.data()), xfmStsBadState);
      EXPECT_EQ(dst, std::vector<TypeParam>(n, TypeParam(77)));
    }
    std::memcpy(at, &kind, sizeof kind);
  }
}

}  // namespace
}  // namespace xfm::test
