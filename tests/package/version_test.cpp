// The version report. This program replaces the core's ownGetFeature by one that answers as a test wants and
// records the requests.
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <limits>
#include <string_view>
#include <vector>

#include "xfm.h"
#include "xfmcore.h"

namespace {

int answer = 0;
std::vector<int> asked;

const xfmLibraryVersion* report(int feature) {
  answer = feature;
  return xfmGetLibVersion();
}

/// All fields of a record except its name.
void expect_build(const xfmLibraryVersion& record) {
  EXPECT_EQ(record.major, 6);
  EXPECT_EQ(record.minor, 1);
  EXPECT_EQ(record.majorBuild, 137);
  EXPECT_EQ(record.build, 316);
  EXPECT_EQ(std::string_view(record.targetCode, 4), std::string_view("q9\0\0", 4));
  EXPECT_STREQ(record.version, "6.1 build 137.36");
  EXPECT_STREQ(record.buildDate, "Sep 29 2009");
}

TEST(Version, NamesTheLibraryAndMarksTheFeature) {
  EXPECT_STREQ(report(0)->name, "xfmq9-6.1.dll");
  EXPECT_STREQ(report(1)->name, "xfmq9-6.1.dll+");
}

TEST(Version, RecordsAreEqualButForTheName) {
  expect_build(*report(0));
  expect_build(*report(1));
}

TEST(Version, EachAnswerHasOneRecord) {
  EXPECT_EQ(report(0), report(0));
  EXPECT_NE(report(0), report(1));
  for (const int yes : {1, 2, -1, 256, 0x10000, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(report(yes), report(1)) << yes;
  }
}

TEST(Version, AsksForOneFeatureAfreshOnEachCall) {
  asked.clear();
  for (const int feature : {0, 1, 0, 0}) report(feature);
  EXPECT_EQ(asked, std::vector<int>(4, 128));
}

TEST(Version, RecordHasNoGaps) {
  using Record = xfmLibraryVersion;
  constexpr std::array offsets{offsetof(Record, major), offsetof(Record, minor), offsetof(Record, majorBuild),
                               offsetof(Record, build), offsetof(Record, targetCode)};
  for (std::size_t i = 0; i < offsets.size(); ++i) EXPECT_EQ(offsets[i], 4 * i);
  EXPECT_LT(offsetof(Record, name), offsetof(Record, version));
  EXPECT_LT(offsetof(Record, version), offsetof(Record, buildDate));
}

}  // namespace

int ownGetFeature(int feature) {
  asked.push_back(feature);
  return answer;
}
