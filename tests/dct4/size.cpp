// The size query against an independent implementation and against sizes worked out by hand.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>

#include "tests/dct4/engine.h"

namespace xfm::test {
namespace {

/// The rule once more, in 64 bits: the sum is formed first and then cut to the 32 bits that hold it.
class Rule {
 public:
  Rule(std::int64_t length, int element) : length_(length), element_(element) {}

  /// Bytes, or -1.
  std::int64_t size() {
    if (length_ == 2 || length_ == 4 || length_ == 8 || length_ == 16 || length_ == 32) return 256;
    const std::int64_t r = radix(length_ / 2);
    if (r == 0) return -1;
    const std::int64_t m = length_ / r, classes = length_ / 2 / r, lanes = 16 / element_;
    if (r % lanes != 0 || classes % lanes != 0) return -1;
    add(up(2 * classes * r * element_) + 448);
    if (!leaf(m)) add(448);
    const bool served = leaf(m) ? (add(384), true) : split(m);
    add(up(length_ * element_) + 416);
    return served && fits_ ? std::int64_t{static_cast<std::int32_t>(sum_)} + 64 : -1;
  }

 private:
  static std::int64_t up(std::int64_t bytes) { return (bytes + 31) / 32 * 32; }
  static bool leaf(std::int64_t m) { return std::set<std::int64_t>{2, 4, 8, 16, 32, 64}.contains(m); }
  static std::int64_t radix(std::int64_t v) {
    if (v >= 512 && v % 32 == 0) return 32;
    if (v >= 128 && v % 16 == 0) return 16;
    if (v >= 32 && v % 8 == 0) return 8;
    if (v >= 16 && v % 4 == 0) return 4;
    return v >= 4 && v % 2 == 0 ? 2 : 0;
  }
  bool split(std::int64_t m) {
    const std::int64_t r = radix(m / 2);
    if (r == 0) return false;
    add(up(32 * (r - 1) * (m / 2 / r)) + up(length_ * element_) + 576);
    if (leaf(m / r)) return add(160), true;
    add(224);
    return split(m / r);
  }
  /// A sum that has become negative is refused, even if further bytes would wrap it to a positive one.
  void add(std::int64_t bytes) {
    sum_ = static_cast<std::uint32_t>(sum_ + static_cast<std::uint64_t>(bytes));
    fits_ = fits_ && static_cast<std::int32_t>(sum_) >= 0;
  }

