// The internal parts of the engine, one by one: arena and list, the radix rule, constants, and every kind of
// every stage, even those that no accepted length reaches.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numeric>

#include "src/dct4/constants.h"
#include "src/dct4/stages.h"
#include "src/dct4/twiddle.h"
#include "tests/dct4/engine.h"
#include "tests/dct4/reference.h"

namespace xfm::dct4 {
namespace {

using test::noise;
using test::PrecisionName;
using test::Precisions;
using Number = std::complex<double>;

TEST(Arena, Rounds) {
  EXPECT_EQ(round32(0), 0U);
  EXPECT_EQ(round32(1), 32U);
  EXPECT_EQ(round32(24), 32U);
  EXPECT_EQ(round32(32), 32U);
  EXPECT_EQ(round32(33), 64U);
  EXPECT_EQ(round32(80), 96U);
  EXPECT_EQ(round32(0xFFFFFFFF), 0U);
}

TEST(Arena, ReleasesInAnyOrder) {
  alignas(64) unsigned char block[1024];
  PlanArena* const arena = arena_open(block);
  unsigned char* const start = arena->top;
  EXPECT_EQ(arena, static_cast<void*>(block));
  EXPECT_EQ(start, block + 64);
  const std::uint32_t sizes[] = {1, 0, 80, 24, 33};
  EXPECT_EQ(arena_alloc(arena, sizes[0]), start);
  EXPECT_EQ(arena_alloc(arena, sizes[1]), start + 32);
  EXPECT_EQ(arena_alloc(arena, sizes[2]), start + 32);
  EXPECT_EQ(arena_alloc(arena, sizes[3]), start + 128);
  EXPECT_EQ(arena_alloc(arena, sizes[4]), start + 160);
  EXPECT_EQ(arena->top, start + 224);
  for (const std::uint32_t size : sizes) arena_release(arena, size);
  EXPECT_EQ(arena->top, start);
}

TEST(List, KeepsItsOrder) {
  alignas(64) unsigned char block[1024];
  PlanArena* const arena = arena_open(block);
  PlanList* const list = list_new(arena);
  EXPECT_EQ(list_nth(list, 0), nullptr);
  PlanObject objects[3] = {};
  unsigned char* const with_head = arena->top;
  for (PlanObject& object : objects) list_append(list, &object);
  EXPECT_EQ(arena->top, with_head + 64) << "the head holds the first";
  for (int i = 0; i < 3; ++i) EXPECT_EQ(list_nth(list, i), &objects[i]);
  EXPECT_EQ(list_nth(list, 4), nullptr);
  list_release(list);
  EXPECT_EQ(arena->top, with_head - 32);
}

int destroyed = 0;

TEST(List, DestroysWhatItOwns) {
  alignas(64) unsigned char block[1024];
  PlanArena* const arena = arena_open(block);
  unsigned char* const start = arena->top;
  PlanList* const list = list_new(arena);
  struct Small {
    PlanObject head;
  };
  struct Large {
    PlanObject head;
    char rest[30];
  };
  const auto destroy = [](PlanObject* object) {
    destroyed = 10 * destroyed + static_cast<int>(object->size % 7);
  };
  list_append(list, &object_new<Small>(arena, destroy, nullptr)->head);
  list_append(list, &object_new<Large>(arena, destroy, nullptr)->head);
  destroyed = 0;
  list_release_objects(list);
  EXPECT_EQ(destroyed, 10 * (sizeof(Small) % 7) + sizeof(Large) % 7);
  EXPECT_EQ(arena->top, start);
}

TEST(Radix, Rule) {
  const std::pair<int, int> known[] = {{16, 4},       {15, 0}, {31, 0}, {32, 8},   {128, 16}, {512, 32},
                                       {520, 8},      {2, 0},  {6, 2},  {4, 2},    {3, 0},    {0, 0},
                                       {-64, 0},      {64, 8}, {96, 8}, {144, 16}, {256, 16}, {528, 16},
                                       {1 << 29, 32}, {14, 2}, {20, 4}, {36, 4},   {34, 2}};
  for (const auto& [value, radix] : known) EXPECT_EQ(radix_rule(value), radix) << value;
}

TEST(Constants, AreTheNearest) {
  for (long b = 1; b <= 128; ++b) {
    for (long a = -3 * b; a <= 6 * b; ++a) {
      const auto exact = test::cosine_of_turn(a, static_cast<unsigned long>(2 * b));
      ASSERT_EQ(static_cast<double>(wide_cosine(a, b)), static_cast<double>(exact)) << a << "/" << b;
      ASSERT_EQ(static_cast<float>(wide_cosine(a, b)), static_cast<float>(exact)) << a << "/" << b;
      const auto sine_exact = test::cosine_of_turn(2 * a - b, static_cast<unsigned long>(4 * b));
      ASSERT_EQ(static_cast<double>(wide_sine(a, b)), static_cast<double>(sine_exact)) << a << "/" << b;
    }
  }
}

// ---- Every kind of every stage against its formula.

/// A block with an arena in it, large enough for any table here.
struct Memory {
  alignas(64) unsigned char block[1 << 18];
  PlanArena* arena = arena_open(block);
  template <class T>
  T* work(std::size_t count) {
    return static_cast<T*>(arena_alloc(arena, static_cast<std::uint32_t>(count * sizeof(T))));
  }
};

Number unit(double turns_of_pi) { return std::polar(1.0, std::acos(-1.0) * turns_of_pi); }

/// The odd DFT by its definition; of the samples n = 0 .. m - 1, the upper half stands for n - m.
template <class Samples>
Number odd_dft(std::int32_t m, std::int32_t q, const Samples& w) {
  Number sum = 0;
  for (std::int32_t n = -m / 2; n < m / 2; ++n)
    sum += static_cast<double>(w(n)) * unit(static_cast<double>(n) * (2 * q + 1) / m);
  return sum;
}

template <class T>
void expect_near(T re, T im, Number exact) {
  constexpr double bound = 300 * std::numeric_limits<T>::epsilon();
  ASSERT_NEAR(re, exact.real(), bound);
  ASSERT_NEAR(im, exact.imag(), bound);
}

template <class T>
class Stages : public testing::Test {};
TYPED_TEST_SUITE(Stages, Precisions, PrecisionName);

TYPED_TEST(Stages, OuterFolds) {
  using T = TypeParam;
  for (const std::int32_t m : {2, 4, 8, 16, 32, 64}) {
    for (const std::int32_t batches : {1, 3}) {
      const std::int32_t r = batches * group_size<T>, n = r * m;
      Memory memory;
      T* const work = memory.work<T>(static_cast<std::size_t>(n));
      FoldNode node{};
      node.kind = leaf_kind(m);
      node.fold = m;
      node.length = node.whole = n;
      node.mirror = 2 * n - 1;
      node.step = 2 * r;
      node.batches = batches;
      node.part = r;
      const auto src = noise<T>(static_cast<std::size_t>(n));
      ASSERT_EQ(run_fold(node, work, src.data()), xfmStsOk);
      for (std::int32_t t = 0; t < r; ++t) {
        const auto w = [&](std::int32_t i) {
          return src[static_cast<std::size_t>(i >= 0 ? 2 * r * i + t : -2 * r * i - 1 - t)];
        };
        for (std::int32_t q = 0; q < m / 2; ++q)
          ASSERT_NO_FATAL_FAILURE(
              expect_near(work[2 * q * r + t], work[(2 * q + 1) * r + t], odd_dft(m, q, w)))
              << "m " << m << ", residue " << t << ", class " << q;
      }
    }
  }
}

TYPED_TEST(Stages, InnerFolds) {
  using T = TypeParam;
  for (const std::int32_t m : {2, 4, 8, 16, 32, 64}) {
    const std::int32_t above = line<T>, r2 = 4, stride = above * r2, n = stride * m;
    Memory memory;
    T* const work = memory.work<T>(static_cast<std::size_t>(r2 * (m + 2) * line<T>));
    OddFoldNode node{};
    node.kind = leaf_kind(m);
    node.fold = m;
    node.step = 2 * stride;
    node.forward_step = 2 * above;
    node.sequences = r2;
    const auto src = noise<T>(static_cast<std::size_t>(n));
    ASSERT_EQ(run_odd_fold(node, work, src.data(), {0, 2 * n - 1}), xfmStsOk);
    for (std::int32_t a = 0; a < r2; ++a) {
      const Spectrum<T> z = sequence_spectrum(work, m, a);
      for (std::int32_t t = 0; t < line<T>; ++t) {
        const std::int32_t residue = t + 2 * above * a;
        const auto w = [&](std::int32_t i) {
          return src[static_cast<std::size_t>(i >= 0 ? 2 * stride * i + residue
                                                     : -2 * stride * i - 1 - residue)];
        };
        for (std::int32_t q = 0; q < m / 2; ++q)
          ASSERT_NO_FATAL_FAILURE(
              expect_near(z.start[2 * q * z.part + t], z.start[(2 * q + 1) * z.part + t], odd_dft(m, q, w)))
              << "m " << m << ", sub-sequence " << a << ", residue " << t << ", class " << q;
      }
    }
  }
}

TYPED_TEST(Stages, InnerCombines) {
  using T = TypeParam;
  for (const std::int32_t r2 : {2, 4, 8, 16, 32}) {
    const std::int32_t m2 = 16, m = r2 * m2, part = 2 * line<T>;
    Memory memory;
    auto* const source = new_half_step_source<T>(memory.arena);
    source->fold = m;
    source->radix = r2;
    OddCombineNode<T> node{};
    node.head.arena = memory.arena;
    node.kind = place_among(2, 32, r2);
    node.radix = r2;
    node.classes = m2 / 2;
    node.fold = m2;
    node.source = &source->head;
    make_table(node);
    const auto values = noise<T>(static_cast<std::size_t>(r2 * (m2 + 2) * line<T>));
    T* const work = memory.work<T>(values.size());
    std::copy(values.begin(), values.end(), work);
    std::vector<T> out(static_cast<std::size_t>(m * part));
    T* const aligned = memory.work<T>(out.size());
    ASSERT_EQ(run_odd_combine(node, {aligned, part}, work), xfmStsOk);
    for (std::int32_t t = 0; t < line<T>; ++t) {
      const auto class_of = [&](std::int32_t a, std::int32_t q) {  // periodic, and mirrored within a period
        const std::int32_t i = q % m2, own = i < m2 / 2 ? i : m2 - 1 - i;
        const Spectrum<T> z = sequence_spectrum(work, m2, a);
        const Number value(z.start[2 * own * z.part + t], z.start[(2 * own + 1) * z.part + t]);
        return i < m2 / 2 ? value : std::conj(value);
      };
      for (std::int32_t q = 0; q < m / 2; ++q) {
        Number sum = 0;
        for (std::int32_t a = 0; a < r2; ++a)
          sum += class_of(a, q) * unit(static_cast<double>(a) * (2 * q + 1) / m);
        ASSERT_NO_FATAL_FAILURE(expect_near(aligned[2 * q * part + t], aligned[(2 * q + 1) * part + t], sum))
            << "radix " << r2 << ", residue " << t << ", class " << q;
      }
    }
  }
}

TYPED_TEST(Stages, OuterCombines) {
  using T = TypeParam;
  for (const std::int32_t r : {1, 2, 4, 8, 16, 32}) {
    for (const std::int32_t m :
         {2 * group_size<T>, 4 * group_size<T>, static_cast<std::int32_t>(2048 / sizeof(T))}) {
      const std::int32_t n = r * m, c = m / 2;
      Memory memory;
      auto* const angles = new_cos_sin_source<T>(memory.arena);
      angles->step = angles->row = 2 * r;
      angles->full_turn = 8 * n;
      angles->classes = c;
      angles->radix = r;
      auto* const source = new_lane_source<T>(memory.arena);
      source->step = 2 * r;
      source->groups = c / group_size<T>;
      source->source = &angles->head;
      CombineNode<T> node{};
      node.head.arena = memory.arena;
      node.kind = place_among(1, 32, r);
      node.radix = r;
      node.step = 2 * r;
      node.group_elements = 2 * r * group_size<T>;
      node.groups = c / group_size<T>;
      node.mirror = 2 * n - 1;
      node.fold = m;
      node.source = &source->head;
      std::vector<T> table_memory;
      make_table(node);
      const auto values = noise<T>(static_cast<std::size_t>(n));
      T* const work = memory.work<T>(values.size());
      std::copy(values.begin(), values.end(), work);
      std::vector<T> dst(values.size(), T(77));
      ASSERT_EQ(run_combine(node, dst.data(), work), xfmStsOk);
      for (std::int32_t q = 0; q < c; ++q) {
        for (std::int32_t l = -r; l < r; ++l) {
          Number sum = 0;
          for (std::int32_t t = 0; t < r; ++t) {
            const double psi = (2.0 * q + 1) * (2 * t + 1) / (4.0 * n);
            sum += Number(work[2 * q * r + t], work[(2 * q + 1) * r + t]) *
                   unit(psi + static_cast<double>(l) * (2 * t + 1) / (2.0 * r));
          }
          const std::int32_t place = l >= 0 ? m * l + q : -m * l - q - 1;
          ASSERT_NO_FATAL_FAILURE(
              expect_near(dst[static_cast<std::size_t>(place)], T(0), Number(sum.real(), 0)))
              << "radix " << r << ", m " << m << ", class " << q << ", output " << l;
        }
      }
    }
  }
}

TYPED_TEST(Stages, UnknownKinds) {
  using T = TypeParam;
  for (const std::int32_t kind : {0, -1, 8, 9, INT32_MAX, INT32_MIN}) {
    FoldNode fold{};
    fold.kind = kind;
    EXPECT_EQ(run_fold<T>(fold, nullptr, nullptr), xfmStsBadState);
    OddFoldNode odd_fold{};
    odd_fold.kind = kind;
    EXPECT_EQ(run_odd_fold<T>(odd_fold, nullptr, nullptr, {}), xfmStsBadState);
  }
  for (const std::int32_t kind : {0, -1, 7, 8, INT32_MAX, INT32_MIN}) {
    CombineNode<T> combine{};
    combine.kind = kind;
    EXPECT_EQ(run_combine<T>(combine, nullptr, nullptr), xfmStsBadState);
  }
  for (const std::int32_t kind : {0, -1, 6, 7, INT32_MAX, INT32_MIN}) {
    OddCombineNode<T> odd_combine{};
    odd_combine.kind = kind;
    EXPECT_EQ(run_odd_combine<T>(odd_combine, {}, nullptr), xfmStsBadState);
  }
  for (const std::int32_t kind : {0, -1, 2, INT32_MAX, INT32_MIN}) {
    OddSplitNode<T> split{};
    split.kind = kind;
    EXPECT_EQ(run_odd_split<T>(split, {}, nullptr, {}), xfmStsBadState);
  }
}

/// A shell of an unknown kind skips its stage, and the run still succeeds.
TYPED_TEST(Stages, ShellsLeaveTheirStageOut) {
  using T = TypeParam;
  Memory memory;
  Dct4Plan<T>* plan = nullptr;
  ASSERT_EQ(init(&plan, 64, memory.block), xfmStsOk);
  auto& fold = *reinterpret_cast<FoldShell*>(list_nth(plan->fold_view, 0));
  auto& combine = *reinterpret_cast<CombineShell*>(list_nth(plan->combine_view, 0));
  const auto src = noise<T>(64), other = noise<T>(64, 2);
  std::vector<T> first(64), dst(64, T(77));
  ASSERT_EQ(run(src.data(), first.data(), *plan), xfmStsOk);
  fold.kind = 0;
  ASSERT_EQ(run(other.data(), dst.data(), *plan), xfmStsOk);
  EXPECT_EQ(dst, first) << "the spectrum of the previous run";
  fold.kind = kind_sound;
  combine.kind = 2;
  dst.assign(64, T(77));
  ASSERT_EQ(run(other.data(), dst.data(), *plan), xfmStsOk);
  EXPECT_EQ(dst, std::vector<T>(64, T(77)));
}

}  // namespace
}  // namespace xfm::dct4
