// The tables in the memory of a plan, value by value: the angle rounded as designed, then its cosine or sine
// to the last place; and the exact angle within what these roundings allow.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "tests/dct4/engine.h"
#include "tests/dct4/expected_plan.h"
#include "tests/dct4/reference.h"

namespace xfm::test {
namespace {

constexpr std::int32_t order_of_32[32] = {0, 31, 16, 15, 4, 27, 20, 11, 8, 23, 24, 7, 12, 19, 28, 3,
                                          1, 30, 17, 14, 5, 26, 21, 10, 9, 22, 25, 6, 13, 18, 29, 2};

std::int32_t residue_at(std::int32_t r, std::int32_t place) {
  if (r == 32) return order_of_32[place];
  return place % 2 == 0 ? place / 2 : r - 1 - place / 2;
}

double ulps_apart(double got, Wide exact, int bits) {
  const double nearest = static_cast<double>(exact);
  int exponent = 0;
  std::frexp(nearest, &exponent);
  return std::abs(static_cast<double>(Wide{got} - exact)) / std::ldexp(1.0, exponent - bits);
}

/// A state and readers of its memory.
template <class T>
class Tables {
 public:
  explicit Tables(std::int32_t length)
      : memory_(size_of<T>(length) / 8 + 8), length_(length), plan_(length, sizeof(T), address()) {
    typename Engine<T>::State* state = nullptr;
    EXPECT_EQ(Engine<T>::init(&state, length, memory_.data()), xfmStsOk);
  }
  const std::vector<ExpectedPlan::Table>& all() const { return plan_.tables(); }
  const T* values(const ExpectedPlan::Table& table) const {
    return reinterpret_cast<const T*>(reinterpret_cast<const char*>(memory_.data()) +
                                      (table.address - address()));
  }
  std::int32_t length() const { return length_; }

