// One changed row yields a difference of one row.
#include <gtest/gtest.h>

#include <cstdio>

#include "tests/golden/table.h"

namespace xfm::test {
namespace {

const Table table = {{"a", "1", "x"}, {"b", "2", "y"}, {"c", "3", "z"}};

TEST(Table, EqualTablesHaveNoDifference) { EXPECT_EQ(difference(table, table), ""); }

TEST(Table, AChangedRowStandsAlone) {
  Table changed = table;
  changed[1][2] = "w";
  EXPECT_EQ(difference(table, changed), "-b\t2\ty\n+b\t2\tw\n");
}

TEST(Table, LostAndNewRows) {
  const Table fewer = {table[0], table[2]};
  EXPECT_EQ(difference(table, fewer), "-b\t2\ty\n");
  EXPECT_EQ(difference(fewer, table), "+b\t2\ty\n");
  EXPECT_EQ(difference({}, {table[0]}), "+a\t1\tx\n");
}

TEST(Table, OrderCounts) {
  EXPECT_NE(difference(table, {table[1], table[0], table[2]}), "");
  EXPECT_NE(difference(table, {table[0], table[1], table[2], table[2]}), "");
}

TEST(Table, IsReadAsItWasWritten) {
  const std::string path = testing::TempDir() + "xfm_golden_table_test.tsv";
  write_table(path, {"name", "number", "letter"}, table);
  EXPECT_EQ(read_table(path), table);
  std::remove(path.c_str());
  EXPECT_TRUE(read_table(path).empty());
}

}  // namespace
}  // namespace xfm::test