  std::int64_t length_;
  int element_;
  std::uint32_t sum_ = 0;
  bool fits_ = true;
};

/// Refused lengths leave the size unchanged.
constexpr std::int32_t untouched = 0x5A5A5A5A;

template <class T>
testing::AssertionResult agrees(std::int64_t length) {
  std::int32_t size = untouched;
  const xfmStatus status = Engine<T>::get_size(static_cast<std::int32_t>(length), &size);
  const std::int64_t expected = Rule(length, sizeof(T)).size();
  if (expected < 0 ? status == xfmStsBadSize && size == untouched : status == xfmStsOk && size == expected)
    return testing::AssertionSuccess();
  return testing::AssertionFailure() << "length " << length << ": status " << status << ", size " << size
                                     << ", expected " << expected;
}

XFM_FOR_BOTH_PRECISIONS(Size);

TYPED_TEST(Size, AgreesWithTheRuleNearby) {
  for (std::int64_t length = -1000; length <= 1 << 19; ++length) ASSERT_TRUE(agrees<TypeParam>(length));
}

TYPED_TEST(Size, AgreesWithTheRuleAroundMultiplesOfPowers) {
  for (int k = 1; k < 31; ++k) {
    for (std::int64_t factor = 1; factor < 40; ++factor) {
      for (std::int64_t off = -3; off <= 3; ++off) {
        const std::int64_t length = (factor << k) + off;
        ASSERT_TRUE(agrees<TypeParam>(static_cast<std::int32_t>(static_cast<std::uint32_t>(length))));
      }
    }
  }
}

TYPED_TEST(Size, AgreesWithTheRuleAtRandom) {
  std::mt19937 bits(7);
  for (int i = 0; i < 1'000'000; ++i) ASSERT_TRUE(agrees<TypeParam>(static_cast<std::int32_t>(bits())));
}

// Every 32-bit length: takes minutes.
TYPED_TEST(Size, DISABLED_AgreesWithTheRuleEverywhere) {
  for (std::int64_t length = INT32_MIN; length <= INT32_MAX; ++length) ASSERT_TRUE(agrees<TypeParam>(length));
}

using Table = std::map<std::int64_t, std::int64_t>;
const Table known_32f = {{2, 256},
                         {4, 256},
                         {8, 256},
                         {16, 256},
                         {32, 256},
                         {33, 1600},
                         {64, 1824},
                         {65, 1856},
                         {128, 2336},
                         {129, 2368},
                         {256, 3360},
                         {257, 3392},
                         {512, 5408},
                         {1024, 9504},
                         {2048, 17696},
                         {4096, 53056},
                         {8192, 104256},
                         {16384, 206400},
                         {32768, 411200},
                         {65536, 820288},
                         {131072, 2165344},
                         {262144, 4328032},
                         {1048576, 17303904},
                         {4194304, 85986688},
                         {67108864, 1375734400},
                         {1 << 30, 536874912},
                         {(1 << 30) + 1, 536875072}};
const Table known_64f = {{2, 256},
                         {4, 256},
                         {8, 256},
                         {9, 1472},
                         {16, 256},
                         {17, 1600},
                         {32, 256},
                         {33, 1856},
                         {64, 2336},
                         {128, 3360},
                         {256, 5408},
                         {512, 9504},
                         {1024, 17696},
                         {2048, 34080},
                         {4096, 102208},
                         {8192, 202560},
                         {16384, 403008},
                         {32768, 804416},
                         {65536, 1606720},
                         {131072, 4262496},
                         {262144, 8522336},
                         {1048576, 34081120},
                         {4194304, 169872768},
                         {1 << 29, 268439456},
                         {(1 << 29) + 1, 268439616},
                         {1 << 30, 536874912},
                         {(1 << 30) + 1, 536875072}};

TYPED_TEST(Size, KnownSizes) {
  for (const auto& [length, size] : sizeof(TypeParam) == 4 ? known_32f : known_64f) {
    std::int32_t got = 0;
    EXPECT_EQ(Engine<TypeParam>::get_size(static_cast<std::int32_t>(length), &got), xfmStsOk) << length;
    EXPECT_EQ(got, size) << length;
  }
}

/// The set of accepted lengths, stated without the rule.
TYPED_TEST(Size, AcceptedLengths) {
  const bool single = sizeof(TypeParam) == 4;
  std::set<std::int64_t> expected;
  for (int k = 1; k <= Engine<TypeParam>::longest; ++k) {
    expected.insert(std::int64_t{1} << k);
    if (k >= (single ? 5 : 3)) expected.insert((std::int64_t{1} << k) + 1);
  }
  for (int k = single ? 30 : 29; k <= 30; ++k)
    expected.insert({std::int64_t{1} << k, (std::int64_t{1} << k) + 1});
  for (int k = 0; k < 31; ++k) {
    for (std::int64_t off = -2; off <= 2; ++off) {
      const std::int64_t length = (std::int64_t{1} << k) + off;
      EXPECT_EQ(size_of<TypeParam>(static_cast<std::int32_t>(length)) != 0, expected.contains(length))
          << length;
    }
  }
  for (const std::int32_t refused : {0, -1, -2, -64, INT32_MIN, INT32_MAX, 3, 5, 6, 7, 34, 48, 96, 192})
    EXPECT_EQ(size_of<TypeParam>(refused), 0U) << refused;
}

}  // namespace
}  // namespace xfm::test
