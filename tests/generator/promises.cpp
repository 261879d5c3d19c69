// What families promise of each other is checked, by the names of the two kernels.
#include "tools/promises.h"

#include <gtest/gtest.h>

#include "tests/generator/small_networks.h"
#include "tools/families.h"

namespace xfm {
namespace {

using gen::Precision;

struct Made {
  const char* family;
  const char* tree = "";
  Precision precision = Precision::binary64;
};

std::string error_of(int length, std::initializer_list<Made> all) {
  std::vector<gen::Kernel> kernels;
  for (const auto& [name, tree, precision] : all) {
    for (const Family& family : families())
      if (family.name == name) kernels.push_back(family.make(length, precision, tree));
  }
  EXPECT_EQ(kernels.size(), all.size());
  return test::error_of([&] { check_promises(kernels); });
}

TEST(Promises, AreKept) {
  for (const Precision precision : {Precision::binary32, Precision::binary64}) {
    EXPECT_EQ(error_of(9, {{"DFTFwd_CToC", "", precision},
                           {"DFTInv_CToC", "", precision},
                           {"DFTFwd_RToCCS", "", precision},
                           {"DFTFwd_RToPack", "", precision},
                           {"DFTFwd_RToPerm", "", precision},
                           {"DFTInv_CCSToR", "", precision},
                           {"DFTInv_PackToR", "", precision},
                           {"DFTInv_PermToR", "", precision},
                           {"Hartley", "", precision}}),
              "no error");
  }
}

// Another tree gives other bits.
TEST(Promises, ThatAreBrokenStopByName) {
  const auto stops = [](const char* family, const char* as) {
    const std::string error = error_of(9, {{as}, {family, "D(9)"}}),
                      type = std::string(family).ends_with("CToC") ? "_64fc" : "_64f";
    EXPECT_TRUE(error.starts_with("xfm" + std::string(family) + "_9" + type + ": output ")) << error;
    EXPECT_TRUE(error.ends_with(" is not computed as in xfm" + std::string(as) + "_9" + type)) << error;
  };
  stops("DFTFwd_RToPack", "DFTFwd_RToCCS");
  stops("DFTFwd_RToPerm", "DFTFwd_RToCCS");
  stops("DFTInv_PackToR", "DFTInv_CCSToR");
  stops("DFTInv_PermToR", "DFTInv_CCSToR");
  stops("DFTInv_CToC", "DFTFwd_CToC");
}

TEST(Promises, HoldWithinAPrecision) {
  EXPECT_EQ(error_of(9, {{"DFTFwd_RToCCS", "", Precision::binary32}, {"DFTFwd_RToPack", "D(9)"}}),
            "no error");
}

/// Digests of the kernels' programs, as the record of all kernels has them.
std::uint64_t digest(const char* name, int length, Precision precision) {
  for (const Family& family : families()) {
    if (family.name != name) continue;
    const gen::Kernel kernel = family.make(length, precision);
    gen::Programs programs(gen::Equality::bits);
    return programs.digest(program_of(kernel, programs));
  }
  throw std::out_of_range(name);
}

// Inverse kernels from Pack whose blocks are ordered otherwise make no promise.
TEST(Promises, HaveExceptionsThatNeedThem) {
  for (const Precision precision : {Precision::binary32, Precision::binary64}) {
    for (const int length : {7, 20, 40, 49, 50})
      EXPECT_NE(digest("DFTInv_PackToR", length, precision), digest("DFTInv_CCSToR", length, precision))
          << length;
    for (const int length : {7, 49})
      EXPECT_NE(digest("DFTInv_PermToR", length, precision), digest("DFTInv_CCSToR", length, precision))
          << length;
    EXPECT_EQ(digest("DFTInv_PackToR", 9, precision), digest("DFTInv_CCSToR", 9, precision));
  }
}

}  // namespace
}  // namespace xfm