 private:
  std::uint64_t address() const { return reinterpret_cast<std::uintptr_t>(memory_.data()); }
  std::vector<std::uint64_t> memory_;
  std::int32_t length_;
  ExpectedPlan plan_;
};

constexpr int lanes_of(std::size_t element) { return static_cast<int>(16 / element); }

/// The stored value of cos or sin of pi x, where x is already rounded to the precision.
template <class T>
void expect_value(T got, T x, bool sine) {
  const T angle = static_cast<T>(static_cast<double>(x) * 3.141592653589793);
  const Wide exact = sine ? sine_of(static_cast<double>(angle)) : cosine_of(static_cast<double>(angle));
  ASSERT_LE(ulps_apart(static_cast<double>(got), exact, std::numeric_limits<T>::digits), 1.0)
      << "angle " << angle;
}

/// Near the value at the exact angle, 2 pi turn / whole, which roundings move by a few last places.
template <class T>
void expect_near(T got, std::int64_t turn, std::int64_t whole, bool sine) {
  const Wide exact = sine ? cosine_of_turn(4 * turn - whole, static_cast<unsigned long>(4 * whole))
                          : cosine_of_turn(turn, static_cast<unsigned long>(whole));
  const double angle = 2 * std::acos(-1.0) * static_cast<double>(turn) / static_cast<double>(whole);
  const double bound = std::numeric_limits<T>::epsilon() * (1 + 2 * angle);
  ASSERT_LE(std::abs(static_cast<double>(Wide{got} - exact)), bound) << turn << "/" << whole;
}

/// The step between the values of a long table that are checked.
std::int64_t stride_of(std::int64_t values) { return values <= 1 << 14 ? 1 : values / 4999 | 1; }

template <class T>
void expect_combine_table(const Tables<T>& tables) {
  const ExpectedPlan::Table& table = tables.all().front();
  const std::int64_t r = table.radix, n = tables.length(), lanes = lanes_of(sizeof(T));
  const auto values = static_cast<std::int64_t>(table.bytes / sizeof(T));
  const T* const at = tables.values(table);
  for (std::int64_t i = 0; i < values; i += stride_of(values)) {
    const std::int64_t lane = i % lanes, vector = i / lanes, group = vector / (2 * r);
    const std::int64_t q = lanes * group + lane;
    const std::int64_t t =
        residue_at(static_cast<std::int32_t>(r), static_cast<std::int32_t>(vector / 2 % r));
    const bool sine = vector % 2 != 0;
    const std::int64_t odds = (2 * q + 1) * (2 * t + 1);
    SCOPED_TRACE(testing::Message() << "N " << n << ", q " << q << ", t " << t
                                    << (sine ? " sine" : " cosine"));
    expect_value(at[i], static_cast<T>(2 * odds) / static_cast<T>(8 * n), sine);
    expect_near(at[i], odds, 8 * n, sine);
    if (testing::Test::HasFatalFailure()) return;
  }
}

/// The multiple of the class angle and the turn j that a pair stands for, and its class.
struct Pair {
  std::int64_t i, j, multiple;
};

Pair pair_at(std::int64_t pair, std::int64_t r2, std::int64_t classes) {
  if (r2 <= 8) return {pair / (r2 - 1), 0, pair % (r2 - 1) + 1};
  const std::int64_t near = 3 * r2 / 4, far = r2 / 4 - 1, first_far = near * classes;
  if (pair < first_far) return {pair / near, pair % near / 3, pair % 3 + 1};
  return {(pair - first_far) / far, 0, 4 * ((pair - first_far) % far + 1)};
}

template <class T>
void expect_split_table(const Tables<T>& tables, const ExpectedPlan::Table& table) {
  const std::int64_t r2 = table.radix, m = table.fold, m2 = m / r2, classes = m2 / 2,
                     lanes = lanes_of(sizeof(T));
  const auto values = static_cast<std::int64_t>(table.bytes / sizeof(T));
  const T* const at = tables.values(table);
  for (std::int64_t k = 0; k < values; k += stride_of(values)) {
    const std::int64_t vector = k / lanes;
    const Pair pair = pair_at(vector / 2, r2, classes);
    const bool sine = vector % 2 != 0;
    SCOPED_TRACE(testing::Message() << "N " << tables.length() << ", m " << m << ", class " << pair.i
                                    << ", turn " << pair.j << ", multiple " << pair.multiple
                                    << (sine ? " sine" : " cosine"));
    const T half_step = (static_cast<T>(pair.i) + T(0.5)) / static_cast<T>(m2) + static_cast<T>(pair.j);
    const double factor = 2.0 * static_cast<double>(pair.multiple) / static_cast<double>(r2);
    expect_value(at[k], static_cast<T>(static_cast<double>(half_step) * factor), sine);
    expect_near(at[k], pair.multiple * (2 * pair.i + 1 + 2 * m2 * pair.j), 2 * m, sine);
    if (testing::Test::HasFatalFailure()) return;
  }
}

XFM_FOR_BOTH_PRECISIONS(TwiddleTables);

TYPED_TEST(TwiddleTables, Values) {
  for (const std::int32_t off : {0, 1}) {
    for (int k = 6; k <= 20; ++k) {
      const Tables<TypeParam> tables((1 << k) + off);
      ASSERT_NO_FATAL_FAILURE(expect_combine_table(tables));
      for (std::size_t i = 1; i < tables.all().size(); ++i)
        ASSERT_NO_FATAL_FAILURE(expect_split_table(tables, tables.all()[i]));
    }
  }
}

TYPED_TEST(TwiddleTables, BeginOf64) {
  const Tables<TypeParam> tables(64);
  const TypeParam* at = tables.values(tables.all().front());
  const double cosines[] = {0.999925, 0.999322, 0.998118, 0.996313},
               sines[] = {0.012272, 0.036807, 0.061321, 0.085797};
  const double last[] = {0.983105, 0.851355, 0.605511, 0.27852};
  constexpr int lanes = lanes_of(sizeof(TypeParam));
  for (int lane = 0; lane < lanes; ++lane) {
    EXPECT_NEAR(at[lane], cosines[lane], 5e-7);
    EXPECT_NEAR(at[lanes + lane], sines[lane], 5e-7);
    EXPECT_NEAR(at[2 * lanes + lane], last[lane], 5e-7);
  }
}

TYPED_TEST(TwiddleTables, BeginOf8192) {
  const Tables<TypeParam> tables(8192);
  const ExpectedPlan::Table& split = tables.all().at(1);
  const TypeParam* at = tables.values(split);
  constexpr int lanes = lanes_of(sizeof(TypeParam));
  const auto expect_pair = [&](std::int64_t pair, double turn) {
    const double angle = turn * std::acos(-1.0) / 256, bound = 4 * std::numeric_limits<TypeParam>::epsilon();
    EXPECT_NEAR(at[2 * lanes * pair], std::cos(angle), bound) << pair;
    EXPECT_NEAR(at[2 * lanes * pair + lanes], std::sin(angle), bound) << pair;
  };
  const double turns[] = {1, 2, 3, 33, 66};
  for (int i = 0; i < 5; ++i) expect_pair(i, turns[i]);
  expect_pair(12 * 8, 4);
}

}  // namespace
}  // namespace xfm::test
