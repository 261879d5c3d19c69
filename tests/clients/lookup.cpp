// xfm_lookup.h: the kernels of the catalogue by their lengths, the lengths that are DCT-IVs, texts for
// statuses.
#include "xfm_lookup.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <limits>
#include <map>
#include <regex>
#include <set>

#include "tools/catalogue.h"

extern "C" xfmKernel_32fc found_in_c(int32_t length);

namespace xfm::test {
namespace {

using Lookup = const void* (*)(std::int32_t length);

template <auto lookup>
const void* address(std::int32_t length) {
  return reinterpret_cast<const void*>(lookup(length));
}
#define LOOKUP(function) \
  std::pair<const std::string, Lookup> { "xfm" #function, address<&xfmLookup##function> }

/// By the generic function that makes the same choice.
const std::map<std::string, Lookup> lookups = {
    LOOKUP(DFTFwd_CToC_32fc),
    LOOKUP(DFTFwd_CToC_64fc),
    LOOKUP(DFTInv_CToC_32fc),
    LOOKUP(DFTInv_CToC_64fc),
    LOOKUP(DFTFwd_RToCCS_32f),
    LOOKUP(DFTFwd_RToCCS_64f),
    LOOKUP(DFTFwd_RToPack_32f),
    LOOKUP(DFTFwd_RToPack_64f),
    LOOKUP(DFTFwd_RToPerm_32f),
    LOOKUP(DFTFwd_RToPerm_64f),
    LOOKUP(DFTInv_CCSToR_32f),
    LOOKUP(DFTInv_CCSToR_64f),
    LOOKUP(DFTInv_PackToR_32f),
    LOOKUP(DFTInv_PackToR_64f),
    LOOKUP(DFTInv_PermToR_32f),
    LOOKUP(DFTInv_PermToR_64f),
    LOOKUP(Hartley_32f),
    LOOKUP(Hartley_64f),
    LOOKUP(WHT_32f),
    LOOKUP(WHT_64f),
};
#undef LOOKUP

constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();

TEST(Lookup, FindsTheKernelsOfTheCatalogue) {
  std::size_t found = 0;
  for (const auto& kernel : catalogue::kernels()) {
    const std::string generic = "xfm" + std::string(kernel.family) + "_" + kernel.type;
    ASSERT_TRUE(lookups.contains(generic)) << generic << " has no lookup here";
    const void* const function = dlsym(RTLD_DEFAULT, kernel.name);
    ASSERT_NE(function, nullptr) << kernel.name;
    EXPECT_EQ(lookups.at(generic)(kernel.length), function) << kernel.name;
    ++found;
  }
  EXPECT_EQ(found, 1160U);
}

TEST(Lookup, RefusesTheLengthsThatGenericFunctionsRefuse) {
  EXPECT_EQ(lookups.size(), catalogue::generics().size());
  for (const auto& generic : catalogue::generics()) {
    const Lookup& lookup = lookups.at(generic.name);
    for (std::int32_t length = -100; length <= 10000; ++length) {
      const bool served = generic.lowest <= length && length <= generic.highest;
      EXPECT_EQ(lookup(length) != nullptr, served) << generic.name << " " << length;
    }
    for (const std::int32_t length : {least, least + 1, least + 2, greatest})
      EXPECT_EQ(lookup(length), nullptr) << generic.name << " " << length;
  }
}

TEST(Lookup, FindsTheSameInC) {
  for (std::int32_t length = -1; length <= 70; ++length)
    EXPECT_EQ(found_in_c(length), xfmLookupDFTFwd_CToC_32fc(length)) << length;
}

std::set<std::int32_t> near_powers_of_two() {
  std::set<std::int32_t> lengths = {least, -64, -1, 0, greatest};
  for (int k = 0; k <= 30; ++k)
    for (const int beside : {-1, 0, 1, 2}) lengths.insert((1 << k) + beside);
  for (std::int32_t length = 0; length <= 1000; ++length) lengths.insert(length);
  return lengths;
}

/// What xfm.h says of a length: a DCT-IV, or accepted without being one.
struct Said {
  bool is_dct4 = false, is_hazard = false;
};
Said said_of(std::int32_t length, int least_hazard, int most) {
  Said said;
  for (int k = 1; k <= most; ++k) {
    if (length == 1 << k) said.is_dct4 = true;
    if (k >= least_hazard && length == (1 << k) + 1) said.is_hazard = true;
  }
  for (const int k : {29, 30})
    if ((k == 30 || most == 25) && (length == 1 << k || length == (1 << k) + 1)) said.is_hazard = true;
  return said;
}

void expect_dct4(std::int32_t length, int served, xfmStatus accepted, const Said& said) {
  EXPECT_EQ(served, said.is_dct4 ? 1 : 0) << length;
  EXPECT_EQ(accepted, said.is_dct4 || said.is_hazard ? xfmStsOk : xfmStsBadSize) << length;
}

TEST(Lookup, KnowsWhichLengthsAreDct4s) {
  std::int32_t size = 0;
  for (const std::int32_t length : near_powers_of_two()) {
    expect_dct4(length, xfmDCT4IsServed_32f(length), xfmDCT4GetSize_32f(length, &size),
                said_of(length, 5, 26));
    expect_dct4(length, xfmDCT4IsServed_64f(length), xfmDCT4GetSize_64f(length, &size),
                said_of(length, 3, 25));
  }
}

TEST(Lookup, HasATextForEveryStatus) {
  std::ifstream file(XFM_HEADER);
  const std::string header{std::istreambuf_iterator<char>(file), {}};
  const std::regex status("xfmSts\\w+ = (-?\\d+)");
  std::set<std::string> texts;
  std::set<int> statuses;
  for (std::sregex_iterator at(header.begin(), header.end(), status), end; at != end; ++at) {
    const int value = std::stoi((*at)[1]);
    statuses.insert(value);
    texts.insert(xfmStatusText(value));
  }
  EXPECT_EQ(statuses.size(), 5U);
  EXPECT_EQ(texts.size(), statuses.size()) << "two statuses have one text";
  const std::string unknown = xfmStatusText(1);
  EXPECT_FALSE(texts.contains(unknown)) << "a status has no text";
  for (int other = -100; other <= 100; ++other)
    EXPECT_EQ(xfmStatusText(other) == unknown, !statuses.contains(other)) << other;
}

}  // namespace
}  // namespace xfm::test
