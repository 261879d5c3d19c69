// The emitted text: literals keep every bit, and the same kernels give the same bytes.
#include "gen/write/emit.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>

#include "tools/families.h"

namespace xfm::gen {
namespace {

TEST(Literal, KeepsEveryBit) {
  std::mt19937_64 random(1);
  for (int round = 0; round < 1000; ++round) {
    const double value =
        std::ldexp(static_cast<double>(random()) - 0x1p63, static_cast<int>(random() % 200) - 160);
    const std::string wide = literal(Wide(value), Precision::binary64);
    const std::string narrow = literal(Wide(value), Precision::binary32);
    ASSERT_EQ(std::strtod(wide.c_str(), nullptr), value) << wide;
    ASSERT_EQ(narrow.back(), 'F');
    ASSERT_EQ(std::strtof(narrow.c_str(), nullptr), static_cast<float>(value)) << narrow;
  }
}

// 1 + 2^-24 + 2^-60 lies just above the midpoint of two binary32 numbers, and rounds to it in binary64.
TEST(Literal, IsRoundedOnce) {
  const Wide value = Wide(1) + Wide(0x1p-24) + Wide(0x1p-60);
  EXPECT_EQ(std::strtof(literal(value, Precision::binary32).c_str(), nullptr), 1 + 0x1p-23F);
  EXPECT_EQ(std::strtod(literal(value, Precision::binary64).c_str(), nullptr), 1 + 0x1p-24);
}

TEST(Literal, IsAShortHexadecimalFloat) {
  EXPECT_EQ(literal(Wide(0.5), Precision::binary64), "0x1p-1");
  EXPECT_EQ(literal(Wide(-0.75), Precision::binary32), "-0x1.8p-1F");
}

std::vector<Kernel> kernels_of(const Family& family, int length) {
  std::vector<Kernel> kernels;
  for (const ElementType& type : family.types()) kernels.push_back(family.make(length, type.precision));
  return kernels;
}

TEST(EmitFile, IsRepeatable) {
  for (const Family& family : families()) {
    if (family.by_hand()) continue;
    for (const int length : {family.lowest, (family.lowest + family.highest) / 2}) {
      SharedConstants first("xfm"), second("xfm");
      ASSERT_EQ(emit_file(kernels_of(family, length), baseline(), first),
                emit_file(kernels_of(family, length), baseline(), second));
      ASSERT_EQ(first.definitions(baseline()), second.definitions(baseline()));
    }
  }
}

TEST(EmitFile, NamesTheRowAndTheCosts) {
  for (const Family& family : families()) {
    if (family.by_hand()) continue;
    const std::vector<Kernel> kernels = kernels_of(family, family.highest);
    SharedConstants shared("xfm");
    const std::string text = emit_file(kernels, baseline(), shared);
    for (const Kernel& kernel : kernels) {
      const std::string row =
          "(row: " + std::to_string(kernel.adds) + " and " + std::to_string(kernel.mults) + ")";
      for (const std::string& part : {kernel.name() + ": " + kernel.tree, row, kernel.name() + "(const "})
        EXPECT_NE(text.find(part), std::string::npos) << part;
    }
    EXPECT_NE(text.find("Written by xfmgen"), std::string::npos);
  }
}

TEST(SharedConstants, OneNameHasOneValue) {
  constexpr ValueType narrow{Precision::binary32, 4}, wide{Precision::binary64, 2};
  SharedConstants shared("xfm");
  const std::string name = shared.use(constant("c", 3), wide);
  EXPECT_EQ(shared.use(constant("c", 3), wide), name);
  EXPECT_NE(shared.use(constant("c", 3), narrow), name)
      << "four lanes and two lanes need different constants";
  EXPECT_THROW(shared.use(constant("c", 4), wide), std::logic_error);
  const std::string text = shared.definitions(baseline());
  EXPECT_EQ(text.find(name), text.rfind(name)) << "defined twice";
}

}  // namespace
}  // namespace xfm::gen
